#include "screen/WindowOrder.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>
#include <algorithm>

namespace tarvik::screen {
namespace {

QList<QDialog*> OpenDialogs() {
  QList<QDialog*> open;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    auto* const dialog = qobject_cast<QDialog*>(window);
    if (dialog && dialog->isVisible() && dialog->windowHandle()) open += dialog;
  }
  return open;
}

bool IsOnTop(const QDialog* dialog) {
  const auto* const tool = dynamic_cast<const CanBeOnTop*>(dialog);
  return tool && tool->IsOnTop();
}

/// Among windows that are on top the last one to come up is in front, so that a dialog needs no more than to
/// be one of them.
bool BelongsOnTop(const QDialog& dialog, bool anyToolIs) {
  const bool isTool = dynamic_cast<const CanBeOnTop*>(&dialog);
  return IsOnTop(&dialog) || (anyToolIs && (!isTool || dialog.isModal()));
}

}  // namespace

void ArrangeWindows() {
  const QList<QDialog*> open = OpenDialogs();
  const bool anyToolIs = std::any_of(open.begin(), open.end(), IsOnTop);
  for (QDialog* const dialog : open) {
    dialog->windowHandle()->setFlag(Qt::WindowStaysOnTopHint, BelongsOnTop(*dialog, anyToolIs));
  }
}

WindowOrder::WindowOrder() { qApp->installEventFilter(this); }

/// Its window does not stand on the screen yet while a widget hears that it is shown.
bool WindowOrder::eventFilter(QObject* watched, QEvent* event) {
  const bool changes = event->type() == QEvent::Show || event->type() == QEvent::Hide;
  if (changes && qobject_cast<QDialog*>(watched)) ArrangeWindows();
  return false;
}

}  // namespace tarvik::screen
