#include "support/Display.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <poll.h>

#include <bitset>

namespace tarvik::keys {
namespace {

constexpr unsigned kKeycodes = 8;
constexpr unsigned kSide = 400;

}  // namespace

struct Client::Connection {
  Display* display = XOpenDisplay(nullptr);
};

/// It has the focus, and the pointer is in it.
Client::Client() : connection_(std::make_unique<Connection>()) {
  Display* const display = connection_->display;
  const Window window = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, kSide, kSide, 0, 0, 0);
  XSelectInput(display, window,
               KeyPressMask | KeyReleaseMask | ButtonPressMask | ButtonReleaseMask | StructureNotifyMask);
  XMapWindow(display, window);
  XEvent event;
  do {
    XNextEvent(display, &event);
  } while (event.type != MapNotify);
  XSetInputFocus(display, window, RevertToParent, CurrentTime);
  XWarpPointer(display, None, window, 0, 0, 0, 0, 1, 1);
  XSync(display, False);
}

Client::~Client() { XCloseDisplay(connection_->display); }

keypipe::Stroke Client::Next() {
  Display* const display = connection_->display;
  constexpr int kLongest = 1000;
  pollfd wait = {ConnectionNumber(display), POLLIN, 0};
  while (XPending(display) == 0) {
    if (poll(&wait, 1, kLongest) == 0) return {};
  }
  XEvent event;
  XNextEvent(display, &event);
  if (event.type == KeyPress || event.type == KeyRelease) {
    return {static_cast<std::uint16_t>(event.xkey.keycode - kKeycodes), event.type == KeyPress};
  }
  constexpr std::array<std::uint16_t, 4> kButtons = {0, 0x110, 0x112, 0x111};
  return {kButtons.at(event.xbutton.button), event.type == ButtonPress};
}

int Client::KeysDown() {
  std::array<char, 32> keys = {};
  XQueryKeymap(connection_->display, keys.data());
  int count = 0;
  for (const char byte : keys)
    count += static_cast<int>(std::bitset<8>(static_cast<unsigned char>(byte)).count());
  return count;
}

void Client::PressByHand(std::initializer_list<unsigned> positions) {
  for (const int down : {True, False}) {
    for (const unsigned position : positions) {
      XTestFakeKeyEvent(connection_->display, position + kKeycodes, down, CurrentTime);
    }
  }
  XFlush(connection_->display);
}

void FocusTopWindow() {
  Display* const display = XOpenDisplay(nullptr);
  Window largest = None;
  int area = 0;
  constexpr int kLooks = 100;
  for (int look = 0; look < kLooks && largest == None; ++look) {
    Window ignored = 0;
    Window* children = nullptr;
    unsigned count = 0;
    XQueryTree(display, DefaultRootWindow(display), &ignored, &ignored, &children, &count);
    for (unsigned i = 0; i < count; ++i) {
      XWindowAttributes found;
      if (XGetWindowAttributes(display, children[i], &found) == 0 || found.map_state != IsViewable) continue;
      if (found.width * found.height <= area) continue;
      area = found.width * found.height;
      largest = children[i];
    }
    if (children) XFree(children);
    if (largest == None) usleep(100000);
  }
  XSetInputFocus(display, largest, RevertToParent, CurrentTime);
  XSync(display, False);
  XCloseDisplay(display);
}

}  // namespace tarvik::keys
