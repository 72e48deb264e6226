// The blanks around a text.
#pragma once

#include <algorithm>
#include <string_view>

namespace tarvik {

/// The text without what stands around it of `blanks`, each of whose characters counts as one.
[[nodiscard]] constexpr std::string_view WithoutBlanks(std::string_view text, std::string_view blanks = " ") {
  const std::size_t first = std::min(text.find_first_not_of(blanks), text.size());
  return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

}  // namespace tarvik
