// Where a text can be seen although windows stand above its own: those of tools that are kept on top.
#pragma once

#include <QWidget>

namespace tarvik::screen {

/// From the top of a widget to its bottom, the tallest part in which nothing covers the columns of `line`, a
/// rectangle in it. All of the widget where nothing is left.
[[nodiscard]] QRect UncoveredPart(const QWidget& widget, const QRect& line);

}  // namespace tarvik::screen
