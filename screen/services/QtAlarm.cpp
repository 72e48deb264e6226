#include "screen/services/QtAlarm.h"

#include <algorithm>

namespace tarvik::screen {

QtAlarm::QtAlarm() {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
    if (rung) rung();
  });
}

Alarm::Time QtAlarm::Now() const {
  return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch());
}

/// Never too early: whoever is called before its time would only set it again.
void QtAlarm::RingAt(Time time) {
  timer_.start(std::chrono::ceil<std::chrono::milliseconds>(std::max(time - Now(), Time{})));
}

}  // namespace tarvik::screen
