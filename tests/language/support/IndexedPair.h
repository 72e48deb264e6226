// A pair of texts with its models and the index of its names.
#pragma once

#include <string>
#include <utility>

#include "language/Names.h"

namespace tarvik::model {

inline constexpr FileKind kJoystick = FileKind::Joystick;
inline constexpr FileKind kMacros = FileKind::Macros;

class IndexedPair {
 public:
  explicit IndexedPair(std::string joystick, std::string macros = {}, Hardware hardware = {})
      : joystickText(std::move(joystick)),
        macroText(std::move(macros)),
        joystickFile_(joystickText),
        macroFile_(macroText),
        pair{joystickFile_, joystickText, macroFile_, macroText, hardware, {}},
        names(joystickFile_, joystickText, macroFile_, macroText) {}
  IndexedPair(const IndexedPair&) = delete;
  IndexedPair& operator=(const IndexedPair&) = delete;

  std::string joystickText;
  std::string macroText;

 private:
  JoystickFile joystickFile_;
  MacroFile macroFile_;

 public:
  FilePair pair;
  NameIndex names;

  [[nodiscard]] const std::string& TextOf(FileKind file) const {
    return file == FileKind::Joystick ? joystickText : macroText;
  }
  /// Where the words stand first.
  [[nodiscard]] std::size_t At(FileKind file, std::string_view words) const {
    return TextOf(file).find(words);
  }
  /// The words at each of the places, behind a letter for the file and the number of the statement.
  [[nodiscard]] std::vector<std::string> Words(const std::vector<Mention>& mentions) const {
    std::vector<std::string> words;
    for (const Mention& mention : mentions) {
      std::string word = mention.file == FileKind::Joystick ? "j" : "m";
      word.append(std::to_string(mention.statement)).append(": ");
      word.append(In(TextOf(mention.file), mention.range));
      words.push_back(std::move(word));
    }
    return words;
  }
};

}  // namespace tarvik::model
