// A pair of files while it is played: its engine, and where axes and switches are, so that the files can be
// exchanged under the hands.
#pragma once

#include <functional>
#include <memory>

#include "play/Engine.h"

namespace tarvik::play {

class Run {
 public:
  /// `taken` is given all that comes of the steps below; its outputs are good until the next step.
  using Take = std::function<void(const StepResult&)>;
  Run(Program program, Take taken);

  void Step(const Event& event, Time now);
  /// Lets go of all that is down, and forgets what was to be sent. The dogfight switch is in the middle then.
  void Stop(Time now);
  /// Lets go of all that is down, and goes on with what the files say now. Axes and the dogfight switch stay
  /// where they are, and `held` controls go down again by themselves.
  void Exchange(Program program, std::span<const std::string> held, Time now);
  /// Forgets all that was done.
  void Renew(Time now);

  [[nodiscard]] const Program& program() const { return made_->program; }
  [[nodiscard]] const Engine& engine() const { return made_->engine; }
  /// Where an axis was put last, from 0 to 1.
  [[nodiscard]] std::optional<double> PositionOf(std::uint32_t axis) const { return positions_[axis]; }
  [[nodiscard]] std::uint32_t SwitchPlace() const { return switch_; }

 private:
  struct Made {
    explicit Made(Program each) : program(std::move(each)), engine(program) {}
    Program program;
    Engine engine;
  };

  std::unique_ptr<Made> made_;
  Take taken_;
  std::array<std::optional<double>, kAxisNames.size()> positions_ = {};
  std::uint32_t switch_ = kSwitchInMiddle;
};

}  // namespace tarvik::play
