// What is wrong in a pair of files, by the rules in Rules.h. All rules run over a pair in one walk.
#pragma once

#include <string>
#include <vector>

#include "language/Rules.h"

namespace tarvik::model {

struct Problem {
  const Rule* rule = nullptr;  ///< one of AllRules()
  FileKind file = FileKind::Joystick;
  Range range;         ///< in the whole text, never empty but in an empty text
  std::string text;    ///< what is wrong, a sentence
  std::string advice;  ///< what to do, a sentence

  friend bool operator==(const Problem&, const Problem&) = default;
};

/// Where a position is, both from 1. A column is a byte of the code page.
struct LineAndColumn {
  std::size_t line = 1;
  std::size_t column = 1;

  friend bool operator==(const LineAndColumn&, const LineAndColumn&) = default;
};

/// Tells lines and columns of positions that are asked for from the first one on.
class LinePositions {
 public:
  explicit LinePositions(std::string_view text) : text_(text) {}

  /// A position before the last one is found, too, by counting anew.
  LineAndColumn Of(std::size_t position);

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t lineStart_ = 0;
  std::size_t line_ = 1;
};

/// Sorted by file, those of the joystick file first, and by position.
[[nodiscard]] std::vector<Problem> ProblemsIn(const FilePair& pair);

}  // namespace tarvik::model
