// The toolkit's application, which every event passes through: the one place where what a handler throws is
// caught, and what the start of the program throws.
#pragma once

#include <QApplication>
#include <exception>
#include <functional>

#include "platform/Outcome.h"

namespace tarvik::screen {

/// A handler that throws has ended; the program and its texts go on.
class Toolkit : public QApplication {
 public:
  using QApplication::QApplication;

  /// Hears of each exception.
  std::function<void(const Failure&)> failed;

  /// Runs what no event has brought about as a handler is run. False: it has thrown.
  template <class Work>
  bool Run(const Work& work) const {
    try {
      work();
      return true;
    } catch (const std::exception&) {
      TellWhatWasThrown();
      return false;
    }
  }

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  /// For a catch clause only.
  void TellWhatWasThrown() const noexcept;
};

}  // namespace tarvik::screen
