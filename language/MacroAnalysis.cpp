#include "language/MacroAnalysis.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <utility>

#include "text/Blanks.h"
#include "text/CodePage.h"

namespace tarvik {
namespace {

// The frame of a boxed heading, drawn in the DOS code page and seen in the Windows one.
constexpr std::string_view kBoxTop = "~\xC9\xCD\xCD\xCD\xCD";
constexpr std::string_view kBoxBottom = "~\xC8\xCD\xCD\xCD\xCD";
constexpr char kBoxSide = '\xBA';
constexpr std::string_view kRule = "rem --";

/// Takes one field off the front of `rest`, with the comma or line end behind it.
std::string TakeField(std::string_view& rest) {
  rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
  std::string field;
  if (rest.starts_with('"')) {
    const std::size_t close = std::min(rest.find('"', 1), rest.size());
    field = rest.substr(1, close - 1);
    rest.remove_prefix(std::min(close + 1, rest.size()));
    const std::size_t next = std::min(rest.find_first_not_of(' '), rest.size());
    if (next < rest.size() && std::string_view(",\r\n").find(rest[next]) == std::string_view::npos)
      return field;
    rest.remove_prefix(next);
  } else {
    const std::size_t end = std::min(rest.find_first_of(",\r\n"), rest.size());
    field = rest.substr(0, end);
    rest.remove_prefix(end);
  }
  rest.remove_prefix(rest.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, rest.size()));
  return field;
}

bool Begins(std::string_view record, std::string_view with, char (*fold)(char)) {
  return record.size() >= with.size() && std::equal(with.begin(), with.end(), record.begin(),
                                                    [fold](char a, char b) { return a == fold(b); });
}

bool IsRem(std::string_view record) { return Begins(record, "rem ", ToLower); }
bool IsRemBlock(std::string_view top, std::string_view bottom) {
  return Begins(top, kRule, ToLower) && Begins(bottom, kRule, ToLower);
}
bool IsBoxBlock(std::string_view top, std::string_view bottom) {
  return Begins(top, kBoxTop, ToUpper) && Begins(bottom, kBoxBottom, ToUpper);
}

/// A line too short for what is to go keeps all of it.
std::string_view WithoutFirst(std::string_view line, std::size_t count) {
  return line.size() >= count ? line.substr(count) : line;
}

/// The length of what a name is looked up by: the word that it begins with, or a first character that is part
/// of no word.
std::size_t LeaderOf(std::string_view at) {
  std::size_t length = 0;
  while (length < at.size() && IsWordCharacter(at[length])) ++length;
  return std::max<std::size_t>(length, 1);
}

bool StartsWithName(std::string_view text, std::string_view name) {
  if (text.size() < name.size()) return false;
  if (text.size() > name.size() && IsWordCharacter(text[name.size()])) return false;
  return std::equal(name.begin(), name.end(), text.begin(),
                    [](char a, char b) { return a == b || ToLower(a) == ToLower(b); });
}

/// Names by their leaders: a hash table, and before it a sieve that keeps most words of a text away from it.
class NameIndex {
 public:
  explicit NameIndex(const std::vector<std::string>& names)
      : names_(names), heads_(std::bit_ceil(names.size() * 2 + 1), kNone), next_(names.size(), kNone) {
    for (std::size_t i = 0; i < names.size(); ++i) {
      if (names[i].empty()) continue;
      const std::size_t length = LeaderOf(names[i]);
      Lengths(names[i]) |= Bit(length);
      next_[i] = std::exchange(heads_[Place(names[i], length)], i);
    }
  }

  /// Takes out each name that stands at the front of `text` as a whole word, and tells of it.
  template <class Tell>
  void TakeNamesAt(std::string_view text, std::size_t leader, const Tell& tell) {
    if (!(Lengths(text) & Bit(leader))) return;
    for (std::size_t* name = &heads_[Place(text, leader)]; *name != kNone;) {
      if (StartsWithName(text, names_[*name])) {
        tell(*name);
        *name = next_[*name];
      } else {
        name = &next_[*name];
      }
    }
  }

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  static std::uint64_t Bit(std::size_t length) {
    return std::uint64_t{1} << std::min<std::size_t>(length, 63);
  }
  std::uint64_t& Lengths(std::string_view at) { return lengths_[codepage::Byte(ToLower(at[0]))]; }
  [[nodiscard]] std::size_t Place(std::string_view at, std::size_t leader) const {
    std::uint64_t hash = 0;
    for (std::size_t i = 0; i < leader; ++i) hash = std::rotl(hash, 5) ^ codepage::Byte(ToLower(at[i]));
    hash *= 0x9E3779B97F4A7C15U;  // spreads what differs in few bits
    return hash >> 32 & (heads_.size() - 1);
  }

  const std::vector<std::string>& names_;
  std::array<std::uint64_t, 256> lengths_{};  // of the leaders that begin with a character
  std::vector<std::size_t> heads_;            // the last name of each place in the table
  std::vector<std::size_t> next_;             // the one before it
};

}  // namespace

std::vector<std::string> ReadMacroRecords(std::string_view file) {
  std::vector<std::string> records;
  while (!file.empty()) {
    std::string field = TakeField(file);
    if (!field.empty() && field != "~") records.push_back(std::move(field));
  }
  return records;
}

std::string MacroNameOf(std::string_view record) {
  return std::string(WithoutBlanks(record.substr(0, record.find('='))));
}

std::optional<std::string> HeadingIn(std::string_view top, std::string_view middle, std::string_view bottom) {
  if (IsRem(top) && IsRemBlock(top, bottom)) return std::string(WithoutBlanks(WithoutFirst(middle, 3)));
  if (!top.starts_with('~') || !IsBoxBlock(top, bottom)) return std::nullopt;
  std::string_view line = WithoutFirst(middle, 2);
  if (line.ends_with(kBoxSide)) line.remove_suffix(1);
  return std::string(WithoutBlanks(line));
}

std::string AsListed(std::string_view heading) {
  std::string listed = LowerCase(heading);
  if (!listed.empty()) listed[0] = ToUpper(listed[0]);
  return listed;
}

MacroAnalysis AnalyseMacros(std::vector<std::string>& records) {
  MacroAnalysis analysis;
  const std::size_t count = records.size();
  for (std::size_t i = 0; i < count; ++i) {
    const std::string& record = records[i];
    // A record must follow the block.
    const auto heading = i + 3 < count ? HeadingIn(record, records[i + 1], records[i + 2]) : std::nullopt;
    if (heading) {
      records[i + 1] = *heading;
      analysis.categories.push_back({AsListed(*heading), {}});
      i += 2;
    } else if (!IsRem(record) && !record.starts_with('~') && record.find('=') != std::string::npos) {
      std::string name = MacroNameOf(record);
      if (!analysis.categories.empty()) analysis.categories.back().macros.push_back(name);
      analysis.macros.push_back(std::move(name));
    }
  }
  return analysis;
}

std::vector<bool> NamesUsed(std::string_view text, const std::vector<std::string>& names) {
  NameIndex index(names);
  std::vector<bool> used(names.size());
  bool inWord = false;
  while (!text.empty()) {
    const std::size_t leader = LeaderOf(text);
    if (!inWord) index.TakeNamesAt(text, leader, [&used](std::size_t name) { used[name] = true; });
    inWord = IsWordCharacter(text[0]);
    text.remove_prefix(leader);
  }
  return used;
}

}  // namespace tarvik
