#include "panes/Search.h"

#include <cstring>

#include "platform/CodePage.h"

namespace tarvik {
namespace {

// memmem stays linear for every needle, which no search of the standard library does.
std::size_t FindPlain(std::string_view text, std::string_view needle, std::size_t start) {
  const void* hit = memmem(text.data() + start, text.size() - start, needle.data(), needle.size());
  return hit ? static_cast<std::size_t>(static_cast<const char*>(hit) - text.data()) : std::string_view::npos;
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
