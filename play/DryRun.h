// A pair of files tried out: controls are worked by hand, or by a run that was saved, time passes as whoever
// tries them lets it, and all that was done can be saved as a run.
#pragma once

#include <deque>
#include <functional>

#include "play/Run.h"
#include "play/Trace.h"

namespace tarvik::play {

class DryRun {
 public:
  /// `sent` is told of each output, while program() is what made it.
  DryRun(Program program, std::function<void(const Output&)> sent);

  /// The files have changed: lets go of all that is down, and goes on with what they say now. Axes and the
  /// dogfight switch stay where they are, and `held` controls go down again by themselves.
  void Exchange(Program program, std::span<const std::string> held);
  /// Does what `event` says, now. An axis goes to the nearest thousandth of its way.
  void Do(Event event);
  /// Time counts from the first that is done.
  void Pass(Time time);
  /// Lets as much time pass as there is until something happens by itself; false when nothing will.
  bool PassToNext();
  /// Lets go of everything, and forgets what was to be sent or done.
  void LetGo();
  /// The run so far is forgotten, and a new one begins.
  void Begin();
  /// From now on the steps of a trace for this program come by themselves.
  void Play(const Trace& trace);

  [[nodiscard]] const Program& program() const { return run_.program(); }
  [[nodiscard]] const Engine& engine() const { return run_.engine(); }
  /// Since the run began.
  [[nodiscard]] Time now() const { return now_; }
  [[nodiscard]] bool IsDown(OutputKind kind, std::uint16_t number) const;
  [[nodiscard]] bool IsPlaying() const { return !ahead_.empty() || due_ > now_; }
  /// Where an axis was put last, from 0 to 1.
  [[nodiscard]] std::optional<double> PositionOf(std::uint32_t axis) const { return run_.PositionOf(axis); }
  [[nodiscard]] std::uint32_t SwitchPlace() const { return run_.SwitchPlace(); }
  /// What was done, a line each, as `ReadTrace` reads it.
  [[nodiscard]] const std::vector<std::string>& Lines() const { return lines_; }

 private:
  [[nodiscard]] std::optional<Time> Next() const;
  void GoOn(Time to);
  void TakeStep();
  void Stop();
  void Take(const StepResult& result);
  void Note(std::string line);

  Run run_;
  std::function<void(const Output&)> sent_;
  Time now_ = {};
  std::optional<Time> deadline_;
  std::deque<TraceStep> ahead_;
  Time due_ = {};  // of the first one ahead
  std::vector<std::string> lines_;
  Time unnoted_ = {};                          // since the last line
  std::array<std::uint32_t, 2> buttons_ = {};  // of the mouse and of the ports that are down, a bit each
};

}  // namespace tarvik::play
