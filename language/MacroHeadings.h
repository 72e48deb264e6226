// The headings that part a macro file into its matters, and how one is written.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace tarvik {

/// The usual headings of a macro file.
[[nodiscard]] std::span<const char* const> MacroHeadings();
/// The three lines that make a text a heading of the macro file.
[[nodiscard]] std::vector<std::string> HeadingBlock(const std::string& text);

}  // namespace tarvik
