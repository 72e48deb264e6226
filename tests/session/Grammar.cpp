#include "session/Grammar.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

#include "app/Tools.h"
#include "session/Chord.h"

namespace tarvik::session {
namespace {

bool IsName(std::string_view word) {
  return !word.empty() && word.find_first_not_of(
                              "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                              "0123456789_") == std::string_view::npos;
}

bool IsCount(std::string_view word) {
  constexpr std::size_t kDigits = 10;
  return !word.empty() && word.size() <= kDigits &&
         word.find_first_not_of("0123456789") == std::string_view::npos;
}

bool IsNumber(std::string_view word) {
  double number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  return error == std::errc() && end == word.data() + word.size() && std::abs(number) < 1e9;
}

bool IsHex(std::string_view word) {
  return word.size() == 2 && word.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
}

bool IsTime(std::string_view word) {
  constexpr std::size_t kMostDigitsOfTime = 6;
  for (const std::string_view unit : {"ms", "s"}) {
    if (!word.ends_with(unit)) continue;
    word.remove_suffix(unit.size());
    return IsCount(word) && word.size() <= kMostDigitsOfTime;
  }
  return false;
}

/// "Toolbar1", "List1(2)".
bool IsControlName(std::string_view word) {
  const std::size_t open = word.find('(');
  if (open == std::string_view::npos) return IsName(word);
  return word.back() == ')' && IsName(word.substr(0, open)) &&
         IsCount(word.substr(open + 1, word.size() - open - 2));
}

bool IsForm(std::string_view word) {
  const auto isCalledSo = [word](const ToolRow& tool) { return tool.form == word; };
  const auto tools = Tools();
  return word == "Mum" || word == "Editor" || std::any_of(tools.begin(), tools.end(), isCalledSo);
}

/// Names with points between them, the first a form's, `least` of them or more.
bool IsPath(std::string_view word, int least) {
  int names = 0;
  if (!IsForm(word.substr(0, word.find('.')))) return false;
  while (true) {
    const std::size_t point = std::min(word.find('.'), word.size());
    if (!IsControlName(word.substr(0, point))) return false;
    ++names;
    if (point == word.size()) return names >= least;
    word.remove_prefix(point + 1);
  }
}

struct Kind {
  std::string_view name;
  bool (*fits)(std::string_view word);
};

constexpr Kind kKinds[] = {
    {"CONTROL", [](std::string_view word) { return IsPath(word, 1); }},
    {"FORM", IsForm},
    {"NAME", IsControlName},
    {"PROPERTY", [](std::string_view word) { return IsPath(word, 2); }},
    {"NUMBER", IsNumber},
    {"COUNT", IsCount},
    {"HEX", IsHex},
    {"KEY", [](std::string_view word) { return ParseChord(word).has_value(); }},
    {"TIME", IsTime},
    {"TEXT", [](std::string_view) { return true; }},
};

/// Whether one of the words between the "|" of `wanted` is `word`, or a kind that it is of.
bool IsOneOf(std::string_view wanted, std::string_view word) {
  while (!wanted.empty()) {
    const std::size_t end = std::min(wanted.find('|'), wanted.size());
    const std::string_view each = wanted.substr(0, end);
    const auto kind = std::find_if(std::begin(kKinds), std::end(kKinds),
                                   [each](const Kind& known) { return known.name == each; });
    if (kind == std::end(kKinds) ? each == word : kind->fits(word)) return true;
    wanted.remove_prefix(std::min(end + 1, wanted.size()));
  }
  return false;
}

std::vector<std::string_view> SplitShape(std::string_view shape) {
  std::vector<std::string_view> parts;
  while (!shape.empty()) {
    const std::size_t end = std::min(shape.find(' '), shape.size());
    parts.push_back(shape.substr(0, end));
    shape.remove_prefix(std::min(end + 1, shape.size()));
  }
  return parts;
}

using Parts = std::vector<std::string_view>;

/// Whether the words from `word` on fit the parts from `part` on; what may be missing is tried both ways.
bool WordsFit(const Line& line, std::size_t word, const Parts& parts, std::size_t part) {
  if (part == parts.size()) return word == line.words.size();
  const std::string_view wanted = parts[part];
  const auto fitsHere = [&](std::string_view each) {
    return word < line.words.size() && IsOneOf(each, line.words[word]);
  };
  if (wanted.ends_with("...")) {
    const bool more = fitsHere(wanted.substr(0, wanted.size() - 3)) && WordsFit(line, word + 1, parts, part);
    return more || WordsFit(line, word, parts, part + 1);
  }
  if (wanted.front() == '[') {
    const bool taken =
        fitsHere(wanted.substr(1, wanted.size() - 2)) && WordsFit(line, word + 1, parts, part + 1);
    return taken || WordsFit(line, word, parts, part + 1);
  }
  return fitsHere(wanted) && WordsFit(line, word + 1, parts, part + 1);
}

}  // namespace

bool Fits(const Line& line, std::string_view shape) {
  Parts parts = SplitShape(shape);
  constexpr std::string_view kOrBlock = "|:";
  if (parts.back() == ":" || parts.back() == "[:]") {
    if (parts.back() == ":" && !line.hasBlock) return false;
    parts.pop_back();
    return WordsFit(line, 0, parts, 0);
  }
  if (parts.back().ends_with(kOrBlock)) {
    if (line.hasBlock) {
      parts.pop_back();
    } else {
      parts.back().remove_suffix(kOrBlock.size());
    }
    return WordsFit(line, 0, parts, 0);
  }
  if (line.hasBlock) return false;
  if (parts.back() != "...") return WordsFit(line, 0, parts, 0);
  // As often as the line has words for it, and at least once.
  parts.pop_back();
  const Parts again(parts.begin() + 1, parts.end());
  while (parts.size() < line.words.size()) parts.insert(parts.end(), again.begin(), again.end());
  return WordsFit(line, 0, parts, 0);
}

std::string_view Verb(std::string_view shape) { return shape.substr(0, shape.find(' ')); }

}  // namespace tarvik::session
