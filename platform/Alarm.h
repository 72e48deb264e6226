// A clock that rings, exact to a millisecond: for what must happen at its time while other programs are in
// front.
#pragma once

#include <chrono>
#include <functional>

namespace tarvik {

class Alarm {
 public:
  using Time = std::chrono::microseconds;

  virtual ~Alarm() = default;
  /// Since some moment. It never goes back.
  [[nodiscard]] virtual Time Now() const = 0;
  /// It rings once, at that time or as soon as it can; what was set before is forgotten.
  virtual void RingAt(Time time) = 0;
  virtual void Cancel() = 0;

  /// Who listens; set before the first time is.
  std::function<void()> rung;
};

}  // namespace tarvik
