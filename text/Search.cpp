#include "text/Search.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "text/CodePage.h"

namespace tarvik {
namespace {

// memmem stays linear for every needle, which no search of the standard library does.
std::size_t FindAnywhere(std::string_view text, std::string_view needle, std::size_t start) {
  const void* hit = memmem(text.data() + start, text.size() - start, needle.data(), needle.size());
  return hit ? static_cast<std::size_t>(static_cast<const char*>(hit) - text.data()) : std::string_view::npos;
}

constexpr std::size_t kBlock = 128;

/// The higher the rarer; what is not in the list is rarest.
std::size_t Rarity(char c) {
  return std::string_view(" -ert\r\naonls_di#hmcpfubg/=wk0y1()2xv3.45~67:q9j").find(ToLower(c));
}

/// Whether a needle could begin within the block. The compiler makes a few vector instructions of it.
bool MayBegin(const char* firsts, const char* seconds, char first, char second) {
  unsigned char any = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    any |= static_cast<unsigned char>((firsts[i] == first) & (seconds[i] == second));
  }
  return any != 0;
}

}  // namespace

bool IsWholeWord(std::string_view text, std::size_t hit, std::size_t length) {
  const bool joinedBefore = hit > 0 && IsWordCharacter(text[hit - 1]);
  const bool joinedBehind = hit + length < text.size() && IsWordCharacter(text[hit + length]);
  return !joinedBefore && !joinedBehind;
}

SearchPattern::Marks SearchPattern::MarksOf(std::string_view needle) {
  Marks marks;
  for (std::size_t i = 1; i < needle.size(); ++i) {
    if (Rarity(needle[i]) > Rarity(needle[marks.first])) {
      marks.second = std::exchange(marks.first, i);
    } else if (marks.second == marks.first || Rarity(needle[i]) > Rarity(needle[marks.second])) {
      marks.second = i;
    }
  }
  return marks;
}

SearchPattern::SearchPattern(std::string_view needle, int options)
    : options_(options),
      needle_(options & find::kMatchCase ? std::string(needle) : LowerCase(needle)),
      marks_(MarksOf(needle_)) {}

/// A block at a time by the needle's marks; a text in which these often deceive is left to the search that no
/// text can slow down.
std::size_t SearchPattern::FindPlain(std::string_view text, std::size_t start) const {
  const char first = needle_[marks_.first];
  const char second = needle_[marks_.second];
  std::size_t deceived = 0;
  std::size_t at = start;
  for (; at + needle_.size() + kBlock <= text.size(); at += kBlock) {
    if (!MayBegin(text.data() + at + marks_.first, text.data() + at + marks_.second, first, second)) continue;
    for (std::size_t i = at; i < at + kBlock; ++i) {
      if (text[i + marks_.first] != first || text[i + marks_.second] != second) continue;
      if (text.substr(i, needle_.size()) == needle_) return i;
      ++deceived;
    }
    if (deceived > kBlock + (at - start) / 4) break;
  }
  return FindAnywhere(text, needle_, at);
}

std::optional<std::size_t> SearchPattern::FindIn(const SearchableText& in, std::size_t start,
                                                 std::size_t end) const {
  end = std::min(end, in.text.size());
  if (needle_.empty()) return {};
  const std::string_view text = (options_ & find::kMatchCase ? in.text : in.folded).substr(0, end);
  while (start < end) {
    const std::size_t hit = FindPlain(text, start);
    if (hit == std::string_view::npos) return {};
    if (!(options_ & find::kWholeWord) || IsWholeWord(in.text, hit, needle_.size())) return hit;
    start = hit + 1;
  }
  return {};
}

std::vector<std::size_t> FindAll(const SearchableText& in, std::string_view needle, int options) {
  const SearchPattern pattern(needle, options);
  std::vector<std::size_t> hits;
  for (std::size_t from = 0; const auto hit = pattern.FindIn(in, from, in.text.size());) {
    hits.push_back(*hit);
    from = *hit + needle.size();
  }
  return hits;
}

std::optional<std::size_t> FindText(const SearchableText& in, std::string_view needle, std::size_t start,
                                    std::size_t end, int options) {
  if (start >= std::min(end, in.text.size())) return {};
  return SearchPattern(needle, options).FindIn(in, start, end);
}

}  // namespace tarvik
