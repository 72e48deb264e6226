#include "language/JoystickFile.h"

#include "text/CodePage.h"

namespace tarvik::model {
namespace {

constexpr std::string_view kDef = "DEF";
constexpr std::string_view kIs = "IS";

/// Whether a line set in by blanks belongs to what stands above it. A statement of its own does not, though
/// it should begin its line.
bool IsContinuation(std::string_view words) { return FindStatementWord(FirstWord(words)) == nullptr; }

using Body = JoystickStatement::Body;

// Each reads on from behind the statement's word, but that of an axis, which takes that too.

void ReadButton(TokenCursor& cursor, Button& button) {
  button.control = cursor.TakeWord();
  button.sends = ReadSequence(cursor);
}

/// The place belongs to the name of the control, as in "RKR UP".
void ReadRocker(TokenCursor& cursor, Range word, Button& button) {
  const Range place = cursor.TakeWord();
  button.control = place.length == 0 ? place : Range{word.start, place.End() - word.start};
  button.sends = ReadSequence(cursor);
}

void ReadDefinition(TokenCursor& cursor, Definition& definition) {
  definition.flag = cursor.Is(TokenKind::Logic) ? Range{cursor.End(), 0} : cursor.TakeWord();
  definition.condition = ReadCondition(cursor);
}

void ReadSetting(TokenCursor& cursor, Setting& setting) {
  while (cursor.IsWord()) setting.values.push_back(cursor.Take());
}

void ReadPort(TokenCursor& cursor, Port& port) {
  const bool hasIs = cursor.IsWord() && SameWord(cursor.Words(), kIs);
  port.is = hasIs ? cursor.Take() : Range{cursor.End(), 0};
  port.control = cursor.TakeWord();
}

void ReadBody(TokenCursor& cursor, StatementForm form, Body& body) {
  if (form == StatementForm::Axis) {
    body = ReadAxis(cursor, *FindAxis(cursor.Words()));
    return;
  }
  const Range word = cursor.Take();
  switch (form) {
    case StatementForm::Button:
      return ReadButton(cursor, body.emplace<Button>());
    case StatementForm::Rocker:
      return ReadRocker(cursor, word, body.emplace<Button>());
    case StatementForm::Definition:
      return ReadDefinition(cursor, body.emplace<Definition>());
    case StatementForm::Values:
      return ReadSetting(cursor, body.emplace<Setting>());
    case StatementForm::Port:
      return ReadPort(cursor, body.emplace<Port>());
    default:
      body.emplace<Command>();
  }
}

}  // namespace

std::size_t JoystickStatement::EndOf(std::string_view text, std::size_t start) {
  return StatementEnd(text, start, IsContinuation);
}

void JoystickStatement::Read(std::string_view lines, std::vector<Token>& tokens) {
  if (ReadRemark(lines, body)) return;
  ReadWords(lines, FirstEquals::IsKey, tokens, comments);
  TokenCursor cursor(lines, tokens);
  row = FindStatementWord(cursor.Words());
  if (row != nullptr) {
    word = cursor.Peek();
    ReadBody(cursor, row->form, body);
  }
  rest = cursor.TakeRest();
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
