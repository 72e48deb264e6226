#include "panes/Search.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/CodePage.h"

namespace tarvik {
namespace {

// memmem stays linear for every needle, which no search of the standard library does.
std::size_t FindAnywhere(std::string_view text, std::string_view needle, std::size_t start) {
  const void* hit = memmem(text.data() + start, text.size() - start, needle.data(), needle.size());
  return hit ? static_cast<std::size_t>(static_cast<const char*>(hit) - text.data()) : std::string_view::npos;
}

constexpr std::size_t kBlock = 128;

/// Two characters of a needle that stand for it while a text is gone through: the rarest in files of this
/// kind.
struct Marks {
  std::size_t first = 0;
  std::size_t second = 0;

  explicit Marks(std::string_view needle) {
    for (std::size_t i = 1; i < needle.size(); ++i) {
      if (Rarity(needle[i]) > Rarity(needle[first])) {
        second = std::exchange(first, i);
      } else if (second == first || Rarity(needle[i]) > Rarity(needle[second])) {
        second = i;
      }
    }
  }

 private:
  /// The higher the rarer; what is not in the list is rarest.
  static std::size_t Rarity(char c) {
    return std::string_view(" -ert\r\naonls_di#hmcpfubg/=wk0y1()2xv3.45~67:q9j").find(ToLower(c));
  }
};

/// Whether a needle could begin within the block. The compiler makes a few vector instructions of it.
bool MayBegin(const char* block, const Marks& marks, char first, char second) {
  unsigned char any = 0;
  for (std::size_t i = 0; i < kBlock; ++i) {
    any |=
        static_cast<unsigned char>((block[i + marks.first] == first) & (block[i + marks.second] == second));
  }
  return any != 0;
}

/// A block at a time by the needle's marks; a text in which these often deceive is left to the search that no
/// text can slow down.
std::size_t FindPlain(std::string_view text, std::string_view needle, std::size_t start) {
  const Marks marks(needle);
  const char first = needle[marks.first];
  const char second = needle[marks.second];
  std::size_t deceived = 0;
  std::size_t at = start;
  for (; at + needle.size() + kBlock <= text.size(); at += kBlock) {
    if (!MayBegin(text.data() + at, marks, first, second)) continue;
    for (std::size_t i = at; i < at + kBlock; ++i) {
      if (text[i + marks.first] != first || text[i + marks.second] != second) continue;
      if (text.substr(i, needle.size()) == needle) return i;
      ++deceived;
    }
    if (deceived > kBlock + (at - start) / 4) break;
  }
  return FindAnywhere(text, needle, at);
}

}  // namespace

bool IsWholeWord(std::string_view text, std::size_t hit, std::size_t length) {
  const bool joinedBefore = hit > 0 && IsWordCharacter(text[hit - 1]);
  const bool joinedBehind = hit + length < text.size() && IsWordCharacter(text[hit + length]);
  return !joinedBefore && !joinedBehind;
}

std::optional<std::size_t> FindText(const SearchableText& in, std::string_view needle, std::size_t start,
                                    std::size_t end, int options) {
  end = std::min(end, in.text.size());
  if (needle.empty() || start >= end) return {};
  const bool matchCase = (options & find::kMatchCase) != 0;
  const std::string folded = matchCase ? std::string() : LowerCase(needle);
  const std::string_view wanted = matchCase ? needle : std::string_view(folded);
  const std::string_view text = (matchCase ? in.text : in.folded).substr(0, end);
  while (start < end) {
    const std::size_t hit = FindPlain(text, wanted, start);
    if (hit == std::string_view::npos) return {};
    if (!(options & find::kWholeWord) || IsWholeWord(in.text, hit, wanted.size())) return hit;
    start = hit + 1;
  }
  return {};
}

}  // namespace tarvik
