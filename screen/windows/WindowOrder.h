// Which of the program's windows lie above which. A tool can be on top of all other windows; boxes, dialogs
// and the help are there to be read now, and lie above every tool too, whatever is clicked.
#pragma once

#include <QDialog>

#include "screen/windows/WindowStack.h"

namespace tarvik::screen {

/// A window that the user can put on top of all others, like the tools.
class CanBeOnTop {
 public:
  virtual ~CanBeOnTop() = default;
  [[nodiscard]] virtual bool IsOnTop() const = 0;
};

/// Puts the windows that are open where they belong; for whoever changes what `IsOnTop` says.
void ArrangeWindows();

/// Of windows that are stacked so, from the back to the front, those that must be raised, in this order.
[[nodiscard]] QList<QWidget*> WronglyCovered(const QList<QWidget*>& windows);

/// Arranges the windows whenever one of them is shown or hidden, whoever makes it, and again when the window
/// manager has put one in front of another that must not be covered. One stands beside the screen.
class WindowOrder : public QObject {
 public:
  WindowOrder();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  WindowStack stack_;
};

}  // namespace tarvik::screen
