// Which window the program wants to be active. The window system takes its time over it, and what it tells
// meanwhile may be out of date.
#pragma once

#include <QWidget>

namespace tarvik::screen {

/// Makes the widget's window the active one, unless it is and no other was asked for since.
void AskForWindow(const QWidget& widget);
/// Another window was asked for a moment ago and has not come yet.
[[nodiscard]] bool AwaitsOtherThan(const QWindow* window);

}  // namespace tarvik::screen
