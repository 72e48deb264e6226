#include "screen/widgets/Uncovered.h"

#include <QApplication>
#include <QWindow>
#include <algorithm>

namespace tarvik::screen {
namespace {

bool IsKeptAbove(const QWidget& window, const QWidget& widget) {
  const Qt::WindowType type = window.windowType();
  return window.isVisible() && !window.isMinimized() && &window != widget.window() &&
         (type == Qt::Window || type == Qt::Dialog) && window.windowHandle() &&
         window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
}

}  // namespace

QRect UncoveredPart(const QWidget& widget, const QRect& line) {
  QRegion left(QRect(line.left(), 0, std::max(1, line.width()), widget.height()) & widget.rect());
  for (const QWidget* const window : QApplication::topLevelWidgets()) {
    if (!IsKeptAbove(*window, widget)) continue;
    // What stands beside the window is of no use either, since a line goes on below the window.
    QRect covered(widget.mapFromGlobal(window->frameGeometry().topLeft()), window->frameGeometry().size());
    if (!covered.intersects(left.boundingRect())) continue;
    covered.setLeft(0);
    covered.setRight(widget.width());
    left -= covered;
  }
  const auto tallest = std::max_element(left.begin(), left.end(), [](const QRect& one, const QRect& other) {
    return one.height() < other.height();
  });
  if (tallest == left.end()) return widget.rect();
  return {0, tallest->top(), widget.width(), tallest->height()};
}

}  // namespace tarvik::screen
