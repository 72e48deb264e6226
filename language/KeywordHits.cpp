#include "language/KeywordHits.h"

#include <array>
#include <bit>

#include "text/CodePage.h"

namespace tarvik {
namespace {

using PassSet = std::uint64_t;  // a bit for each pass of a table

/// The passes whose keywords may have a character as their first, second and third one.
constexpr std::size_t kPlaces = 3;
using Wanted = std::array<PassSet, kPlaces>;

/// The character at a position; behind the text stands a NUL, which is part of no word and no keyword.
char At(std::string_view text, std::size_t at) { return at < text.size() ? text[at] : '\0'; }

bool MatchesCase(const Pass& pass) { return (pass.options & find::kMatchCase) != 0; }

std::array<Wanted, 256> WantedBy(std::span<const Pass> passes) {
  std::array<Wanted, 256> wanted{};
  for (std::size_t place = 0; place < kPlaces; ++place) {
    PassSet any = 0;  // those whose keywords have ended before
    for (std::size_t i = 0; i < passes.size(); ++i) {
      const PassSet bit = PassSet{1} << i;
      if (place >= passes[i].text.size()) {
        any |= bit;
        continue;
      }
      const char own = passes[i].text[place];
      const bool matchCase = MatchesCase(passes[i]);
      wanted[codepage::Byte(matchCase ? own : ToLower(own))][place] |= bit;
      wanted[codepage::Byte(matchCase ? own : ToUpper(own))][place] |= bit;
    }
    for (Wanted& character : wanted) character[place] |= any;
  }
  return wanted;
}

/// Whether the rest of a keyword, of which the first `kPlaces` characters were found, is there too.
bool RestIsThere(const Pass& pass, std::string_view text, std::size_t hit) {
  for (std::size_t i = kPlaces; i < pass.text.size(); ++i) {
    const char found = At(text, hit + i);
    if (found != pass.text[i] && (MatchesCase(pass) || ToLower(found) != ToLower(pass.text[i]))) return false;
  }
  if (pass.kind == PassKind::FollowedWord && At(text, hit + pass.text.size()) != pass.follow) return false;
  return !(pass.options & find::kWholeWord) || IsWholeWord(text, hit, pass.text.size());
}

}  // namespace

KeywordHits::KeywordHits(std::string_view text, std::span<const Pass> passes)
    : text_(text), passes_(passes), hits_(passes.size()) {
  const std::array<Wanted, 256> wanted = WantedBy(passes);
  // The passes that want the last character as their first one, and the last two as their first two.
  PassSet one = 0;
  PassSet two = 0;
  std::size_t behind = 0;
  // Two characters that are part of no word and no keyword show what the text ends with.
  for (const std::string_view part : {text, std::string_view("\0\0", kPlaces - 1)}) {
    for (const char c : part) {
      const Wanted& here = wanted[codepage::Byte(c)];
      const PassSet three = two & here[2];
      two = one & here[1];
      one = here[0];
      ++behind;
      if (three != 0) Add(three, behind - kPlaces);
    }
  }
}

void KeywordHits::Add(std::uint64_t passes, std::size_t hit) {
  for (; passes != 0; passes &= passes - 1) {
    const auto pass = static_cast<std::size_t>(std::countr_zero(passes));
    if (RestIsThere(passes_[pass], text_, hit)) hits_[pass].push_back(static_cast<std::uint32_t>(hit));
  }
}

}  // namespace tarvik
