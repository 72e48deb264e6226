#include "events/Hands.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace tarvik::events {
namespace {

constexpr Qt::Key kKeys[] = {
    Qt::Key_A,      Qt::Key_B,       Qt::Key_C,      Qt::Key_V,        Qt::Key_X,     Qt::Key_Z,
    Qt::Key_R,      Qt::Key_1,       Qt::Key_0,      Qt::Key_Slash,    Qt::Key_Space, Qt::Key_Return,
    Qt::Key_Tab,    Qt::Key_Escape,  Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,    Qt::Key_Down,
    Qt::Key_Home,   Qt::Key_End,     Qt::Key_PageUp, Qt::Key_Menu,     Qt::Key_F1,    Qt::Key_Backspace,
    Qt::Key_Delete, Qt::Key_Backtab, Qt::Key_Enter,  Qt::Key_PageDown, Qt::Key_Insert};
constexpr Qt::KeyboardModifiers kModifiers[] = {Qt::NoModifier,      Qt::NoModifier,  Qt::NoModifier,
                                                Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier};

std::string NameOf(const QWidget& widget) {
  const QString name = widget.objectName().isEmpty() ? widget.windowTitle() : widget.objectName();
  return std::string(widget.metaObject()->className()) + " " + name.toStdString();
}

bool TakesInput(const QWidget& window) {
  const QWidget* const modal = QApplication::activeModalWidget();
  return window.isVisible() && window.windowHandle() && (!modal || modal == &window);
}

/// The toolkit's own way in, below which nothing differs from a real key or mouse. What follows later than at
/// once comes with the next turn of the event loop.
class Input {
 public:
  explicit Input(QWidget& window) : window_(window.windowHandle()) {}

  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    const char typed = modifiers & Qt::AltModifier ? '\0' : QTest::keyToAscii(key);
    QString text = typed ? QString(QLatin1Char(typed)) : QString();
    if (modifiers & Qt::ShiftModifier) text = text.toUpper();
    if (modifiers & Qt::ControlModifier) text = typed >= 'a' ? QString(QChar(typed - 'a' + 1)) : QString();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      if (window_) qt_handleKeyEvent(window_, type, key, modifiers, text);
    }
  }

  void Mouse(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {}) {
    if (!window_ || !window_->isVisible()) return;
    const bool moves = type == QEvent::MouseMove;
    const Qt::MouseButtons down = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    clock_ += kBetween;
    qt_handleMouseEvent(window_, place, window_->mapToGlobal(place), down, moves ? Qt::NoButton : button,
                        type, modifiers, clock_);
  }

  void Click(QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {}) {
    Mouse(QEvent::MouseButtonPress, place, button, modifiers);
    Mouse(QEvent::MouseButtonRelease, place, button, modifiers);
  }

  /// The next click is no part of a double click.
  void Pause() { clock_ += kLongBetween; }

 private:
  static constexpr int kBetween = 10;  // milliseconds
  static constexpr int kLongBetween = 1000;
  static inline int clock_ = 0;

  QPointer<QWindow> window_;
};

/// What the user can choose there, without the entries that only open a menu.
std::vector<QAction*> EntriesOf(const QWidget& window) {
  std::vector<QAction*> entries;
  for (QAction* const action : window.findChildren<QAction*>()) {
    const bool inMenu = qobject_cast<QMenu*>(action->parent());
    if (inMenu && !action->menu() && action->isEnabled() && action->isVisible()) entries.push_back(action);
  }
  return entries;
}

}  // namespace

std::string Hands::Act() {
  QWidget* const window = Window();
  if (!window) return "no window";
  using Means = std::string (Hands::*)(QWidget&);
  constexpr Means kMeans[] = {&Hands::Key,   &Hands::Key,   &Hands::Key,    &Hands::Key,  &Hands::Click,
                              &Hands::Click, &Hands::Click, &Hands::Choose, &Hands::Drag, &Hands::Wheel};
  const bool popUp = window == QApplication::activePopupWidget();
  if (chance_.OneIn(popUp ? 6 : 40)) return Close(*window);
  if (chance_.OneIn(60)) return Resize(*window);
  return (this->*chance_.OneOf(kMeans))(*window);
}

/// The pop-up that is open, else the active window or, now and then, any other that takes input.
QWidget* Hands::Window() {
  if (QWidget* const popUp = QApplication::activePopupWidget()) return popUp;
  std::vector<QWidget*> windows;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (TakesInput(*window) && window->windowType() != Qt::ToolTip) windows.push_back(window);
  }
  if (windows.empty()) return nullptr;
  // The toolkit lists them in no order that would come again.
  std::sort(windows.begin(), windows.end(),
            [](const QWidget* a, const QWidget* b) { return a->objectName() < b->objectName(); });
  QWidget* const active = QApplication::activeWindow();
  if (active && TakesInput(*active) && !chance_.OneIn(8)) return active;
  QWidget* const other = chance_.OneOf(windows);
  other->activateWindow();
  return other;
}

