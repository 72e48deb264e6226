#include "keys/Xtest.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <linux/input-event-codes.h>

#include <utility>

namespace tarvik::keys {
namespace {

/// The X server numbers keys from 8.
constexpr unsigned kKeycodes = 8;

bool hasFailed = false;  // a handler of errors can reach nothing but what is global

int NoteError(Display*, XErrorEvent*) {
  hasFailed = true;
  return 0;
}

/// As X counts the buttons of the mouse: the one in the middle is the second.
unsigned ButtonOf(unsigned position) {
  if (position == BTN_LEFT) return Button1;
  return position == BTN_RIGHT ? Button3 : Button2;
}

}  // namespace

struct XServer::Connection {
  Display* display = nullptr;
};

std::unique_ptr<XServer> XServer::Open() {
  XSetErrorHandler(NoteError);
  Display* const display = XOpenDisplay(nullptr);
  if (!display) return nullptr;
  auto connection = std::make_unique<Connection>();
  connection->display = display;
  return std::unique_ptr<XServer>(new XServer(std::move(connection)));
}

XServer::XServer(std::unique_ptr<Connection> connection) : connection_(std::move(connection)) {}

XServer::~XServer() { XCloseDisplay(connection_->display); }

bool XServer::HasTest() const {
  int ignored = 0;
  return XTestQueryExtension(connection_->display, &ignored, &ignored, &ignored, &ignored) != 0;
}

int XServer::Send(const keypipe::Stroke& stroke) {
  Display* const display = connection_->display;
  const Bool down = stroke.down ? True : False;
  if (stroke.position < BTN_MISC) {
    XTestFakeKeyEvent(display, stroke.position + kKeycodes, down, CurrentTime);
  } else {
    XTestFakeButtonEvent(display, ButtonOf(stroke.position), down, CurrentTime);
  }
  XFlush(display);
  return 0;
}

bool XServer::TakeHotKey() {
  Display* const display = connection_->display;
  hasFailed = false;
  // With the locks of capitals and numbers, too.
  for (const unsigned locks : {0U, static_cast<unsigned>(LockMask), static_cast<unsigned>(Mod2Mask),
                               static_cast<unsigned>(LockMask | Mod2Mask)}) {
    XGrabKey(display, KEY_END + kKeycodes, ControlMask | Mod1Mask | locks, DefaultRootWindow(display), True,
             GrabModeAsync, GrabModeAsync);
  }
  XSync(display, False);
  return !hasFailed;
}

int XServer::File() const { return ConnectionNumber(connection_->display); }

bool XServer::HotKeyPressed() {
  bool pressed = false;
  while (XPending(connection_->display) > 0) {
    XEvent event;
    XNextEvent(connection_->display, &event);
    pressed |= event.type == KeyPress;
  }
  return pressed;
}

}  // namespace tarvik::keys
