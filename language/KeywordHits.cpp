#include "language/KeywordHits.h"

#include <array>

#include "platform/CodePage.h"

namespace tarvik {
namespace {

/// The first two characters of a text as one number. Behind the end of the text stands a NUL.
std::size_t PairAt(std::string_view text, std::size_t at) {
  const std::size_t first = static_cast<unsigned char>(text[at]);
  const std::size_t second = at + 1 < text.size() ? static_cast<unsigned char>(text[at + 1]) : 0;
  return first << 8 | second;
}

/// Which keywords can begin with which pair of characters.
class PairTable {
 public:
  explicit PairTable(const std::vector<std::string>& keywords) : groups_(1) {
    for (std::size_t i = 0; i < keywords.size(); ++i) {
      const std::size_t first = PairAt(keywords[i], 0);
      const bool single = keywords[i].size() == 1;
      for (std::size_t pair = first; pair <= first + (single ? 0xFF : 0); ++pair) {
        if (group_[pair] == 0) {
          group_[pair] = static_cast<unsigned short>(groups_.size());
          groups_.emplace_back();
        }
        groups_[group_[pair]].push_back(i);
      }
    }
  }

  /// The keywords to look at, null for nearly every pair.
  [[nodiscard]] const std::vector<std::size_t>* At(std::size_t pair) const {
    return group_[pair] ? &groups_[group_[pair]] : nullptr;
  }

 private:
  std::array<unsigned short, 0x10000> group_{};
  std::vector<std::vector<std::size_t>> groups_;  // the first stands for no keyword
};

bool IsHit(const SearchableText& in, const Pass& pass, std::string_view folded, std::size_t at) {
  if (in.folded.substr(at, folded.size()) != folded) return false;
  if ((pass.options & find::kMatchCase) && in.text.substr(at, folded.size()) != pass.text) return false;
  return !(pass.options & find::kWholeWord) || IsWholeWord(in.text, at, folded.size());
}

}  // namespace

KeywordHits::KeywordHits(const SearchableText& in, std::span<const Pass> passes) : hits_(passes.size()) {
  std::vector<std::string> folded;
  for (const Pass& pass : passes) folded.push_back(LowerCase(pass.text));
  const PairTable table(folded);
  for (std::size_t at = 0; at < in.folded.size(); ++at) {
    const std::vector<std::size_t>* candidates = table.At(PairAt(in.folded, at));
    if (!candidates) continue;
    for (const std::size_t pass : *candidates) {
      if (IsHit(in, passes[pass], folded[pass], at)) hits_[pass].push_back(at);
    }
  }
}

}  // namespace tarvik
