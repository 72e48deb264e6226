// The trees of the two files as text, for golden files and for people who look for a fault.
#pragma once

#include "language/MacroFile.h"

namespace tarvik::model {

/// A line for each statement but blank lines and remarks, with the number of its first line, and set in below
/// it what it is made of.
[[nodiscard]] std::string Printed(const JoystickFile& file, std::string_view text);
[[nodiscard]] std::string Printed(const MacroFile& file, std::string_view text);

/// The text put together again from the tokens of the statements.
template <class Statement>
std::string WrittenBack(const StatementList<Statement>& file, std::string_view text) {
  std::string written;
  for (std::size_t i = 0; i < file.size(); ++i) {
    const std::string_view lines = file.LinesOf(i, text);
    for (const Token& token : TokensOf(lines)) written += In(lines, token.range);
  }
  return written;
}

}  // namespace tarvik::model
