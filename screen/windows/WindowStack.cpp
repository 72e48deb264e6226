#include "screen/windows/WindowStack.h"

#include <QApplication>
#include <QHash>
#include <QWindow>
#include <chrono>
#include <utility>

#include "screen/windows/X11.h"

#ifdef TARVIK_X11
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <xcb/xcb.h>
#endif

namespace tarvik::screen {

#ifdef TARVIK_X11

namespace {

constexpr std::chrono::milliseconds kSettlingTime(50);
constexpr int kAttempts = 3;

QHash<WId, QWidget*> OpenWindows() {
  QHash<WId, QWidget*> open;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowHandle()) open[window->windowHandle()->winId()] = window;
  }
  return open;
}

}  // namespace

WindowStack::WindowStack(Restacked restacked) : restacked_(restacked) {
  if (!X11()) return;
  stacking_ = XInternAtom(X11(), "_NET_CLIENT_LIST_STACKING", False);
  qApp->installNativeEventFilter(this);
  settling_.setSingleShot(true);
  settling_.setInterval(kSettlingTime);
  QObject::connect(&settling_, &QTimer::timeout, &settling_, [this] { Look(); });
}

bool WindowStack::nativeEventFilter(const QByteArray& /*type*/, void* message, qintptr* /*result*/) {
  constexpr unsigned kSentByAnother = 0x80;
  const auto& event = *static_cast<const xcb_generic_event_t*>(message);
  const bool changed = (event.response_type & ~kSentByAnother) == XCB_PROPERTY_NOTIFY;
  if (changed && static_cast<const xcb_property_notify_event_t*>(message)->atom == stacking_)
    settling_.start();
  return false;
}

/// A window manager that has put a window back where it was, and so undone what its stacking brought about,
/// is asked again; one that refuses may tell of a change all the same, and is left in peace.
void WindowStack::Look() {
  constexpr long kMost = 10'000;
  constexpr int kLong = 32;  // bits, whatever the machine makes of them
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long after = 0;
  unsigned char* data = nullptr;
  XGetWindowProperty(X11(), DefaultRootWindow(X11()), stacking_, 0, kMost, False, XA_WINDOW, &type, &format,
                     &count, &after, &data);
  const QHash<WId, QWidget*> open = OpenWindows();
  QList<QWidget*> windows;
  if (format == kLong) {
    const auto* const ids = reinterpret_cast<const Window*>(data);
    for (unsigned long i = 0; i < count; ++i) {
      if (QWidget* const window = open.value(ids[i])) windows += window;
    }
  }
  if (data) XFree(data);
  if (windows != std::exchange(windows_, windows)) told_ = 0;
  if (told_++ < kAttempts) restacked_(windows);
}

#else

WindowStack::WindowStack(Restacked restacked) : restacked_(restacked) {}
bool WindowStack::nativeEventFilter(const QByteArray&, void*, qintptr*) { return false; }
void WindowStack::Look() {}

#endif

WindowStack::~WindowStack() { qApp->removeNativeEventFilter(this); }

}  // namespace tarvik::screen
