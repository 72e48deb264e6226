#include "screen/ToolWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStyle>
#include <QTabWidget>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "screen/WindowTitle.h"
#include "screen/widgets/Conversions.h"
#include "screen/windows/WindowFocus.h"
#include "screen/windows/WindowRoom.h"

namespace tarvik::screen {
namespace {

constexpr int kFromTheRight = 40;
constexpr int kFromTheTop = 120;

/// Whether there is anything in the window that makes use of more room: a list, a text, a picture. What only
/// holds others does not count.
bool Grows(const QWidget& window) {
  const QList<QWidget*> parts = window.findChildren<QWidget*>();
  return std::any_of(parts.begin(), parts.end(), [](const QWidget* part) {
    const bool holds = qobject_cast<const QTabWidget*>(part) || qobject_cast<const QStackedWidget*>(part);
    return !holds && (part->sizePolicy().expandingDirections() & Qt::Vertical);
  });
}

/// Moves all that lies in the window to where it can be scrolled, in as much of the room as it has a use for.
void ScrollPage(QWidget& window, const QSize& room) {
  auto* const page = new QWidget;
  page->setLayout(window.layout());
  auto* const area = new QScrollArea;
  area->setWidget(page);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  const int bar = area->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  area->setMinimumSize((page->sizeHint() + QSize(bar, bar)).boundedTo(room));
  window.setLayout(Framed({}, Column({area})));
}

}  // namespace

ToolWindow::ToolWindow(Application& application, Form& form, const MakePage& makePage, QWidget& frame,
                       Clock clock)
    : QDialog(&frame), FormView(form), application_(application), frame_(frame) {
  LayOut(makePage(FormLayout(bindings_)));
  if (const Menus* const menus = form.MenuBar()) MakeMenuBar(*menus);
  if (!form.OwnsKeys) GiveMnemonics(*this);
  for (QWidget* const child : findChildren<QWidget*>()) child->installEventFilter(this);
  if (clock == Clock::Real) RunTimers();
  if (form.OwnsKeys) others_.emplace(*this);
  bindings_.Shows(form, *this);
  BindTitle(form, *this, bindings_);
  bindings_.Bind(form.WindowState, [this] { ShowMinimised(this->form().WindowState == window::kMinimised); });
  bindings_.Bind(form.Topmost, [] { ArrangeWindows(); });
  bindings_.Keep(form.Moved.Connect([this] {
    placed_ = true;
    if (isVisible()) move(PlaceOfForm());
  }));
  bindings_.Keep(form.Raised.Connect([this] {
    raise();
    AskForWindow(*this);
  }));
  bindings_.Bind(form.Visible, [this] { ShowWindow(); });
}

/// A page that is larger than the screen is scrolled.
void ToolWindow::LayOut(QLayout* page) {
  setLayout(page);
  const bool grows = Grows(*this);
  const QSize needed = grows ? page->totalMinimumSize() : page->totalSizeHint();
  const QSize room = RoomOnScreen(frame_);
  if (needed.boundedTo(room) != needed) {
    ScrollPage(*this, room);
  } else if (!grows) {
    page->setSizeConstraint(QLayout::SetFixedSize);
  }
}

void ToolWindow::MakeMenuBar(const Menus& menus) {
  menus_ = MakeMenus(menus, bindings_);
  PopUpOnDemand(menus_, form(), *this, bindings_);
  auto* const bar = new QMenuBar(this);
  for (const auto& menu : menus_) bar->addMenu(menu.get());
  layout()->setMenuBar(bar);
}

void ToolWindow::RunTimers() {
  for (Component* const child : form().Children()) {
    if (auto* const timer = dynamic_cast<Timer*>(child)) bindings_.Bind(*timer, *new QTimer(this));
  }
}

void ToolWindow::ShowWindow() {
  if (!form().Visible) {
    hide();
    return;
  }
  setModal(form().Modal);
  setWindowFlag(Qt::WindowMinimizeButtonHint, !form().Modal);
  ChooseOwner();
  if (!testAttribute(Qt::WA_Resized)) TakeRoom();
  if (!isVisible() && !form().Modal) move(placed_ ? PlaceOfForm() : PlaceBeside());
  if (!isVisible() && form().Modal && frame_.isMaximized()) move(PlaceInTheMiddle());
  show();
  raise();
  AskForWindow(*this);
}

/// A window that fills the screen does so again when it comes back.
void ToolWindow::ShowMinimised(bool minimised) {
  if (minimised != isMinimized()) setWindowState(windowState() ^ Qt::WindowMinimized);
}

/// A modal tool belongs to the modal window that opened it, if any. Other tools have no owner, so that they
/// minimise by themselves and the frame may cover them.
void ToolWindow::ChooseOwner() {
  create();
  const QWidget* const asking = form().Modal ? QApplication::activeModalWidget() : nullptr;
  windowHandle()->setTransientParent(asking && asking != this ? asking->windowHandle() : nullptr);
}

/// As large as it likes to be: the toolkit itself would keep it to two thirds of the screen.
void ToolWindow::TakeRoom() {
  resize(sizeHint().boundedTo(RoomOnScreen(frame_)).expandedTo(minimumSizeHint()));
}

/// A place at the frame's right, where the window covers little of the text and is whole on the screen.
QPoint ToolWindow::PlaceBeside() const {
  const QRect frame = frame_.geometry();
  const QRect screen = frame_.screen()->availableGeometry();
  const int lowest = screen.top() + std::max(0, RoomOnScreen(frame_).height() - height());
  return {std::max(frame.left(), frame.right() - width() - kFromTheRight),
          std::min(frame.top() + kFromTheTop, lowest)};
}

/// The middle of the screen, for a frame that fills it or is about to: at the start it has not grown yet.
QPoint ToolWindow::PlaceInTheMiddle() const {
  return frame_.screen()->availableGeometry().center() - rect().center();
}

/// The form's own place, or the nearest one within reach: it may have stood on another screen.
QPoint ToolWindow::PlaceOfForm() const {
  constexpr int kWithinReach = 80;
  const QRect screen = frame_.screen()->availableGeometry();
  const auto within = [](Twips place, int low, int high) {
    return std::clamp(ToPixels(place), low, std::max(low, high - kWithinReach));
  };
  return {within(form().Left, screen.left(), screen.right()),
          within(form().Top, screen.top(), screen.bottom())};
}

void ToolWindow::moveEvent(QMoveEvent* event) {
  QDialog::moveEvent(event);
  if (!isVisible() || isMinimized() || isMaximized()) return;
  form().Left = InTwips(Pixels{pos().x()});
  form().Top = InTwips(Pixels{pos().y()});
}

void ToolWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) application_.Activated(form());
}

void ToolWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange)
    form().WindowState = isMinimized() ? window::kMinimised : window::kNormal;
}

void ToolWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(!form().Visible || application_.CloseTool(form()));
}

/// The form goes before its window, which may be in the middle of an event.
void ToolWindow::Retire() {
  hide();
  retired_ = true;
  bindings_.Release();
  deleteLater();
}

/// The form may be gone when its window is still told something, by a menu of one of its fields, say.
bool ToolWindow::event(QEvent* event) {
  return retired_ && event->type() != QEvent::DeferredDelete ? false : QDialog::event(event);
}

bool ToolWindow::FormTakesPress(const QKeyEvent& event) {
  if (others_ && others_->Take(event)) return true;
  Key key = keys_.Read(event);
  form().KeyDown(key);
  if (TypesNothing(event) && !form().OwnsKeys) return true;
  bool taken = key.code == 0;
  for (const QChar typed : event.text()) {
    int character = typed < u' ' ? typed.unicode() : static_cast<unsigned char>(FromScreen(typed));
    form().KeyPress(character);
    taken = taken || character == 0;
  }
  return taken;
}

/// A key that is held repeats its press alone.
bool ToolWindow::FormTakesRelease(const QKeyEvent& event) {
  if (event.isAutoRepeat() || (others_ && others_->Take(event))) return form().OwnsKeys;
  Key key = keys_.Read(event);
  form().KeyUp(key);
  return form().OwnsKeys;
}

/// Keys that are the form's own are no shortcuts, and no input method keeps them to itself.
bool ToolWindow::KeepsForForm(QEvent& event) const {
  if (!form().OwnsKeys) return false;
  if (event.type() == QEvent::InputMethodQuery) {
    static_cast<QInputMethodQueryEvent&>(event).setValue(Qt::ImEnabled, false);
  } else if (event.type() != QEvent::ShortcutOverride) {
    return false;
  }
  event.accept();
  return true;
}

bool ToolWindow::eventFilter(QObject* watched, QEvent* event) {
  if (retired_) return false;
  if (watched != focusWidget()) return QDialog::eventFilter(watched, event);
  if (KeepsForForm(*event)) return true;
  if (event->type() == QEvent::FocusOut) keys_.Forget();
  const bool taken =
      (event->type() == QEvent::KeyPress && FormTakesPress(static_cast<QKeyEvent&>(*event))) ||
      (event->type() == QEvent::KeyRelease && FormTakesRelease(static_cast<QKeyEvent&>(*event)));
  if (taken) event->accept();
  return taken || QDialog::eventFilter(watched, event);
}

void ToolWindow::reject() {
  for (Component* const child : form().Children()) {
    auto* const button = dynamic_cast<CommandButton*>(child);
    if (button && button->Cancel && button->Enabled) return button->Click();
  }
  close();
}

}  // namespace tarvik::screen
