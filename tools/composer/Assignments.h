// Which controls of the pictured hardware the joystick file assigns, and by which lines.
#pragma once

#include <string>
#include <vector>

#include "language/ComposerTables.h"
#include "language/Names.h"

namespace tarvik {

/// It is good until the next edit of the files.
class Assignments {
 public:
  explicit Assignments(const model::FilePair& pair)
      : pair_(pair), names_(pair.joystick, pair.joystickText, pair.macros, pair.macroText) {}

  /// The first lines of the statements that assign the control, in the order of the file for each of its
  /// positions; `caption` is what its label says.
  [[nodiscard]] std::vector<std::string> Of(const tables::HardwareRow& row, std::string_view caption) const;

 private:
  [[nodiscard]] std::vector<std::string> OfControl(std::string_view name) const;
  /// Those that begin with the word.
  [[nodiscard]] std::vector<std::string> OfWord(std::string_view word) const;
  [[nodiscard]] std::string LineOf(std::size_t statement) const;

  model::FilePair pair_;
  model::NameIndex names_;
};

}  // namespace tarvik
