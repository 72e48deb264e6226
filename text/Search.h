// Searching text without regard to case, at the speed of a plain substring search. Panes and the colouring of
// whole files use it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// A text to look for, made ready once for any number of searches.
class SearchPattern {
 public:
  SearchPattern(std::string_view needle, int options);

  /// The first hit that lies within `start` and `end`. A whole word is one with no letter, digit or
  /// underscore on either side. An empty needle is never found.
  [[nodiscard]] std::optional<std::size_t> FindIn(const SearchableText& in, std::size_t start,
                                                  std::size_t end) const;

 private:
  /// Two characters of the needle that stand for it while a text is gone through: the rarest in files of this
  /// kind.
  struct Marks {
    std::size_t first = 0;
    std::size_t second = 0;
  };

  [[nodiscard]] static Marks MarksOf(std::string_view needle);
  [[nodiscard]] std::size_t FindPlain(std::string_view text, std::size_t start) const;

  int options_;
  std::string needle_;  // in lower case unless case matters
  Marks marks_;
};

/// Where the hits begin, none of which reaches into the next one.
[[nodiscard]] std::vector<std::size_t> FindAll(const SearchableText& in, std::string_view needle,
                                               int options);

/// One search for `needle`.
[[nodiscard]] std::optional<std::size_t> FindText(const SearchableText& in, std::string_view needle,
                                                  std::size_t start, std::size_t end, int options);

}  // namespace tarvik
