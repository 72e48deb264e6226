// A moment that must pass without another event before something is done.
#pragma once

#include "controls/Controls.h"

namespace tarvik {

class Pause {
 public:
  /// `end` is called so many milliseconds after the last Begin, by the timer, which `owner` has.
  Pause(Component& owner, std::string_view timerName, int milliseconds, std::function<void()> end)
      : timer(owner, timerName), end_(std::move(end)) {
    timer.Interval = milliseconds;
    timer.Elapsed = [this] {
      Cancel();
      end_();
    };
  }

  Timer timer;

  /// Anew, where it has begun already.
  void Begin() {
    Cancel();
    timer.Enabled = true;
  }
  void Cancel() { timer.Enabled = false; }

 private:
  std::function<void()> end_;
};

}  // namespace tarvik
