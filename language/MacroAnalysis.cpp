#include "language/MacroAnalysis.h"

#include <algorithm>
#include <unordered_map>

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
  // Names are looked up by the word they begin with, or by their first character where that is part of no
  // word.
  const auto leader = [](std::string_view at) {
    std::size_t length = 0;
    while (length < at.size() && IsWordCharacter(at[length])) ++length;
    return at.substr(0, std::max<std::size_t>(length, 1));
  };
  const std::string folded = LowerCase(text);
  std::vector<std::string> wanted(names.size());
  std::transform(names.begin(), names.end(), wanted.begin(), LowerCase);
  std::unordered_map<std::string_view, std::vector<std::size_t>> byLeader;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    if (!wanted[i].empty()) byLeader[leader(wanted[i])].push_back(i);
  }

  std::vector<bool> used(names.size(), false);
  const std::string_view all = folded;
  for (std::size_t at = 0; at < all.size();) {
    const std::string_view word = leader(all.substr(at));
    const bool begins = at == 0 || !IsWordCharacter(all[at - 1]);
    if (const auto found = byLeader.find(word); begins && found != byLeader.end()) {
      for (const std::size_t i : found->second) {
        const std::size_t end = at + wanted[i].size();
        if (all.substr(at, wanted[i].size()) != wanted[i]) continue;
        if (end < all.size() && IsWordCharacter(all[end])) continue;
        used[i] = true;
      }
    }
    at += word.size();
  }
  return used;
}

}  // namespace tarvik
