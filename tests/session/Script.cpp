#include "session/Script.h"

#include <algorithm>

#include "text/CodePage.h"

namespace tarvik::session {
namespace {

constexpr std::string_view kIndent = "  ";

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

/// Takes a word in quotation marks, in which \" is one and every other backslash is itself. `isOpen` becomes
/// true when the second mark is missing.
std::string TakeQuoted(std::string_view& rest, bool& isOpen) {
  std::string word;
  rest.remove_prefix(1);
  while (!rest.empty() && rest.front() != '"') {
    if (rest.starts_with("\\\"")) rest.remove_prefix(1);
    word += rest.front();
    rest.remove_prefix(1);
  }
  isOpen = isOpen || rest.empty();
  rest.remove_prefix(std::min<std::size_t>(1, rest.size()));
  return word;
}

std::vector<std::string> SplitWords(std::string_view rest, bool& isOpen) {
  std::vector<std::string> words;
  while (true) {
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    if (rest.empty() || rest == "#" || rest.starts_with("# ")) return words;
    if (rest.front() == '"') {
      words.push_back(FromUtf8(TakeQuoted(rest, isOpen)));
    } else {
      const std::size_t end = std::min(rest.find(' '), rest.size());
      words.push_back(FromUtf8(rest.substr(0, end)));
      rest.remove_prefix(end);
    }
  }
}

}  // namespace

std::vector<Line> ParseScript(std::string_view script) {
  const std::vector<std::string_view> lines = SplitLines(script);
  std::vector<Line> result;
  int emptyBefore = 0;  // empty lines that turn out to stand inside a block
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string_view text = lines[i];
    if (text.empty()) {
      ++emptyBefore;
    } else if (text.starts_with(kIndent) && !result.empty()) {
      Line& owner = result.back();
      if (owner.hasBlock) owner.block.insert(owner.block.end(), static_cast<std::size_t>(emptyBefore), "");
      owner.hasBlock = true;
      owner.block.push_back(FromUtf8(text.substr(kIndent.size())));
      emptyBefore = 0;
    } else {
      emptyBefore = 0;
      Line line{static_cast<int>(i + 1), {}, {}, false, std::string(text)};
      line.words = SplitWords(text, line.isOpen);
      if (!line.words.empty()) result.push_back(std::move(line));
    }
  }
  return result;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) text += (i ? "\r\n" : "") + lines[i];
  return text;
}

}  // namespace tarvik::session
