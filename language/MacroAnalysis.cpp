#include "language/MacroAnalysis.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "platform/CodePage.h"

namespace tarvik {
namespace {

// The frame of a boxed heading, drawn in the DOS code page and seen in the Windows one.
constexpr std::string_view kBoxTop = "~\xC9\xCD\xCD\xCD\xCD";
constexpr std::string_view kBoxBottom = "~\xC8\xCD\xCD\xCD\xCD";
constexpr char kBoxSide = '\xBA';
constexpr std::string_view kRule = "rem --";

std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

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

bool Begins(const std::string& record, std::string_view with, char (*fold)(char)) {
  return record.size() >= with.size() && std::equal(with.begin(), with.end(), record.begin(),
                                                    [fold](char a, char b) { return a == fold(b); });
}

bool IsRem(const std::string& record) { return Begins(record, "rem ", ToLower); }
bool IsRemBlock(const std::string& top, const std::string& bottom) {
  return Begins(top, kRule, ToLower) && Begins(bottom, kRule, ToLower);
}
bool IsBoxBlock(const std::string& top, const std::string& bottom) {
  return Begins(top, kBoxTop, ToUpper) && Begins(bottom, kBoxBottom, ToUpper);
}

/// A line too short for what is to go keeps all of it.
void DropFirst(std::string& line, std::size_t count) {
  if (line.size() >= count) line.erase(0, count);
}

/// Cuts the middle line down to its heading and gives that with its first letter in upper case, the rest in
/// lower.
std::string TakeHeading(std::string& line) {
  line = WithoutBlanks(line);
  std::string heading = LowerCase(line);
  if (!heading.empty()) heading[0] = ToUpper(heading[0]);
  return heading;
}

/// What a name is looked up by: the word that it begins with, or a first character that is part of no word.
struct Leader {
  std::size_t length = 0;
  std::size_t hash = 0;

  explicit Leader(std::string_view at) {
    for (; length < at.size() && IsWordCharacter(at[length]); ++length)
      hash = hash * 31 + codepage::Byte(at[length]);
    if (length == 0) hash = codepage::Byte(at[length++]);
    hash *= 0x9E3779B97F4A7C15U;  // spreads what differs in the last characters only
    hash ^= hash >> 32;
  }
};

/// Names in lower case by their leaders: a hash table in which names of one leader form a chain.
class NameIndex {
 public:
  explicit NameIndex(const std::vector<std::string>& names)
      : table_(std::bit_ceil(names.size() * 2 + 2), kNone) {
    entries_.reserve(names.size());
    for (const std::string& name : names) {
      Entry& entry = entries_.emplace_back(Entry{LowerCase(name), 0, 0, kNone});
      if (name.empty()) continue;
      const Leader leader(entry.name);
      entry.leaderLength = leader.length;
      entry.leaderHash = leader.hash;
      std::size_t& first = table_[Find(leader, entry.name)];
      entry.next = std::exchange(first, entries_.size() - 1);
    }
  }

  /// Tells of each name that stands at the front of `text` as a whole word.
  template <class Tell>
  void NamesAt(std::string_view text, const Leader& leader, const Tell& tell) const {
    for (std::size_t i = table_[Find(leader, text)]; i != kNone; i = entries_[i].next) {
      const std::size_t length = entries_[i].name.size();
      if (text.substr(0, length) != entries_[i].name) continue;
      if (length == text.size() || !IsWordCharacter(text[length])) tell(i);
    }
  }

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  struct Entry {
    std::string name;
    std::size_t leaderLength;
    std::size_t leaderHash;
    std::size_t next;  // of the same leader
  };

  /// The table's place of the leader that `text` begins with, or the free one where it belongs. There always
  /// is one.
  [[nodiscard]] std::size_t Find(const Leader& leader, std::string_view text) const {
    for (std::size_t place = leader.hash;; ++place) {
      place &= table_.size() - 1;
      if (table_[place] == kNone) return place;
      const Entry& entry = entries_[table_[place]];
      if (entry.leaderHash != leader.hash || entry.leaderLength != leader.length) continue;
      if (text.substr(0, leader.length) == std::string_view(entry.name).substr(0, leader.length))
        return place;
    }
  }

  std::vector<std::size_t> table_;  // the newest entry of each leader
  std::vector<Entry> entries_;
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

MacroAnalysis AnalyseMacros(std::vector<std::string>& records) {
  MacroAnalysis analysis;
  const std::size_t count = records.size();
  for (std::size_t i = 0; i < count; ++i) {
    // A record must follow the block.
    const bool roomForBlock = i + 3 < count;
    const bool rem = IsRem(records[i]);
    const bool tilde = !rem && records[i].starts_with('~');
    if (roomForBlock && rem && IsRemBlock(records[i], records[i + 2])) {
      DropFirst(records[i + 1], 3);
      analysis.categories.push_back({TakeHeading(records[i + 1]), {}});
      i += 2;
    } else if (roomForBlock && tilde && IsBoxBlock(records[i], records[i + 2])) {
      std::string& line = records[i + 1];
      DropFirst(line, 2);
      if (line.ends_with(kBoxSide)) line.pop_back();
      analysis.categories.push_back({TakeHeading(line), {}});
      i += 2;
    } else if (!rem && !tilde && records[i].find('=') != std::string::npos) {
      std::string name = MacroNameOf(records[i]);
      if (!analysis.categories.empty()) analysis.categories.back().macros.push_back(name);
      analysis.macros.push_back(std::move(name));
    }
  }
  return analysis;
}

std::vector<bool> NamesUsed(std::string_view text, const std::vector<std::string>& names) {
  const std::string folded = LowerCase(text);
  const std::string_view all = folded;
  const NameIndex index(names);
  std::vector<bool> used(names.size());
  bool inWord = false;
  for (std::size_t at = 0; at < all.size();) {
    const Leader leader(all.substr(at));
    if (!inWord) index.NamesAt(all.substr(at), leader, [&used](std::size_t name) { used[name] = true; });
    inWord = IsWordCharacter(all[at]);
    at += leader.length;
  }
  return used;
}

}  // namespace tarvik
