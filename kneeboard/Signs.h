// Small signs before what a control does, drawn so that no font needs to have them.
#pragma once

#include <cstdint>
#include <string_view>

#include "kneeboard/Contents.h"
#include "kneeboard/Sheet.h"

namespace tarvik::kneeboard {

enum class Sign : std::uint8_t {
  None,
  Up,
  Right,
  Down,
  Left,
  Middle,
  SwitchUp,
  SwitchMiddle,
  SwitchDown,
  ShiftIn,
  ShiftOut,
  Press,
  Release,
  WayUp,  ///< of an axis
  WayDown,
  OnStick,   ///< a swatch of a heading: full for what a control sends
  OffStick,  ///< and hollow, with a stroke through it, for what none does
};

[[nodiscard]] Sign SignOf(Dogfight dogfight);
[[nodiscard]] Sign SignOf(Shift shift);
[[nodiscard]] Sign SignOf(Moment moment);
/// Of a place of a hat or rocker.
[[nodiscard]] Sign SignOf(char position);

/// What the legend says of it; empty for a sign that tells itself.
[[nodiscard]] std::string_view MeaningOf(Sign sign);

/// How wide a sign is beside words of so many points, with the blank behind it.
[[nodiscard]] constexpr double SignWidth(double size) { return size * 1.15 * kPoint; }

/// What Sheet::marks has for a sign, and for a letter of a modifier: 'H'.
[[nodiscard]] constexpr std::uint64_t MarkOf(Sign sign) {
  return std::uint64_t{1} << static_cast<unsigned>(sign);
}
[[nodiscard]] constexpr std::uint64_t MarkOf(char letter) {
  return std::uint64_t{1} << (32U + static_cast<unsigned>(letter - 'A'));
}

/// Draws it at the left of a line of words of so many points that begins there.
void PutSign(Sheet& onto, Sign sign, Spot at, double size, Colour colour);

}  // namespace tarvik::kneeboard
