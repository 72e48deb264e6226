// Where keys and mouse buttons are for the system: positions, as linux/input-event-codes.h numbers them. A
// key goes by the place of its code on the keyboard and never by a letter, so that the layout in use does not
// matter.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "play/Engine.h"

namespace tarvik::play {

/// A KEY_ or BTN_ number of the system.
using Position = std::uint16_t;

/// The highest of the positions below, and one more.
inline constexpr Position kPositions = 0x113;
inline constexpr Position kFirstMouseButton = 0x110;

/// None for what has none: codes that no key sends, and the shifts that a keyboard makes up around some keys.
[[nodiscard]] std::optional<Position> PositionOf(Key key);
/// Of a key or a button of the mouse; ports and resets have none.
[[nodiscard]] std::optional<Position> PositionOf(const Output& output);
/// The key's name in the files, or which button of the mouse it is.
[[nodiscard]] std::string NameAt(Position position);
/// Shift, Ctrl, Alt and the like.
[[nodiscard]] bool IsModifier(Position position);

}  // namespace tarvik::play
