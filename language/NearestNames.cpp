#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>

#include "language/KeyTable.h"
#include "language/Names.h"
#include "text/CodePage.h"

namespace tarvik::model {
namespace {

/// In the order of the letters, a name that is mistyped stands beside what is meant: seen from its beginning
/// where its end is wrong, seen from its end otherwise.
constexpr std::size_t kNeighbours = 4;
constexpr std::size_t kMostNames = 3;
/// A shorter word is like too many.
constexpr std::size_t kShortestName = 2;
/// A longer word is no name, and would take its time.
constexpr std::size_t kLongestName = 64;

/// As many letters may be wrong as the word allows: none of one, one of three, never more than three.
std::size_t MostWrong(std::string_view name) {
  return std::min<std::size_t>((name.size() + 1) / 3, kMostNames);
}

using Row = std::array<std::uint8_t, kLongestName + 1>;

bool Same(char one, char other) { return ToLower(one) == ToLower(other); }

/// Takes the letters off that both begin or end with, which cost nothing.
void WithoutSameEnds(std::string_view& one, std::string_view& other) {
  while (!one.empty() && !other.empty() && Same(one.front(), other.front())) {
    one.remove_prefix(1);
    other.remove_prefix(1);
  }
  while (!one.empty() && !other.empty() && Same(one.back(), other.back())) {
    one.remove_suffix(1);
    other.remove_suffix(1);
  }
}

}  // namespace

std::size_t EditDistance(std::string_view one, std::string_view other, std::size_t most) {
  WithoutSameEnds(one, other);
  const std::size_t longer = std::max(one.size(), other.size());
  if (longer - std::min(one.size(), other.size()) > most || longer > kLongestName) return most + 1;
  std::array<Row, 3> rows;
  std::iota(rows[0].begin(), rows[0].begin() + static_cast<std::ptrdiff_t>(other.size()) + 1,
            std::uint8_t{0});
  for (std::size_t i = 1; i <= one.size(); ++i) {
    Row& row = rows[i % 3];
    const Row& above = rows[(i + 2) % 3];
    const Row& twoAbove = rows[(i + 1) % 3];
    row[0] = static_cast<std::uint8_t>(i);
    std::size_t least = i;
    for (std::size_t j = 1; j <= other.size(); ++j) {
      const bool same = Same(one[i - 1], other[j - 1]);
      std::size_t cost = std::min({above[j] + 1U, row[j - 1] + 1U, above[j - 1] + (same ? 0U : 1U)});
      const bool exchanged =
          i > 1 && j > 1 && Same(one[i - 1], other[j - 2]) && Same(one[i - 2], other[j - 1]);
      if (exchanged) cost = std::min<std::size_t>(cost, twoAbove[j - 2] + 1U);
      row[j] = static_cast<std::uint8_t>(cost);
      least = std::min(least, cost);
    }
    if (least > most) return most + 1;
  }
  return std::min<std::size_t>(rows[one.size() % 3][other.size()], most + 1);
}

NearestNames::NearestNames(const NameIndex& index) {
  for (const MacroNames& macro : index.Macros()) {
    if (!macro.definitions.empty()) Add(macro.name);
  }
  for (const std::string_view prefix : kPrefixes) Add(prefix);
  for (const KeyRow& key : kKeys) Add(key.name);
  std::ranges::sort(forward_, {}, &Key::letters);
  std::ranges::sort(backward_, {}, &Key::letters);
}

void NearestNames::Add(std::string_view name) {
  if (name.size() < kShortestName || name.size() > kLongestName) return;
  const std::string key = LowerCase(name);
  forward_.push_back({key, names_.size()});
  backward_.push_back({{key.rbegin(), key.rend()}, names_.size()});
  names_.emplace_back(name);
}

std::vector<std::string> NearestNames::To(std::string_view name) const {
  if (name.size() > kLongestName) return {};
  const std::string key = LowerCase(name);
  std::vector<std::size_t> near;
  Gather(forward_, key, near);
  Gather(backward_, {key.rbegin(), key.rend()}, near);
  std::ranges::sort(near);
  near.erase(std::unique(near.begin(), near.end()), near.end());

  const std::size_t most = MostWrong(name);
  std::vector<std::pair<std::size_t, std::size_t>> ranked;
  for (const std::size_t each : near) {
    const std::size_t distance = EditDistance(key, names_[each], most);
    if (distance <= most) ranked.emplace_back(distance, each);
  }
  std::ranges::sort(ranked);
  ranked.resize(std::min(ranked.size(), kMostNames));
  std::vector<std::string> nearest;
  nearest.reserve(ranked.size());
  for (const auto& [distance, each] : ranked) nearest.push_back(names_[each]);
  return nearest;
}

void NearestNames::Gather(const std::vector<Key>& rows, const std::string& key,
                          std::vector<std::size_t>& near) const {
  const auto place =
      static_cast<std::size_t>(std::ranges::lower_bound(rows, key, {}, &Key::letters) - rows.begin());
  const std::size_t first = place - std::min(place, kNeighbours);
  const std::size_t end = std::min(place + kNeighbours, rows.size());
  for (std::size_t i = first; i < end; ++i) near.push_back(rows[i].name);
}

}  // namespace tarvik::model
