// A joystick file as statements: what each is about, as a value that holds positions and no text. Every text
// is a list of statements; what makes no sense is one of its own, or what is left over in one.
#pragma once

#include <variant>

#include "language/AxisStatement.h"
#include "language/Condition.h"
#include "language/Lines.h"
#include "language/StatementList.h"

namespace tarvik::model {

/// What follows the word of a statement.
enum class StatementForm : std::uint8_t {
  Button,      ///< a control and what it sends
  Rocker,      ///< a place of the rocker and what it sends
  Definition,  ///< a flag and when it is on
  Axis,        ///< a type, steps and keys
  Values,      ///< words
  Port,        ///< IS and a control
  Alone,       ///< nothing
};

struct StatementWord {
  std::string_view word;
  StatementForm form;
};

/// The words that begin a statement.
inline constexpr StatementWord kStatementWords[] = {
    {"BTN", StatementForm::Button},
    {"RKR", StatementForm::Rocker},
    {"DEF", StatementForm::Definition},
    {"THR", StatementForm::Axis},
    {"RNG", StatementForm::Axis},
    {"ANT", StatementForm::Axis},
    {"JSX", StatementForm::Axis},
    {"JSY", StatementForm::Axis},
    {"RDDR", StatementForm::Axis},
    {"USE", StatementForm::Values},
    {"MDEF", StatementForm::Values},
    {"RATE", StatementForm::Values},
    {"NULLCHR", StatementForm::Values},
    {"PortB1", StatementForm::Port},
    {"PortB2", StatementForm::Port},
    {"PortB3", StatementForm::Port},
    {"PortB4", StatementForm::Port},
    {"SWAPTG", StatementForm::Alone},
    {"@digitalthrottle", StatementForm::Alone},
};

/// A blank line.
struct Blank {
  friend bool operator==(const Blank&, const Blank&) = default;
};

/// A line that is a comment, and nothing else.
struct Remark {
  Range comment;

  friend bool operator==(const Remark&, const Remark&) = default;
};

/// Makes a line that is nothing, or nothing but a comment, the body of its statement; false for any other.
template <class Body>
bool ReadRemark(std::string_view line, Body& body) {
  const auto remark = RemarkIn(line);
  if (!remark) return false;
  if (remark->length == 0) {
    body.template emplace<Blank>();
  } else {
    body = Remark{*remark};
  }
  return true;
}

/// A button, a place of a hat, a flag, or a place of the rocker, which is told with its word.
struct Button {
  Range control;  ///< empty where there is none
  Sequence sends;

  friend bool operator==(const Button&, const Button&) = default;
};

struct Definition {
  Range flag;  ///< empty where there is none
  Condition condition;

  friend bool operator==(const Definition&, const Definition&) = default;
};

/// What holds for the whole file.
struct Setting {
  std::vector<Range> values;

  friend bool operator==(const Setting&, const Setting&) = default;
};

struct Port {
  Range is;       ///< empty where it is missing
  Range control;  ///< empty where there is none

  friend bool operator==(const Port&, const Port&) = default;
};

/// A statement that is a word alone.
struct Command {
  friend bool operator==(const Command&, const Command&) = default;
};

/// A line that begins with no word of a statement.
struct Unknown {
  friend bool operator==(const Unknown&, const Unknown&) = default;
};

/// All ranges count from the beginning of the statement.
struct JoystickStatement {
  using Body = std::variant<Blank, Remark, Button, Definition, Axis, Setting, Port, Command, Unknown>;

  const StatementWord* row = nullptr;  ///< of kStatementWords; null for Blank, Remark and Unknown
  Range word = {};                     ///< by which the statement is known
  Range rest = {};                     ///< what is left over and makes no sense; empty where all does
  std::vector<Range> comments = {};    ///< beside its words, without their line ends
  Body body = Unknown{};

  /// Whether blanks stand before its word, which must begin its line.
  [[nodiscard]] bool IsSetIn() const { return row != nullptr && word.start > 0; }

  [[nodiscard]] static std::size_t EndOf(std::string_view text, std::size_t start);
  /// Fills in a new statement.
  void Read(std::string_view lines, std::vector<Token>& tokens);

  friend bool operator==(const JoystickStatement&, const JoystickStatement&) = default;
};

using JoystickFile = StatementList<JoystickStatement>;

/// The row of a word that begins a statement; null for any other. DEF must be in capital letters.
[[nodiscard]] const StatementWord* FindStatementWord(std::string_view word);

}  // namespace tarvik::model
