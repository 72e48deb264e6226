#include "screen/windows/WindowOrder.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>
#include <algorithm>

#include "screen/windows/WindowFocus.h"

namespace tarvik::screen {
namespace {

/// The kinds of windows, from the back to the front.
enum class Rank { Frame, Tool, Help, Modal };

/// A window that belongs to a modal one is of the same rank.
Rank RankOf(const QWidget& window) {
  const QWindow* const handle = window.windowHandle();
  const QWindow* const owner = handle ? handle->transientParent() : nullptr;
  if (window.isModal() || (owner && owner->isModal())) return Rank::Modal;
  if (dynamic_cast<const CanBeOnTop*>(&window)) return Rank::Tool;
  return qobject_cast<const QDialog*>(&window) ? Rank::Help : Rank::Frame;
}

/// The frame may lie in front of the help and of the tools, and what is modal in front of anything.
bool MayCover(const QWidget& upper, const QWidget& lower) {
  const Rank above = RankOf(upper);
  const Rank below = RankOf(lower);
  return above >= below || (above == Rank::Frame && below != Rank::Modal);
}

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
  return IsOnTop(&dialog) || (anyToolIs && RankOf(dialog) != Rank::Tool);
}

/// A modal window that belongs to no other is kept in front of all the program's by the window manager. Of
/// two that are open the second belongs to the first.
void FreeFromOwner(const QDialog& dialog) {
  QWindow& window = *dialog.windowHandle();
  const QWindow* const owner = window.transientParent();
  if (dialog.isModal() && owner && !owner->isModal()) window.setTransientParent(nullptr);
}

void RaiseCovered(const QList<QWidget*>& windows) {
  for (QWidget* const window : WronglyCovered(windows)) window->raise();
}

}  // namespace

void ArrangeWindows() {
  const QList<QDialog*> open = OpenDialogs();
  const bool anyToolIs = std::any_of(open.begin(), open.end(), IsOnTop);
  for (QDialog* const dialog : open) {
    FreeFromOwner(*dialog);
    QWindow& window = *dialog->windowHandle();
    const bool onTop = BelongsOnTop(*dialog, anyToolIs);
    if (window.flags().testFlag(Qt::WindowStaysOnTopHint) == onTop) continue;
    window.setFlag(Qt::WindowStaysOnTopHint, onTop);
  }
}

QList<QWidget*> WronglyCovered(const QList<QWidget*>& windows) {
  QList<QWidget*> covered;
  for (auto window = windows.begin(); window != windows.end(); ++window) {
    const auto isWrong = [window](const QWidget* above) { return !MayCover(*above, **window); };
    if (std::any_of(std::next(window), windows.end(), isWrong)) covered += *window;
  }
  std::stable_sort(covered.begin(), covered.end(),
                   [](const QWidget* one, const QWidget* other) { return RankOf(*one) < RankOf(*other); });
  return covered;
}

WindowOrder::WindowOrder() : stack_(RaiseCovered) { qApp->installEventFilter(this); }

namespace {

/// The focus returns to the window that asked, whichever of the program's windows was clicked while it could
/// not answer.
void GiveBackFocus(const QDialog& answered) {
  const bool isTool = dynamic_cast<const CanBeOnTop*>(&answered);
  if (answered.isModal() && !isTool && answered.parentWidget()) AskForWindow(*answered.parentWidget());
}

/// A modal window that is minimised would leave the user with windows that do not answer.
void KeepInSight(QDialog& dialog) {
  if (!dialog.isModal() || !dialog.isMinimized()) return;
  QMetaObject::invokeMethod(
      &dialog, [&dialog] { dialog.setWindowState(dialog.windowState() & ~Qt::WindowMinimized); },
      Qt::QueuedConnection);
}

}  // namespace

/// A dialog hears that it is shown before its window stands on the screen.
bool WindowOrder::eventFilter(QObject* watched, QEvent* event) {
  auto* const dialog = qobject_cast<QDialog*>(watched);
  if (!dialog) return false;
  const QEvent::Type type = event->type();
  if (type == QEvent::WindowStateChange) KeepInSight(*dialog);
  if (type == QEvent::Show || type == QEvent::Hide) ArrangeWindows();
  if (type == QEvent::Hide) GiveBackFocus(*dialog);
  return false;
}

}  // namespace tarvik::screen
