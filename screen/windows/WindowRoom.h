// How large a window may be.
#pragma once

#include <QScreen>
#include <QWidget>

namespace tarvik::screen {

/// What the screen of `window` has left within the edges that the window manager puts around another one, and
/// below a menu bar.
[[nodiscard]] inline QSize RoomOnScreen(const QWidget& window) {
  constexpr QSize kEdges(16, 56);
  return window.screen()->availableGeometry().size() - kEdges;
}

}  // namespace tarvik::screen
