// The signals that end the program from outside.
#pragma once

#include <QObject>
#include <functional>

namespace tarvik::screen {

/// Calls `beforeEnd` between two events when the process is told to end (SIGTERM, SIGINT, SIGHUP), and then
/// ends it as the signal does by itself: nobody is there to answer questions. One for the process.
class EndSignals : public QObject {
 public:
  explicit EndSignals(std::function<void()> beforeEnd);
  ~EndSignals() override;
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;
};

}  // namespace tarvik::screen
