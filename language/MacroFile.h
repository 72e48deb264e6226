// A macro file as statements: definitions of macros, and what stands between them. As in the joystick file,
// every text is a list of statements, and what makes no sense is one of its own.
#pragma once

#include "language/JoystickFile.h"

namespace tarvik::model {

struct MacroDefinition {
  Range name;  ///< empty where none stands before the "="
  Range equals;
  std::variant<Sequence, Axis> sends;  ///< an axis for what @digitalthrottle and its like stand for

  friend bool operator==(const MacroDefinition&, const MacroDefinition&) = default;
};

/// All ranges count from the beginning of the statement.
struct MacroStatement {
  using Body = std::variant<Blank, Remark, MacroDefinition, Unknown>;

  Range rest = {};                   ///< what makes no sense; empty where all does
  std::vector<Range> comments = {};  ///< beside its words, without their line ends
  Body body = Unknown{};

  [[nodiscard]] static std::size_t EndOf(std::string_view text, std::size_t start);
  /// Fills in a new statement.
  void Read(std::string_view lines, std::vector<Token>& tokens);

  friend bool operator==(const MacroStatement&, const MacroStatement&) = default;
};

using MacroFile = StatementList<MacroStatement>;

/// The heading that a statement stands under, which is the nearest block of three comments above it, as the
/// list of macros shows it; empty where there is none.
[[nodiscard]] std::string HeadingOver(const MacroFile& file, std::string_view text, std::size_t statement);

}  // namespace tarvik::model
