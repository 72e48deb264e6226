#include "language/Condition.h"

#include <algorithm>

#include "language/LogicLines.h"

namespace tarvik::model {
namespace {

/// Brackets and NOTs inside one another, beyond which nobody reads a condition.
constexpr int kDeepest = 64;

struct CallWord {
  std::string_view word;
  ConditionKind kind;
};

constexpr CallWord kCallWords[] = {{"PULSE", ConditionKind::Pulse},
                                   {"DELAY", ConditionKind::Delay},
                                   {"CMPLT", ConditionKind::Below},
                                   {"CMPGT", ConditionKind::Above}};

Condition ReadOr(TokenCursor& cursor, int depth);

Condition ReadCall(TokenCursor& cursor, ConditionKind kind) {
  Condition call{.kind = kind};
  const std::size_t start = cursor.Take().start;
  cursor.Take();
  while (cursor.Is(TokenKind::Word) || cursor.Is(TokenKind::Number)) call.arguments.push_back(cursor.Take());
  call.closed = cursor.Is(TokenKind::Closing);
  if (call.closed) cursor.Take();
  call.range = {start, cursor.End() - start};
  return call;
}

/// The condition in it, which the brackets then belong to.
Condition ReadBrackets(TokenCursor& cursor, int depth) {
  const std::size_t start = cursor.Take().start;
  Condition inside = ReadOr(cursor, depth + 1);
  const bool closed = cursor.Is(TokenKind::Closing);
  if (closed) cursor.Take();
  inside.closed = inside.closed && closed;
  inside.range = {start, cursor.End() - start};
  return inside;
}

Condition ReadNot(TokenCursor& cursor, int depth);

Condition ReadOperand(TokenCursor& cursor, int depth) {
  if (cursor.Is(TokenKind::Opening) && depth < kDeepest) return ReadBrackets(cursor, depth);
  if (!cursor.Is(TokenKind::Word) && !cursor.Is(TokenKind::Number)) {
    return {.kind = ConditionKind::Missing, .range = {cursor.End(), 0}};
  }
  const CallWord* call = std::ranges::find(kCallWords, cursor.Words(), &CallWord::word);
  if (call != std::end(kCallWords) && cursor.IsNext(TokenKind::Opening)) return ReadCall(cursor, call->kind);
  return {.kind = ConditionKind::Control, .range = cursor.Take()};
}

Condition ReadNot(TokenCursor& cursor, int depth) {
  if (cursor.Words() != "NOT" || depth >= kDeepest) return ReadOperand(cursor, depth);
  const std::size_t start = cursor.Take().start;
  Condition negated{.kind = ConditionKind::Not};
  negated.operands.push_back(ReadNot(cursor, depth + 1));
  negated.range = {start, cursor.End() - start};
  return negated;
}

/// What `read` reads, as often as `word` stands between; one alone stays what it is.
Condition ReadJoined(TokenCursor& cursor, int depth, std::string_view word, ConditionKind kind,
                     Condition (*read)(TokenCursor&, int)) {
  const std::size_t start = cursor.Peek().start;
  Condition first = read(cursor, depth);
  if (cursor.Words() != word) return first;
  Condition joined{.kind = kind};
  joined.operands.push_back(std::move(first));
  while (cursor.Words() == word) {
    cursor.Take();
    joined.operands.push_back(read(cursor, depth));
  }
  joined.range = {start, cursor.End() - start};
  return joined;
}

Condition ReadAnd(TokenCursor& cursor, int depth) {
  return ReadJoined(cursor, depth, "AND", ConditionKind::And, ReadNot);
}

Condition ReadOr(TokenCursor& cursor, int depth) {
  return ReadJoined(cursor, depth, "OR", ConditionKind::Or, ReadAnd);
}

}  // namespace

Condition ReadCondition(TokenCursor& cursor) { return ReadOr(cursor, 0); }

std::optional<std::uint32_t> FlagNumber(std::string_view word) {
  if (!word.starts_with('X') && !word.starts_with('x')) return std::nullopt;
  return NumberIn(word.substr(1));
}

bool IsFlag(std::uint32_t number) { return number >= 1 && number <= tables::kLogicLines; }

}  // namespace tarvik::model
