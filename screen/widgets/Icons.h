// Pictures by name: the program's own drawings where it has one, else the icon theme's. Toolbar, tabs, status
// bar and lists take theirs from here.
#pragma once

#include <QIcon>
#include <string_view>

namespace tarvik::screen {

/// Takes Breeze, light or dark as the palette is, so that all icons are of one hand; the desktop's own theme
/// where Breeze lacks a name. Disabled icons fade, which tells them apart on dark palettes too.
void ChooseIconTheme();

/// Empty for a name that is nowhere. Own drawings are in `ink`, the palette's text colour if not given.
[[nodiscard]] QIcon Icon(std::string_view name, const QColor& ink = QColor());

}  // namespace tarvik::screen
