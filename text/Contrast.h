// How well two colours can be told apart, and inks that can be read on a background.
#pragma once

#include "text/Colour.h"

namespace tarvik {

/// What the joystick file's background is at first, for which the other colours are chosen; the macro file's
/// is lighter.
inline constexpr Colour kUsualBackground{14285565};

/// What small letters need, by the Web Content Accessibility Guidelines 2.2, section 1.4.3.
inline constexpr double kReadable = 4.5;

/// The contrast ratio of the same guidelines: from 1, of a colour with itself, to 21, of black and white.
[[nodiscard]] double ContrastOf(Colour left, Colour right);

/// The ink itself where its contrast with the background is enough; otherwise the ink mixed with as little
/// white or black as gives that contrast, or with all of it where none does.
[[nodiscard]] Colour WithContrast(Colour ink, Colour background, double contrast);

/// An ink as it is painted on a background that a user has chosen, when `usual` is the one that the inks were
/// chosen for: it can be read as well as there, or well enough. Black gives way to a white that does not
/// dazzle.
[[nodiscard]] Colour LegibleInk(Colour ink, Colour background, Colour usual);

}  // namespace tarvik
