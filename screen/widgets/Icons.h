// Pictures by name, drawn for this program: one for each meaning. Toolbar, menus, tabs, status bar and lists
// take theirs from here. The icon theme is for the toolkit's own dialogs alone.
#pragma once

#include <QIcon>
#include <string_view>

namespace tarvik::screen {

/// What the toolkit's dialogs show comes from Breeze, light or dark as the palette is, and from the desktop's
/// own theme where Breeze lacks a name. Disabled icons fade, which tells them apart on dark palettes too.
void ChooseIconTheme();

/// Empty for a name that has no drawing. It is in the palette's text colour with one colour beside it, or all
/// of it in `ink`.
[[nodiscard]] QIcon Icon(std::string_view name, const QColor& ink = QColor());

}  // namespace tarvik::screen
