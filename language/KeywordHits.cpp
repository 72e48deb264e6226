#include "language/KeywordHits.h"

#include <algorithm>
#include <array>

#include "platform/CodePage.h"

namespace tarvik {
namespace {

/// The first two characters of a text as a number below kPairs, the same for few pairs of letters only.
/// Behind the end of the text stands a NUL.
constexpr std::size_t kPairs = 0x1000;
std::size_t Pair(std::size_t first, std::size_t second) { return (first << 5 ^ second) % kPairs; }
std::size_t PairAt(std::string_view text, std::size_t at) {
  const std::size_t second = at + 1 < text.size() ? static_cast<unsigned char>(text[at + 1]) : 0;
  return Pair(static_cast<unsigned char>(text[at]), second);
}

/// Which keywords can begin with which pair of characters.
class PairTable {
 public:
  struct Group {
    std::vector<std::size_t> keywords;
    bool insideWords = false;  ///< one of them may begin inside a word
  };

  PairTable(const std::vector<std::string>& keywords, std::span<const Pass> passes) : groups_(1) {
    for (std::size_t i = 0; i < keywords.size(); ++i) {
      if (keywords[i].size() > 1) {
        AddTo(PairAt(keywords[i], 0), i);
        continue;
      }
      const std::size_t first = static_cast<unsigned char>(keywords[i][0]);
      for (std::size_t second = 0; second < 0x100; ++second) AddTo(Pair(first, second), i);
    }
    for (Group& group : groups_) {
      group.insideWords = std::any_of(
          group.keywords.begin(), group.keywords.end(),
          [passes](std::size_t keyword) { return !(passes[keyword].options & find::kWholeWord); });
    }
  }

  /// What to look at, null for nearly every pair.
  [[nodiscard]] const Group* At(std::size_t pair) const {
    return group_[pair] ? &groups_[group_[pair]] : nullptr;
  }

 private:
  void AddTo(std::size_t pair, std::size_t keyword) {
    if (group_[pair] == 0) {
      group_[pair] = static_cast<unsigned short>(groups_.size());
      groups_.emplace_back();
    }
    groups_[group_[pair]].keywords.push_back(keyword);
  }

  std::array<unsigned short, kPairs> group_{};
  std::vector<Group> groups_;  // the first stands for no keyword
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
  const PairTable table(folded, passes);
  for (std::size_t at = 0; at < in.folded.size(); ++at) {
    const PairTable::Group* candidates = table.At(PairAt(in.folded, at));
    if (!candidates) continue;
    if (!candidates->insideWords && at > 0 && IsWordCharacter(in.folded[at - 1])) continue;
    for (const std::size_t pass : candidates->keywords) {
      if (IsHit(in, passes[pass], folded[pass], at)) hits_[pass].push_back(at);
    }
  }
}

}  // namespace tarvik
