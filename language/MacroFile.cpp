#include "language/MacroFile.h"

#include "language/MacroAnalysis.h"

namespace tarvik::model {
namespace {

/// Whether a line that is set in defines a macro: one word, and "=".
bool IsDefinition(std::string_view words) {
  const std::size_t equals = words.find('=');
  if (equals == std::string_view::npos || equals == 0 || words.front() == '/') return false;
  const std::string_view behindName = words.substr(std::min(FirstWord(words).size(), equals));
  return WithoutIndent(behindName).starts_with('=');
}

bool GoesOn(std::string_view words) { return !IsDefinition(words); }

/// All that stands before the "=", blanks inside it included.
Range ReadName(TokenCursor& cursor) {
  const std::size_t start = cursor.Peek().start;
  if (cursor.Is(TokenKind::Equals)) return {start, 0};
  while (!cursor.Is(TokenKind::Equals)) cursor.Take();
  return {start, cursor.End() - start};
}

void ReadDefinition(TokenCursor& cursor, MacroDefinition& definition) {
  definition.name = ReadName(cursor);
  definition.equals = cursor.Take();
  if (const AxisShape* shape = FindAxis(cursor.Words())) {
    definition.sends = ReadAxis(cursor, *shape);
  } else {
    definition.sends.emplace<Sequence>(ReadSequence(cursor));
  }
}

/// The line of a comment from its first word on.
std::string_view RemarkAt(const MacroFile& file, std::string_view text, std::size_t statement) {
  const Remark* remark = std::get_if<Remark>(&file[statement].body);
  return remark == nullptr ? std::string_view{} : In(file.LinesOf(statement, text), remark->comment);
}

}  // namespace

std::size_t MacroStatement::EndOf(std::string_view text, std::size_t start) {
  return StatementEnd(text, start, GoesOn);
}

void MacroStatement::Read(std::string_view lines, std::vector<Token>& tokens) {
  if (ReadRemark(lines, body)) return;
  ReadWords(lines, FirstEquals::EndsName, tokens, comments);
  TokenCursor cursor(lines, tokens);
  if (std::ranges::find(tokens, TokenKind::Equals, &Token::kind) != tokens.end()) {
    ReadDefinition(cursor, body.emplace<MacroDefinition>());
  }
  rest = cursor.TakeRest();
}

std::string HeadingOver(const MacroFile& file, std::string_view text, std::size_t statement) {
  for (std::size_t last = std::min(statement, file.size()); last-- > 2;) {
    const auto heading =
        HeadingIn(RemarkAt(file, text, last - 2), RemarkAt(file, text, last - 1), RemarkAt(file, text, last));
    if (heading) return AsListed(*heading);
  }
  return {};
}

}  // namespace tarvik::model
