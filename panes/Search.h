// Searching text without regard to case, at the speed of a plain substring search. Panes and the colouring of
// whole files use it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvik {

/// Options of a search, added up.
namespace find {
inline constexpr int kWholeWord = 2;
inline constexpr int kMatchCase = 4;
/// Leave the selection alone instead of selecting the hit.
inline constexpr int kKeepSelection = 8;
}  // namespace find

/// A text together with its lower-case form. Refers to both; they must outlive it.
struct SearchableText {
  std::string_view text;
  std::string_view folded;
};

/// Whether no letter, digit or underscore stands on either side of the `length` characters from `hit` on.
[[nodiscard]] bool IsWholeWord(std::string_view text, std::size_t hit, std::size_t length);

/// The first hit that lies within `start` and `end`. A whole word is one with no letter, digit or underscore
/// on either side. An empty `needle` is never found.
[[nodiscard]] std::optional<std::size_t> FindText(const SearchableText& in, std::string_view needle,
                                                  std::size_t start, std::size_t end, int options);

}  // namespace tarvik
