#include "screen/MumWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QTime>
#include <QWindow>

#include "screen/WindowTitle.h"
#include "screen/pages/FormLayout.h"
#include "screen/services/LockKeys.h"
#include "screen/widgets/Conversions.h"
#include "screen/widgets/FileDrop.h"
#include "screen/widgets/Icons.h"
#include "screen/widgets/MenuBuilder.h"
#include "screen/widgets/StatusBarView.h"

namespace tarvik::screen {
namespace {

constexpr int kPanelInterval = 250;  // milliseconds
/// While the user is at another program, whose machine this is then.
constexpr int kPanelIntervalElsewhere = 1000;
constexpr int kSettlingTime = 200;  // milliseconds
constexpr QSize kSmallest(480, 320);

}  // namespace

MumWindow::MumWindow(Application& application, Mum& mum, Clock clock)
    : FormView(mum),
      application_(application),
      mum_(mum),
      area_(new QWidget),
      empty_(new QWidget),
      closeChild_(new QToolButton(this)) {
  setMinimumSize(kSmallest);
  setContextMenuPolicy(Qt::NoContextMenu);
  setAcceptDrops(true);
  LayOut();
  ShowCloseChild();
  menus_ = MakeMenus(mum.menus, bindings_);
  RemoveChild();
  if (clock == Clock::Real) {
    KeepPanels();
    BindTimers();
  }
  settling_.setSingleShot(true);
  settling_.setInterval(clock == Clock::Real ? kSettlingTime : 0);
  connect(&settling_, &QTimer::timeout, this, [this] { Settle(); });
  BindWindow();
}

/// The toolbar stands above the area of the child.
void MumWindow::LayOut() {
  auto* const centre = new QWidget;
  auto* const toolbar = new ToolbarView(mum_.Toolbar1, mum_.Picture1, kSwatchButton, bindings_, centre);
  centre->setLayout(Framed({}, Spaced(Column({toolbar, Filling(area_)}), 0)));
  area_->setLayout(Framed({}, Column({empty_})));
  const FormLayout in(bindings_);
  empty_->setLayout(Column({Stretch(), Row({Stretch(), in.Show(mum_.EmptyText), Stretch()}),
                            Row({Stretch(), in.Show(mum_.EmptyEditor), Stretch()}), Stretch()}));
  area_->setBackgroundRole(QPalette::Window);
  area_->setAutoFillBackground(true);
  setCentralWidget(centre);
  setStatusBar(new StatusBarView(mum_.StatusBar, mum_.ProgressBar1, mum_.ProblemCount, bindings_, this));
}

void MumWindow::ShowCloseChild() {
  closeChild_->setIcon(Icon("close"));
  closeChild_->setAutoRaise(true);
  closeChild_->setFocusPolicy(Qt::NoFocus);
  closeChild_->setToolTip(tr("Close the editor"));
  closeChild_->setAccessibleName(closeChild_->toolTip());
  connect(
      closeChild_, &QAbstractButton::clicked, this, [this] { application_.CloseEditor(); },
      Qt::QueuedConnection);
}

/// A session winds these timers by itself.
void MumWindow::BindTimers() {
  for (Component* const child : application_.mum().Children()) {
    if (auto* const timer = dynamic_cast<Timer*>(child)) bindings_.Bind(*timer, *new QTimer(this));
  }
}

MumWindow::~MumWindow() {
  if (waiting_) QApplication::restoreOverrideCursor();
}

void MumWindow::BindWindow() {
  bindings_.Shows(mum_, *this);
  PlaceWindow();
  BindTitle(mum_, *this, bindings_);
  bindings_.Bind(mum_.MousePointer, [this] { ShowPointer(); });
  bindings_.Bind(mum_.WindowState, [this] { TakeState(); });
  bindings_.Bind(mum_.Visible, [this] {
    if (mum_.Visible) {
      ShowWindow();
    } else {
      hide();
    }
  });
}

/// Keeps the panels of the time and of the lock keys as they are now.
void MumWindow::KeepPanels() {
  auto* const timer = new QTimer(this);
  const auto show = [this] {
    mum_.StatusBar.Panels(panel::kClock).Text = FromScreen(QTime::currentTime().toString(u"hh:mm"));
    if (const auto keys = ReadLockKeys()) {
      mum_.StatusBar.Panels(panel::kCaps).Enabled = keys->caps;
      mum_.StatusBar.Panels(panel::kNum).Enabled = keys->num;
    } else {
      for (const int panel : {panel::kCaps, panel::kNum}) mum_.StatusBar.Panels(panel).Text = std::string();
    }
  };
  connect(timer, &QTimer::timeout, this, show);
  const auto start = [timer](Qt::ApplicationState state) {
    timer->start(state == Qt::ApplicationActive ? kPanelInterval : kPanelIntervalElsewhere);
  };
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, timer, start);
  start(QGuiApplication::applicationState());
  show();
}

