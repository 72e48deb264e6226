// Plays a pair of files for real: what controls do comes in, and strokes of keys and mouse buttons go out at
// their time, one after another. It has no clock: whoever owns it hands in the time, and comes back when it
// asks to be woken.
#pragma once

#include <functional>
#include <optional>

#include "play/Positions.h"
#include "play/Run.h"
#include "play/StickReader.h"

namespace tarvik::play {

/// Between a modifier and what follows, and between two strokes of one key, so that no program misses one.
inline constexpr Time kStrokeGap = std::chrono::milliseconds(1);

class Player {
 public:
  /// Is told of a key or button that goes down or up, now.
  using Send = std::function<void(Position position, bool down)>;

  /// `now` is the time from here on; it never goes back.
  Player(Program program, Send send, Time now);
  /// Lets go of everything.
  ~Player();
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

  void Feed(const ControlEvent& event, Time now);
  /// What is due happens.
  void Wake(Time now);
  /// When Wake() is wanted; none where nothing will happen by itself.
  [[nodiscard]] std::optional<Time> Deadline() const;
  /// Lets go of everything at once, and forgets what was to be sent. Controls that are held count from their
  /// next press.
  void Stop(Time now);
  [[nodiscard]] bool AnyDown() const { return down_ > 0; }
  [[nodiscard]] bool IsDown(Position position) const { return keys_[position].isDown; }
  [[nodiscard]] const Program& program() const { return run_.program(); }

 private:
  struct Stroke {
    Position position = 0;
    bool down = false;
  };
  struct Place {
    std::uint16_t holders = 0;  // codes that share the position
    bool isDown = false;        // as it was sent
    Time changed = {};
  };

  void Take(const StepResult& result);
  void Queue(Position position, bool down);
  void SendDue();
  [[nodiscard]] Time DueOf(const Stroke& stroke) const;
  void Put(const Stroke& stroke);
  /// What is down goes up, whatever was to come.
  void LetGo();

  Send send_;
  Time now_;
  Run run_;
  std::optional<Time> deadline_;
  std::vector<Stroke> queue_;
  std::size_t first_ = 0;  // of the queue that is not sent yet
  std::array<Place, kPositions> keys_ = {};
  std::size_t down_ = 0;
  Time modifierChanged_ = {};
};

}  // namespace tarvik::play
