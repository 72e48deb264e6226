// Keys as a session writes them: "Ctrl+Z", "Return", "Shift+Right", "F8", "Num+7", "Shift".
#pragma once

#include <optional>
#include <string_view>

#include "controls/Controls.h"

namespace tarvik::session {

/// The key of a chord, by its Windows virtual-key code; nothing where no key has that name. What stands in
/// front of the last "+" are modifiers, in any order.
[[nodiscard]] std::optional<Key> ParseChord(std::string_view chord);

}  // namespace tarvik::session
