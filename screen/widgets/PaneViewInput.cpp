// What the user does in a pane, told to the pane before or after the toolkit does its part.
#include <QApplication>
#include <QMimeData>
#include <QMouseEvent>

#include "screen/widgets/Conversions.h"
#include "screen/widgets/Keys.h"
#include "screen/widgets/PaneView.h"

namespace tarvik::screen {
namespace {

bool IsMouse(QEvent::Type type) {
  return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
         type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove;
}

bool IsCtrlLetter(const QKeyEvent& event) {
  return event.modifiers() == Qt::ControlModifier && event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
}

/// The toolkit edits with more of these keys than the program knows.
bool EditsNatively(int letter) {
  return letter == Qt::Key_A || letter == Qt::Key_C || letter == Qt::Key_V || letter == Qt::Key_X;
}

}  // namespace

bool PaneView::event(QEvent* event) {
  // The tool for which the text began lower may have gone.
  if (event->type() == QEvent::FocusIn && ShownFrom() > 0) AskForSight();
  if (event->type() == QEvent::FocusOut) keyIsDown_ = false;
  if (event->type() == QEvent::ShortcutOverride && IsCtrlLetter(static_cast<QKeyEvent&>(*event))) {
    event->accept();  // the form has a table of its own for them
    return true;
  }
  if (IsMouse(event->type())) {
    // The mouse is in the indent beside the text, which is no part of the viewport.
    const auto& mouse = static_cast<QMouseEvent&>(*event);
    QMouseEvent inText(mouse.type(), viewport()->mapFrom(this, mouse.position()), mouse.globalPosition(),
                       mouse.button(), mouse.buttons(), mouse.modifiers());
    return QApplication::sendEvent(viewport(), &inText);
  }
  return QPlainTextEdit::event(event);
}

/// Tab is a character of the text; Shift+Tab is the way out, which the text edit itself would not go.
bool PaneView::focusNextPrevChild(bool next) {
  if (next) return QPlainTextEdit::focusNextPrevChild(next);
  return QWidget::focusNextPrevChild(next);  // NOLINT(bugprone-parent-virtual-call)
}

/// Each character is a key press that the form may change or cancel; what is left comes back.
QString PaneView::PressKeys(std::string_view text) {
  QString pressed;
  for (const char byte : text) {
    int character = static_cast<unsigned char>(byte);
    pane_.KeyPress(character);
    if (character == 0) continue;
    pressed += character < 0x20 ? QChar(character) : ToScreen(static_cast<char>(character));
  }
  return pressed;
}

void PaneView::TellLost(const Converted& taken) {
  if (taken.lost > 0 && !pane_.Locked) pane_.CharactersLost(taken.lost);
}

void PaneView::keyPressEvent(QKeyEvent* event) {
  event->accept();
  keyIsDown_ = true;
  Key key{VirtualKey(*event), ShiftState(event->modifiers())};
  pane_.KeyDown(key);
  if (key.code == 0 || TypesNothing(*event)) return;
  QString text = event->text();
  Converted typed;
  if (!text.isEmpty() && event->key() != Qt::Key_Delete) {
    typed = ConvertedFromScreen(text);
    text = PressKeys(typed.text);
    if (text.isEmpty()) return;
  }
  if (IsCtrlLetter(*event) && !EditsNatively(event->key())) return;
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  QKeyEvent native(QEvent::KeyPress, event->key(), enter ? Qt::NoModifier : event->modifiers(), text,
                   event->isAutoRepeat());
  QPlainTextEdit::keyPressEvent(&native);
  TellLost(typed);
}

void PaneView::keyReleaseEvent(QKeyEvent* event) {
  QPlainTextEdit::keyReleaseEvent(event);
  if (event->isAutoRepeat() || !std::exchange(keyIsDown_, false)) return;
  Key key{VirtualKey(*event), ShiftState(event->modifiers())};
  pane_.KeyUp(key);
}

void PaneView::inputMethodEvent(QInputMethodEvent* event) {
  QInputMethodEvent pressed(event->preeditString(), event->attributes());
  const Converted typed = ConvertedFromText(event->commitString());
  if (!event->commitString().isEmpty() && !pane_.Locked) {
    pressed.setCommitString(PressKeys(typed.text), event->replacementStart(), event->replacementLength());
  }
  QPlainTextEdit::inputMethodEvent(&pressed);
  TellLost(typed);
  event->accept();
}

void PaneView::insertFromMimeData(const QMimeData* data) {
  if (pane_.Locked || !data->hasText()) return;
  QTextCursor cursor = textCursor();
  const Converted taken = ConvertedFromText(data->text());
  cursor.insertText(ToScreen(taken.text));
  setTextCursor(cursor);
  ensureCursorVisible();
  TellLost(taken);
}

void PaneView::dropEvent(QDropEvent* event) {
  if (!canInsertFromMimeData(event->mimeData())) return event->ignore();
  setFocus();
  const bool own = event->source() == this || event->source() == viewport();
  if (!own || event->dropAction() != Qt::MoveAction || pane_.Locked) {
    QPlainTextEdit::dropEvent(event);
    return;
  }
  QDragLeaveEvent noLongerDragging;
  QPlainTextEdit::dragLeaveEvent(&noLongerDragging);
  MoveSelectionTo(event->position().toPoint());
  event->accept();
}

/// The colours of the text go with it.
void PaneView::MoveSelectionTo(const QPoint& place) {
  pane_.UserMoved(pane_.Selection(), PanePosition(cursorForPosition(place).position()));
}

void PaneView::mousePressEvent(QMouseEvent* event) {
  pane_.MouseDown(ToMouse(*event));
  if (event->button() != Qt::RightButton) QPlainTextEdit::mousePressEvent(event);
}

void PaneView::mouseMoveEvent(QMouseEvent* event) {
  QPlainTextEdit::mouseMoveEvent(event);
  pane_.MouseMove(ToMouse(*event));
}

void PaneView::mouseReleaseEvent(QMouseEvent* event) {
  QPlainTextEdit::mouseReleaseEvent(event);
  const Mouse mouse = ToMouse(*event);
  pane_.MouseUp(mouse);
  if (mouse.button == button::kLeft) pane_.Click();
}

void PaneView::mouseDoubleClickEvent(QMouseEvent* event) {
  QPlainTextEdit::mouseDoubleClickEvent(event);
  pane_.DblClick();
}

void PaneView::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() != QContextMenuEvent::Keyboard) return;  // the press of the button has been told
  const QPoint caret = cursorRect().bottomLeft();
  pane_.MouseDown({button::kRight, 0, InTwips(Pixels{caret.x()}), InTwips(Pixels{caret.y()})});
}

}  // namespace tarvik::screen
