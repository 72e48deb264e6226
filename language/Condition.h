// The condition of a DEF statement as a tree. All ranges count from the beginning of the statement.
#pragma once

#include "language/Sequence.h"

namespace tarvik::model {

enum class ConditionKind : std::uint8_t {
  Control,  ///< a control, or a flag
  And,
  Or,
  Not,
  Pulse,    ///< PULSE(on off)
  Delay,    ///< DELAY(time)
  Below,    ///< CMPLT(axis per cent)
  Above,    ///< CMPGT(axis per cent)
  Missing,  ///< nothing stands where something must
};

struct Condition {
  ConditionKind kind = ConditionKind::Missing;
  bool closed = true;  ///< false for a bracket that does not close
  Range range = {};
  std::vector<Condition> operands = {};  ///< two or more of AND and OR, one of NOT
  std::vector<Range> arguments = {};     ///< the words in the bracket of PULSE, DELAY, CMPLT and CMPGT

  friend bool operator==(const Condition&, const Condition&) = default;
};

/// Reads as much as makes sense: NOT binds more strongly than AND, and that more strongly than OR.
[[nodiscard]] Condition ReadCondition(TokenCursor& cursor);
/// The number of a flag such as X12, in either case; none for any other word.
[[nodiscard]] std::optional<std::uint32_t> FlagNumber(std::string_view word);
/// Whether there is a flag of that number: they are X1 to X48.
[[nodiscard]] bool IsFlag(std::uint32_t number);

}  // namespace tarvik::model
