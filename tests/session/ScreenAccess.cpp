#include "session/ScreenAccess.h"

#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QTabBar>
#include <QToolTip>
#include <cstring>

#include "screen/widgets/Conversions.h"
#include "screen/widgets/PaneView.h"
#include "screen/widgets/PlotView.h"

namespace tarvik::screen {
namespace {

constexpr int kTickWidth = 16;  // of a box or button that bears a mark

/// Where mouse events of a widget arrive.
QWidget& Surface(QWidget& widget) {
  auto* const area = qobject_cast<QAbstractScrollArea*>(&widget);
  return area ? *area->viewport() : widget;
}

/// Its middle, or that of the item in hand, or where the caret stands in text.
QPointF PlaceToClick(QWidget& widget) {
  if (auto* const pane = dynamic_cast<PaneView*>(&widget)) {
    pane->ensureCursorVisible();
    return pane->cursorRect().center();
  }
  const auto* const list = qobject_cast<QListView*>(&widget);
  if (list && list->currentIndex().isValid()) return list->visualRect(list->currentIndex()).center();
  const QPoint centre = Surface(widget).rect().center();
  const auto* const button = qobject_cast<QAbstractButton*>(&widget);
  return button && button->isCheckable() ? QPoint(kTickWidth / 2, centre.y()) : centre;
}

void SendMouse(QWidget& surface, QEvent::Type type, const QPointF& place, Qt::MouseButton button) {
  const Qt::MouseButtons down = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
  QMouseEvent event(type, place, surface.mapToGlobal(place), button, down, Qt::NoModifier);
  QApplication::sendEvent(&surface, &event);
}

/// The enabled menu entry that a key runs.
QAction* ActionOf(const QWidget& widget, QKeyCombination key) {
  for (QAction* action : widget.window()->findChildren<QAction*>()) {
    if (action->isEnabled() && action->isVisible() && action->shortcut() == QKeySequence(key)) return action;
  }
  return nullptr;
}

/// What a key types with these modifiers.
QString TextOfKey(QKeyCombination key) {
  const int code = key.key();
  if (code == Qt::Key_Return) return QStringLiteral("\r");
  if (code == Qt::Key_Backspace) return QStringLiteral("\b");
  if (code == Qt::Key_Tab) return QStringLiteral("\t");
  if (code == Qt::Key_Escape) return QStringLiteral("\x1b");
  const bool letter = code >= Qt::Key_A && code <= Qt::Key_Z;
  if (key.keyboardModifiers() == Qt::ControlModifier) return letter ? QString(QChar(code - '@')) : QString();
  if (code > 0xFF || key.keyboardModifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) return {};
  const QString text(QChar(static_cast<char16_t>(code)));
  return key.keyboardModifiers() & Qt::ShiftModifier ? text : text.toLower();
}

/// "Ctrl+Z", "Num+7", and a modifier by itself.
QKeyCombination KeyOf(std::string_view chord) {
  constexpr std::pair<const char*, Qt::Key> kModifiers[] = {
      {"Shift", Qt::Key_Shift}, {"Ctrl", Qt::Key_Control}, {"Alt", Qt::Key_Alt}};
  const QString text = ToScreen(chord);
  for (const auto& [name, key] : kModifiers) {
    if (!text.endsWith(QLatin1String(name))) continue;
    // A key in the modifier's place, so that those in front of it can be read.
    const QKeySequence held(text.chopped(static_cast<qsizetype>(std::strlen(name))) + u'A');
    return QKeyCombination(held[0].keyboardModifiers(), key);
  }
  const QKeySequence sequence(text);
  return sequence.isEmpty() ? QKeyCombination(Qt::Key_unknown) : sequence[0];
}

void SendKey(QWidget& widget, QEvent::Type type, QKeyCombination key, const QString& text) {
  QKeyEvent event(type, key.key(), key.keyboardModifiers(), text);
  event.setAccepted(type != QEvent::ShortcutOverride);
  QApplication::sendEvent(&widget, &event);
}

}  // namespace

void ScreenAccess::Settle() {
  QApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool ScreenAccess::HasFocus(const Control& control) const {
  const auto* const widget = qobject_cast<const QWidget*>(screen_.Find(control));
  return widget && widget->hasFocus();
}

bool ScreenAccess::IsOnShow(const Component& component) const {
  const auto* const widget = qobject_cast<const QWidget*>(screen_.Find(component));
  return !widget || widget->isVisible();
}

QWidget* ScreenAccess::WidgetOf(const Component& component) const {
  auto* const widget = qobject_cast<QWidget*>(screen_.Find(component));
  return widget && widget->isVisible() && widget->isEnabled() ? widget : nullptr;
}

void ScreenAccess::GoTo(const Component& component) {
  const Component* form = &component;
  while (form->Parent()) form = form->Parent();
  auto* const view = dynamic_cast<QWidget*>(screen_.ViewOf(static_cast<const Form&>(*form)));
  if (!view || view->isActiveWindow() || !view->isVisible()) return;
  view->window()->activateWindow();
  QApplication::processEvents();
}

void ScreenAccess::ClickAt(Component& component, Qt::MouseButton button, bool twice) {
  QWidget* const widget = WidgetOf(component);
  if (!widget) return;
  GoTo(component);
  if (widget->focusPolicy() & Qt::ClickFocus) widget->setFocus(Qt::MouseFocusReason);
  QWidget& surface = Surface(*widget);
  const QPointF place = PlaceToClick(*widget);
  SendMouse(surface, QEvent::MouseButtonPress, place, button);
  SendMouse(surface, QEvent::MouseButtonRelease, place, button);
  if (twice) {
    SendMouse(surface, QEvent::MouseButtonDblClick, place, button);
    SendMouse(surface, QEvent::MouseButtonRelease, place, button);
  }
  Settle();
}

void ScreenAccess::Click(Component& component) {
  auto* const action = qobject_cast<QAction*>(screen_.Find(component));
  if (!action) {
    ClickAt(component, Qt::LeftButton, false);
    return;
  }
  GoTo(component);
  if (action->isVisible()) action->trigger();
  while (QWidget* const popUp = QApplication::activePopupWidget()) popUp->close();
  Settle();
}

void ScreenAccess::DoubleClick(Component& component) { ClickAt(component, Qt::LeftButton, true); }
void ScreenAccess::RightClick(Component& component) { ClickAt(component, Qt::RightButton, false); }

bool ScreenAccess::Point(Component& component) {
  if (auto* const action = qobject_cast<QAction*>(screen_.Find(component))) {
    action->hover();
    return true;
  }
  QWidget* const widget = WidgetOf(component);
  if (!widget) return false;
  const QPoint place = widget->rect().center();
  QHelpEvent rests(QEvent::ToolTip, place, widget->mapToGlobal(place));
  QApplication::sendEvent(widget, &rests);
  QToolTip::hideText();
  return true;
}

void ScreenAccess::Focus(Component& component) {
  if (QWidget* const widget = WidgetOf(component)) widget->setFocus(Qt::TabFocusReason);
  Settle();
}

bool ScreenAccess::Pick(Component& component, int index) {
  QWidget* const widget = WidgetOf(component);
  if (!widget || index < 0) return false;
  GoTo(component);
  if (auto* const list = qobject_cast<QListView*>(widget)) {
    const QModelIndex item = list->model()->index(index, 0);
    if (!item.isValid()) return false;
    list->setCurrentIndex(item);
    ClickAt(component, Qt::LeftButton, false);
  } else if (auto* const combo = qobject_cast<QComboBox*>(widget)) {
    if (index >= combo->count()) return false;
    combo->setCurrentIndex(index);
    Q_EMIT combo->activated(index);
  } else if (auto* const pages = qobject_cast<QTabWidget*>(widget)) {
    if (index >= pages->count()) return false;
    pages->setCurrentIndex(index);
  } else if (auto* const tabs = qobject_cast<QTabBar*>(widget)) {
    if (index >= tabs->count()) return false;
    SendMouse(*tabs, QEvent::MouseButtonPress, tabs->tabRect(index).center(), Qt::LeftButton);
    SendMouse(*tabs, QEvent::MouseButtonRelease, tabs->tabRect(index).center(), Qt::LeftButton);
  } else {
    return false;
  }
  Settle();
  return true;
}

void ScreenAccess::Press(QWidget& widget, QKeyCombination key, const QString& text) {
  QKeyEvent first(QEvent::ShortcutOverride, key.key(), key.keyboardModifiers(), text);
  first.ignore();
  QApplication::sendEvent(&widget, &first);
  QAction* const action = first.isAccepted() ? nullptr : ActionOf(widget, key);
  if (action) {
    action->trigger();
    return;
  }
  SendKey(widget, QEvent::KeyPress, key, text);
  SendKey(widget, QEvent::KeyRelease, key, text);
}

void ScreenAccess::Type(Control& control, std::string_view text) {
  QWidget* const widget = WidgetOf(control);
  if (!widget) return;
  GoTo(control);
  widget->setFocus();
  for (const QChar character : ToScreen(text)) {
    const bool enter = character == u'\n';
    const auto key = enter ? Qt::Key_Return : static_cast<Qt::Key>(character.toUpper().unicode());
    const bool upper = character.isUpper();
    Press(*widget, QKeyCombination(upper ? Qt::ShiftModifier : Qt::NoModifier, key),
          enter ? QStringLiteral("\r") : QString(character));
  }
  Settle();
}

void ScreenAccess::PressKey(Component& component, std::string_view chord) {
  QWidget* widget = WidgetOf(component);
  if (!widget) return;
  GoTo(component);
  if (widget->focusPolicy() != Qt::NoFocus) widget->setFocus();
  const QKeyCombination key = KeyOf(chord);
  if (key.key() == Qt::Key_unknown) return;
  Press(*widget, key, TextOfKey(key));
  Settle();
}

void ScreenAccess::KeyDown(Component& component, std::string_view chord) {
  QWidget* const widget = WidgetOf(component);
  if (!widget) return;
  const QKeyCombination key = KeyOf(chord);
  SendKey(*widget, QEvent::ShortcutOverride, key, TextOfKey(key));
  SendKey(*widget, QEvent::KeyPress, key, TextOfKey(key));
  Settle();
}

void ScreenAccess::KeyUp(Component& component, std::string_view chord) {
  QWidget* const widget = WidgetOf(component);
  if (widget) SendKey(*widget, QEvent::KeyRelease, KeyOf(chord), {});
  Settle();
}

void ScreenAccess::Resize(const Form& form, float width, float height) {
  auto* const window = dynamic_cast<QWidget*>(screen_.ViewOf(form));
  if (!window) return;
  window->resize(window->width() + ToPixels(width - form.ScaleWidth, Unit::Twip),
                 window->height() + ToPixels(height - form.ScaleHeight, Unit::Twip));
  Settle();
}

Colour ScreenAccess::ColourAt(const PlotBox& picture, float x, float y) const {
  auto* const view = dynamic_cast<PlotView*>(WidgetOf(picture));
  return view ? view->ColourAt(x, y) : picture.BackColor.Get();
}

void ScreenAccess::Mouse(QEvent::Type act, const Control& control, const tarvik::Mouse& mouse) {
  constexpr Qt::MouseButton kButtons[] = {Qt::NoButton, Qt::LeftButton, Qt::RightButton};
  constexpr int kKinds = static_cast<int>(std::size(kButtons));
  QWidget* const widget = WidgetOf(control);
  if (!widget) return;
  const Qt::MouseButton button = mouse.button < kKinds ? kButtons[mouse.button] : Qt::MiddleButton;
  const bool moves = act == QEvent::MouseMove;
  const Qt::MouseButtons down = act == QEvent::MouseButtonRelease ? Qt::NoButton : button;
  Qt::KeyboardModifiers modifiers;
  modifiers.setFlag(Qt::ShiftModifier, (mouse.shift & shift::kShift) != 0);
  modifiers.setFlag(Qt::ControlModifier, (mouse.shift & shift::kCtrl) != 0);
  QWidget& surface = Surface(*widget);
  const QPointF place(InPixels(mouse.x).count, InPixels(mouse.y).count);
  QMouseEvent event(act, place, surface.mapToGlobal(place), moves ? Qt::NoButton : button, down, modifiers);
  QApplication::sendEvent(&surface, &event);
  Settle();
}

/// The hand goes down on the item and out of the list, where the drag begins. The platform without a screen
/// has no drag of its own: what would arrive in the pane is sent there.
void ScreenAccess::Drop(ListBox& from, Pane& to, std::size_t position) {
  auto* const view = dynamic_cast<PaneView*>(WidgetOf(to));
  QWidget* const list = WidgetOf(from);
  if (!view || !list) return;
  QWidget& surface = Surface(*list);
  const QPointF start = PlaceToClick(*list);
  SendMouse(surface, QEvent::MouseButtonPress, start, Qt::LeftButton);
  SendMouse(surface, QEvent::MouseMove, start + QPointF(1, 0), Qt::LeftButton);
  SendMouse(surface, QEvent::MouseMove, QPointF(surface.width() + 1, start.y()), Qt::LeftButton);
  QMimeData data;
  data.setText(ToScreen(from.DragText.Get()));
  const QPoint place = view->CaretAt(position).center();
  QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view->viewport(), &enter);
  QDropEvent drop(QPointF(place), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view->viewport(), &drop);
  Settle();
}

void ScreenAccess::Close(const Form& form) {
  if (FormView* const view = screen_.ViewOf(form)) view->CloseByUser();
  Settle();
}

}  // namespace tarvik::screen