// Children and menus.

void MumWindow::ShowChild(QWidget& view, const std::vector<std::unique_ptr<QMenu>>& menus) {
  menuBar()->clear();
  for (const auto& menu : menus) menuBar()->addMenu(menu.get());
  menuBar()->setCornerWidget(closeChild_);
  closeChild_->show();
  child_ = &view;
  area_->layout()->addWidget(child_);
  empty_->hide();
  child_->show();
}

void MumWindow::RemoveChild() {
  menuBar()->clear();
  for (const auto& menu : menus_) menuBar()->addMenu(menu.get());
  closeChild_->hide();
  empty_->show();
  if (!child_) return;
  child_->hide();
  std::exchange(child_, nullptr)->setParent(nullptr);
}

// Files from a file manager.

/// Whatever the file manager has in mind, the files stay where they are.
void MumWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (FilesIn(*event->mimeData()).empty()) return;
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

/// The file manager waits until this returns, and there may be questions to answer first.
void MumWindow::dropEvent(QDropEvent* event) {
  const std::vector<std::string> files = FilesIn(*event->mimeData());
  if (files.empty()) return;
  event->setDropAction(Qt::CopyAction);
  event->accept();
  QMetaObject::invokeMethod(
      this,
      [this, files] {
        if (TakesDrops(*this)) application_.FilesDropped(files);
      },
      Qt::QueuedConnection);
}

// The window.

void MumWindow::PlaceWindow() {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  QRect frame(ToPixels(mum_.Left), ToPixels(mum_.Top), ToPixels(mum_.Width), ToPixels(mum_.Height));
  frame.setSize(frame.size().expandedTo(kSmallest).boundedTo(screen.size()));
  frame.moveLeft(std::clamp(frame.left(), screen.left(), screen.right() + 1 - frame.width()));
  frame.moveTop(std::clamp(frame.top(), screen.top(), screen.bottom() + 1 - frame.height()));
  move(frame.topLeft());
  resize(frame.size());
  toFit_ = frame;
}

void MumWindow::ShowWindow() {
  if (mum_.WindowState == window::kMaximised) {
    showMaximized();
  } else if (mum_.WindowState == window::kMinimised) {
    showMinimized();
  } else {
    showNormal();
  }
}

/// The window manager would hear nothing of a change back to the state that it still shows. Such a change
/// waits until it has made the one before.
void MumWindow::TakeState() {
  const bool differs = isVisible() && mum_.WindowState != StateOnScreen();
  stateWaits_ = differs && settling_.isActive();
  if (differs && !stateWaits_) ShowWindow();
}

void MumWindow::Settle() {
  TakeState();
  TakePlace();
}

/// The stored size is that of the whole frame, whose edges are known only once the window stands. A window
/// that fills the screen gets it when it does so no more. What it has until then is not worth keeping.
bool MumWindow::FitFrame() {
  const QMargins margins = windowHandle() ? windowHandle()->frameMargins() : QMargins();
  if (!toFit_ || margins.isNull()) return false;
  const QRect frame = *std::exchange(toFit_, {});
  setGeometry(frame.marginsRemoved(margins));
  return true;
}

int MumWindow::StateOnScreen() const {
  return isMinimized() ? window::kMinimised : isMaximized() ? window::kMaximised : window::kNormal;
}

/// A window that is changing its state passes through others on the way, with the size of one and the place
/// of another.
bool MumWindow::HasPlaceOfItsOwn() const {
  return isVisible() && !settling_.isActive() && !isFullScreen() && StateOnScreen() == window::kNormal;
}

void MumWindow::TakePlace() {
  if (!HasPlaceOfItsOwn() || FitFrame()) return;
  const QRect frame = frameGeometry();
  mum_.Left = InTwips(Pixels{frame.left()});
  mum_.Top = InTwips(Pixels{frame.top()});
  mum_.Width = InTwips(Pixels{frame.width()});
  mum_.Height = InTwips(Pixels{frame.height()});
}

void MumWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange) TakePlace();
  if (event->type() != QEvent::WindowStateChange) return;
  if (!stateWaits_) mum_.WindowState = StateOnScreen();
  settling_.start();
}

void MumWindow::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  TakePlace();
}

void MumWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  TakePlace();
  mum_.ScaleWidth = InTwips(Pixels{area_->width()}).count;
  mum_.ScaleHeight = InTwips(Pixels{area_->height()}).count;
  mum_.Resize();
}

void MumWindow::closeEvent(QCloseEvent* event) { event->setAccepted(application_.CloseMum()); }

void MumWindow::ShowPointer() {
  const bool wait = mum_.MousePointer == pointer::kHourglass;
  if (wait == waiting_) return;
  waiting_ = wait;
  if (wait) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

}  // namespace tarvik::screen
