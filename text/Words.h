// The words of the two files: what stands between blanks, brackets, commas and equals signs.
#pragma once

#include <string_view>

#include "text/RichText.h"

namespace tarvik {

/// The word that the caret stands in, before or behind; empty where there is none.
[[nodiscard]] Range WordAt(std::string_view text, std::size_t caret);

/// The first place from `start` on, and before `end`, where the word stands as a whole, with no regard to
/// case; `end` where there is none.
[[nodiscard]] std::size_t FindWord(std::string_view text, std::string_view word, std::size_t start,
                                   std::size_t end);

/// Two brackets that belong together. The opening one of a RAW statement is that word with it.
struct BracketPair {
  Range opening;
  Range closing;
  friend bool operator==(const BracketPair&, const BracketPair&) = default;
};

/// The pair of which one stands at the caret, before or behind it. Neither is empty, or, where a bracket is
/// alone, the other one is; both are where no bracket stands there, and where the other one is farther away
/// than anybody would look.
[[nodiscard]] BracketPair BracketsAt(std::string_view text, std::size_t caret);

}  // namespace tarvik
