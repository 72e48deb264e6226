// What a user sees of a component: its properties read off the widget or action that shows it, for session
// tests.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "screen/Screen.h"

namespace tarvik::screen {

/// What is on show of the component's property, as its text; nothing where the screen does not tell.
[[nodiscard]] std::optional<std::string> ReadOff(const Screen& screen, const Component& component,
                                                 std::string_view property);

}  // namespace tarvik::screen