/// The middle of something that is on show there, or anywhere.
QPoint Hands::PlaceIn(QWidget& window) {
  std::vector<QWidget*> parts;
  for (QWidget* const part : window.findChildren<QWidget*>()) {
    if (part->isVisible() && part->window() == &window && !part->visibleRegion().isEmpty())
      parts.push_back(part);
  }
  const QRect anywhere = window.rect();
  const QPoint any(static_cast<int>(chance_.Below(static_cast<std::size_t>(anywhere.width()) + 1)),
                   static_cast<int>(chance_.Below(static_cast<std::size_t>(anywhere.height()) + 1)));
  if (parts.empty() || chance_.OneIn(3)) return any;
  QWidget* const part = chance_.OneOf(parts);
  return part->mapTo(&window, part->rect().center());
}

std::string Hands::Key(QWidget& window) {
  const bool function = chance_.OneIn(8);
  const auto key = function ? static_cast<Qt::Key>(Qt::Key_F1 + chance_.Below(12)) : chance_.OneOf(kKeys);
  const Qt::KeyboardModifiers modifiers = chance_.OneOf(kModifiers);
  const std::string said =
      "key " + QKeySequence(key | modifiers).toString().toStdString() + " in " + NameOf(window);
  Input(window).Key(key, modifiers);
  return said;
}

std::string Hands::Click(QWidget& window) {
  const QPoint place = PlaceIn(window);
  const QWidget* const under = window.childAt(place);
  const std::string said = "click on " + NameOf(under ? *under : window) + " in " + NameOf(window);
  const Qt::MouseButton button = chance_.OneIn(5) ? Qt::RightButton : Qt::LeftButton;
  Input input(window);
  input.Click(place, button, chance_.OneOf(kModifiers));
  if (chance_.OneIn(5)) input.Click(place, button);
  input.Pause();
  return said;
}

std::string Hands::Drag(QWidget& window) {
  const QPoint from = PlaceIn(window);
  const std::string said = "drag in " + NameOf(window);
  Input input(window);
  input.Mouse(QEvent::MouseButtonPress, from, Qt::LeftButton);
  QPoint at = from;
  for (int step = 0; step < 3; ++step) {
    at += QPoint(25, static_cast<int>(chance_.Below(60)) - 30);
    input.Mouse(QEvent::MouseMove, at, Qt::LeftButton);
  }
  input.Mouse(QEvent::MouseButtonRelease, at, Qt::LeftButton);
  input.Pause();
  return said;
}

std::string Hands::Wheel(QWidget& window) {
  QWidget* const under = window.childAt(PlaceIn(window));
  QWidget& at = under ? *under : window;
  const QPoint middle = at.rect().center();
  const int turn = chance_.OneIn(2) ? 120 : -120;
  QWheelEvent event(middle, at.mapToGlobal(middle), {}, {0, turn}, {}, {}, Qt::NoScrollPhase, false);
  const std::string said = "wheel on " + NameOf(at);
  QApplication::sendEvent(&at, &event);
  return said;
}

std::string Hands::Choose(QWidget& window) {
  std::vector<QAction*> entries = EntriesOf(window);
  if (entries.empty()) return Click(window);
  QAction* const entry = chance_.OneOf(entries);
  const std::string said = "choose " + entry->objectName().toStdString() + " in " + NameOf(window);
  entry->trigger();
  return said;
}

std::string Hands::Close(QWidget& window) {
  const std::string said = "close " + NameOf(window);
  window.close();
  return said;
}

std::string Hands::Resize(QWidget& window) {
  window.resize(static_cast<int>(200 + chance_.Below(1000)), static_cast<int>(100 + chance_.Below(800)));
  return "resize " + NameOf(window);
}

std::string Hands::GiveUp() {
  if (QWidget* const popUp = QApplication::activePopupWidget()) return Close(*popUp);
  if (QWidget* const modal = QApplication::activeModalWidget()) return Close(*modal);
  QWidget* const window = Window();
  if (!window) return "nothing to give up";
  Input input(*window);
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    input.Mouse(QEvent::MouseButtonRelease, {}, Qt::LeftButton);
  }
  input.Key(Qt::Key_Escape, {});
  return "Escape in " + NameOf(*window);
}

}  // namespace tarvik::events
