// The real clock that rings.
#pragma once

#include <QTimer>

#include "platform/Alarm.h"

namespace tarvik::screen {

class QtAlarm : public Alarm {
 public:
  QtAlarm();

  [[nodiscard]] Time Now() const override;
  void RingAt(Time time) override;
  void Cancel() override { timer_.stop(); }

 private:
  QTimer timer_;
};

}  // namespace tarvik::screen
