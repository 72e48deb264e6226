// A pair of texts with its models, judged.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "language/Problems.h"

namespace tarvik::model {

class JudgedPair {
 public:
  JudgedPair(std::string joystick, std::string macros, Hardware hardware = {}, FileNames names = {})
      : joystickText(std::move(joystick)),
        macroText(std::move(macros)),
        joystick_(joystickText),
        macros_(macroText),
        problems(ProblemsIn({joystick_, joystickText, macros_, macroText, hardware, names})) {}

  std::string joystickText;
  std::string macroText;

 private:
  JoystickFile joystick_;
  MacroFile macros_;

 public:
  std::vector<Problem> problems;

  /// The ids of the rules that are broken, in the order of the problems, with a blank between.
  [[nodiscard]] std::string Rules() const {
    std::string ids;
    for (const Problem& problem : problems) {
      if (!ids.empty()) ids.append(" ");
      ids.append(problem.rule->id);
    }
    return ids;
  }
  /// The words that a problem is about.
  [[nodiscard]] std::string_view Words(const Problem& problem) const {
    return In(problem.file == FileKind::Joystick ? joystickText : macroText, problem.range);
  }
};

}  // namespace tarvik::model
