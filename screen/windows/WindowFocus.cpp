#include "screen/windows/WindowFocus.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QWindow>

namespace tarvik::screen {
namespace {

constexpr qint64 kPatience = 300;  // milliseconds; a window may also be refused

struct Request {
  QPointer<QWidget> window;
  QElapsedTimer since;

  [[nodiscard]] bool IsOpen() const { return window && !since.hasExpired(kPatience); }
};

Request& LastRequest() {
  static Request request;
  return request;
}

}  // namespace

void AskForWindow(const QWidget& widget) {
  QWidget* const window = widget.window();
  Request& last = LastRequest();
  const bool other = last.IsOpen() && last.window != window;
  if (!widget.isVisible() || (widget.isActiveWindow() && !other)) return;
  last.window = window;
  last.since.start();
  window->activateWindow();
}

bool AwaitsOtherThan(const QWindow* window) {
  Request& last = LastRequest();
  if (!last.IsOpen()) return false;
  if (last.window->windowHandle() != window) return true;
  last.window = nullptr;
  return false;
}

}  // namespace tarvik::screen
