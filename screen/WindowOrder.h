// Which of the program's windows lie above which. A tool can be on top of all other windows; boxes, dialogs
// and the help are there to be read now, and lie above such a tool too.
#pragma once

#include <QDialog>

namespace tarvik::screen {

/// A window that the user can put on top of all others, like the tools.
class CanBeOnTop {
 public:
  virtual ~CanBeOnTop() = default;
  [[nodiscard]] virtual bool IsOnTop() const = 0;
};

/// Puts the windows that are open where they belong; for whoever changes what `IsOnTop` says.
void ArrangeWindows();

/// Arranges the windows whenever one of them is shown or hidden, whoever makes it. One stands beside the
/// screen.
class WindowOrder : public QObject {
 public:
  WindowOrder();
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tarvik::screen
