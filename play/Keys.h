// Keys by their names in the files.
#pragma once

#include <optional>
#include <string_view>

#include "language/KeyTable.h"
#include "play/Program.h"

namespace tarvik::play {

inline constexpr Key kShift = 0x12;
inline constexpr Key kControl = 0x14;
inline constexpr Key kAlt = 0x11;

struct NamedKey {
  Key key = 0;
  bool shifted = false;
};

/// The key that sends what the keyboard on screen tells of it, but where the table errs.
[[nodiscard]] Key KeyOf(const KeyRow& row);
/// None for a word that names no key.
[[nodiscard]] std::optional<NamedKey> KeyNamed(std::string_view word);

}  // namespace tarvik::play
