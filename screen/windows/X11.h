// The X server, where the program runs on one.
#pragma once

// By the name that Xlib gives it.
using Display = struct _XDisplay;

namespace tarvik::screen {

/// Null under another window system.
[[nodiscard]] Display* X11();

}  // namespace tarvik::screen
