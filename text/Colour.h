// Colours as settings, files and controls keep them.
#pragma once

#include <cstdint>

namespace tarvik {

/// Blue in the third byte, green in the second, red lowest: 255 is pure red. With the highest bit it is a
/// colour of the desktop's, by its number.
enum class Colour : std::uint32_t {};

inline constexpr Colour kBlack{0};
inline constexpr Colour kWhite{0xFFFFFF};
/// What the desktop writes on: white, or black on a dark one.
inline constexpr Colour kDesktopPaper{0x80000005};

constexpr std::uint32_t NumberOf(Colour colour) { return static_cast<std::uint32_t>(colour); }
constexpr Colour Rgb(unsigned red, unsigned green, unsigned blue) {
  return Colour{red | green << 8 | blue << 16};
}
constexpr unsigned RedOf(Colour colour) { return NumberOf(colour) & 0xFF; }
constexpr unsigned GreenOf(Colour colour) { return NumberOf(colour) >> 8 & 0xFF; }
constexpr unsigned BlueOf(Colour colour) { return NumberOf(colour) >> 16 & 0xFF; }
constexpr bool IsOfDesktop(Colour colour) { return NumberOf(colour) >> 31 != 0; }

}  // namespace tarvik
