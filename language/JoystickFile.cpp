#include "language/JoystickFile.h"

#include "text/CodePage.h"

namespace tarvik::model {
namespace {

constexpr std::string_view kDef = "DEF";
constexpr std::string_view kIs = "IS";

/// Whether a line set in by blanks belongs to what stands above it. A statement of its own does not, though
/// it should begin its line.
bool IsContinuation(std::string_view line) {
  if (line.empty() || !IsBlank(line.front())) return false;
  const std::string_view words = WithoutIndent(line);
  return !words.empty() && FindStatementWord(FirstWord(words)) == nullptr;
}

using Body = JoystickStatement::Body;

// Each reads on from behind the statement's word, but that of an axis, which takes that too.

Body ReadButton(TokenCursor& cursor) {
  const Range control = cursor.TakeWord();
  return Button{control, ReadSequence(cursor)};
}

/// The place belongs to the name of the control, as in "RKR UP".
Body ReadRocker(TokenCursor& cursor, Range word) {
  const Range place = cursor.TakeWord();
  const Range control = place.length == 0 ? place : Range{word.start, place.End() - word.start};
  return Button{control, ReadSequence(cursor)};
}

Body ReadDefinition(TokenCursor& cursor) {
  const Range flag = cursor.Is(TokenKind::Logic) ? Range{cursor.End(), 0} : cursor.TakeWord();
  return Definition{flag, ReadCondition(cursor)};
}

Body ReadSetting(TokenCursor& cursor) {
  Setting setting;
  while (cursor.IsWord()) setting.values.push_back(cursor.Take());
  return setting;
}

Body ReadPort(TokenCursor& cursor) {
  const bool hasIs = cursor.IsWord() && SameWord(cursor.Words(), kIs);
  const Range is = hasIs ? cursor.Take() : Range{cursor.End(), 0};
  return Port{is, cursor.TakeWord()};
}

Body ReadBody(TokenCursor& cursor, StatementForm form) {
  if (form == StatementForm::Axis) return ReadAxis(cursor, *FindAxis(cursor.Words()));
  const Range word = cursor.Take();
  switch (form) {
    case StatementForm::Button:
      return ReadButton(cursor);
    case StatementForm::Rocker:
      return ReadRocker(cursor, word);
    case StatementForm::Definition:
      return ReadDefinition(cursor);
    case StatementForm::Values:
      return ReadSetting(cursor);
    case StatementForm::Port:
      return ReadPort(cursor);
    default:
      return Command{};
  }
}

}  // namespace

std::size_t JoystickStatement::EndOf(std::string_view text, std::size_t start) {
  return StatementEnd(text, start, IsContinuation);
}

JoystickStatement JoystickStatement::Read(std::string_view lines, std::vector<Token>& tokens) {
  if (auto remark = ReadRemark<Body>(lines)) return {.body = *remark};
  JoystickStatement statement;
  ReadWords(lines, FirstEquals::IsKey, tokens, statement.comments);
  TokenCursor cursor(lines, tokens);
  statement.row = FindStatementWord(cursor.Words());
  if (statement.row != nullptr) {
    statement.word = cursor.Peek();
    statement.body = ReadBody(cursor, statement.row->form);
  }
  statement.rest = cursor.TakeRest();
  return statement;
}

const StatementWord* FindStatementWord(std::string_view word) {
  if (word.empty()) return nullptr;
  for (const StatementWord& row : kStatementWords) {
    if (ToLower(row.word.front()) != ToLower(word.front()) || !SameWord(row.word, word)) continue;
    return row.word != kDef || word == kDef ? &row : nullptr;
  }
  return nullptr;
}

}  // namespace tarvik::model
