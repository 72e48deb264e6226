// The toolkit's application, which every event passes through: the one place where what a handler throws is
// caught.
#pragma once

#include <QApplication>
#include <functional>

#include "platform/Outcome.h"

namespace tarvik::screen {

/// A handler that throws has ended; the program and its texts go on.
class Toolkit : public QApplication {
 public:
  using QApplication::QApplication;

  /// Hears of each exception.
  std::function<void(const Failure&)> failed;

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  void Tell(const Failure& failure) const noexcept;
};

}  // namespace tarvik::screen
