// How a failing expectation shows texts: in words. Each level has such a header for its own values, over
// those of the levels below it.
#pragma once

#include <array>
#include <ostream>

#include "text/RichText.h"

namespace tarvik {

void PrintTo(const Range& range, std::ostream* out);
void PrintTo(const ColourRuns& colours, std::ostream* out);
/// The text as a literal, and the colours below it.
void PrintTo(const RichText& text, std::ostream* out);

/// "black", "red 255 green 0 blue 0". A colour is a number to the compiler, so that nothing prints it so by
/// itself.
[[nodiscard]] std::string ColourInWords(Colour colour);

/// A text as a literal: line breaks as \r\n, what is not printable as \x80.
[[nodiscard]] std::string Quoted(std::string_view text);

/// The name of a value whose number is its place among the names.
template <class Enum, std::size_t N>
void PrintName(Enum value, const std::array<const char*, N>& names, std::ostream* out) {
  const auto place = static_cast<std::size_t>(value);
  *out << (place < N ? names[place] : "?");
}

}  // namespace tarvik
