// The names in a pair of files: where each macro, flag and control is defined, assigned and used. A value
// that holds no text but the names. All ranges are in the whole text of their file.
#pragma once

#include <unordered_map>

#include "language/FilePair.h"

namespace tarvik::model {

/// A place where a name stands.
struct Mention {
  FileKind file = FileKind::Joystick;
  std::size_t statement = 0;  ///< its index in its file
  Range range;

  friend bool operator==(const Mention&, const Mention&) = default;
};

struct MacroNames {
  std::string name;  ///< as it is written first, in the macro file if it is defined there
  std::vector<Mention> definitions;
  std::vector<Mention> uses;  ///< in the joystick file first

  friend bool operator==(const MacroNames&, const MacroNames&) = default;
};

struct FlagNames {
  std::uint32_t number = 0;
  std::vector<Mention> definitions;  ///< by DEF
  std::vector<Mention> buttons;      ///< by BTN, which say what the flag sends
  std::vector<Mention> uses;         ///< in conditions, and as what presses a port

  friend bool operator==(const FlagNames&, const FlagNames&) = default;
};

/// A button, a place of a hat or of the rocker, or an axis, which is assigned by a statement of its own.
struct ControlNames {
  std::string name;  ///< in capital letters, and with one blank in "RKR UP"
  bool isAxis = false;
  std::vector<Mention> assignments;
  std::vector<Mention> uses;  ///< in conditions, and as what presses a port

  friend bool operator==(const ControlNames&, const ControlNames&) = default;
};

/// Words by their letters, no matter in which case.
struct WordHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view word) const;
};
struct WordsAreSame {
  using is_transparent = void;
  bool operator()(std::string_view one, std::string_view other) const { return SameWord(one, other); }
};
using WordMap = std::unordered_map<std::string, std::size_t, WordHash, WordsAreSame>;

/// A control's name in capital letters, with one blank for those between its words: "RKR UP".
[[nodiscard]] std::string NameOfControl(std::string_view words);

class NameIndex {
 public:
  NameIndex(const JoystickFile& joystick, std::string_view joystickText, const MacroFile& macros,
            std::string_view macroText);

  /// In the order in which they come, those of the macro file first.
  [[nodiscard]] const std::vector<MacroNames>& Macros() const { return macros_; }
  [[nodiscard]] const std::vector<FlagNames>& Flags() const { return flags_; }
  [[nodiscard]] const std::vector<ControlNames>& Controls() const { return controls_; }

  /// Null for a name that stands nowhere. The case of the letters does not matter.
  [[nodiscard]] const MacroNames* FindMacro(std::string_view name) const;
  [[nodiscard]] const FlagNames* FindFlag(std::uint32_t number) const;
  [[nodiscard]] const ControlNames* FindControl(std::string_view name) const;
  /// Whether the macro file defines a macro of that name.
  [[nodiscard]] bool Defines(std::string_view name) const;

  friend bool operator==(const NameIndex&, const NameIndex&) = default;

 private:
  friend class NameCollector;

  std::vector<MacroNames> macros_;
  std::vector<FlagNames> flags_;
  std::vector<ControlNames> controls_;
  WordMap macroPlaces_;
  WordMap controlPlaces_;
  std::unordered_map<std::uint32_t, std::size_t> flagPlaces_;
};

/// Names that are like one that is not there, for whoever mistyped it.
class NearestNames {
 public:
  /// Of the macros that are defined, and of the words for keys.
  explicit NearestNames(const NameIndex& index);

  /// The nearest first; none where no name is like it.
  [[nodiscard]] std::vector<std::string> To(std::string_view name) const;

 private:
  /// A name in small letters, as it is or from its end on.
  struct Key {
    std::string letters;
    std::size_t name;  ///< in names_
  };

  void Add(std::string_view name);
  void Gather(const std::vector<Key>& rows, const std::string& key, std::vector<std::size_t>& near) const;

  std::vector<std::string> names_;
  std::vector<Key> forward_;
  std::vector<Key> backward_;
};

/// How many letters must be changed, put in, taken out, or exchanged with their neighbour to make one word of
/// the other, whatever their case; `most` + 1 where it is more than `most`, and for words that differ in more
/// than 64 letters on end.
[[nodiscard]] std::size_t EditDistance(std::string_view one, std::string_view other, std::size_t most);

}  // namespace tarvik::model
