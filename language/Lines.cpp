#include "language/Lines.h"

#include <algorithm>

namespace tarvik::model {
namespace {

/// The line that begins at `start`, without its line feed.
std::string_view LineAt(std::string_view text, std::size_t start) {
  return text.substr(start, std::min(text.find('\n', start), text.size()) - start);
}

}  // namespace

std::string_view WithoutIndent(std::string_view line) {
  std::size_t indent = 0;
  while (indent < line.size() && IsBlank(line[indent])) ++indent;
  return line.substr(indent);
}

std::optional<Range> RemarkIn(std::string_view lines) {
  std::string_view words = WithoutIndent(lines);
  const std::size_t start = lines.size() - words.size();
  if (words.ends_with('\n')) words.remove_suffix(words.ends_with("\r\n") ? 2 : 1);
  if (!words.empty() && !BeginsComment(words)) return std::nullopt;
  return Range{start, words.size()};
}

std::string_view FirstWord(std::string_view line) {
  const auto endsWord = [](char byte) { return IsBlank(byte) || byte == '(' || byte == ')' || byte == '~'; };
  return line.substr(0, static_cast<std::size_t>(std::ranges::find_if(line, endsWord) - line.begin()));
}

std::size_t StatementEnd(std::string_view text, std::size_t start,
                         bool (*isContinuation)(std::string_view words)) {
  std::string_view line = LineAt(text, start);
  const std::string_view words = WithoutIndent(line);
  const bool hasOneLine = words.empty() || BeginsComment(words);
  std::size_t end = std::min(start + line.size() + 1, text.size());
  while (!hasOneLine && end < text.size() && IsBlank(text[end])) {
    line = LineAt(text, end);
    const std::string_view below = WithoutIndent(line);
    if (below.empty() || !isContinuation(below)) break;
    end = std::min(end + line.size() + 1, text.size());
  }
  return end;
}

}  // namespace tarvik::model
