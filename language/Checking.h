// What the rules are handed while they look at a pair, and where they put what they find.
#pragma once

#include <initializer_list>

#include "language/Abilities.h"
#include "language/Names.h"
#include "language/NullSigns.h"
#include "language/Problems.h"

namespace tarvik::model {

/// A statement in its file, of whose lines the ranges of its parts are.
struct Place {
  FileKind file = FileKind::Joystick;
  std::size_t start = 0;
  std::string_view lines;

  [[nodiscard]] std::string_view Words(Range range) const { return In(lines, range); }
  [[nodiscard]] Range InText(Range range) const { return {start + range.start, range.length}; }
};

/// A key that a statement presses by its code and does not let go.
struct KeyLeftDown {
  FileKind file = FileKind::Joystick;
  Range range;  ///< in the whole text: the code, or the name of the macro that presses it
  std::size_t key = 0;
  bool behindPress = false;  ///< it stands behind /P
};

/// Things that point at others, each by its number.
using Graph = std::vector<std::vector<std::size_t>>;

/// A thing comes behind all that it points at, unless they are in a circle.
struct GraphOrder {
  std::vector<std::size_t> order;
  std::vector<bool> inCircle;
};
[[nodiscard]] GraphOrder OrderOf(const Graph& graph);

/// A pair with what the rules share: what is attached, which names there are.
class Checked {
 public:
  explicit Checked(const FilePair& pair);

  const FilePair& pair;
  const NameIndex names;
  const Abilities abilities;

  [[nodiscard]] std::string_view TextOf(FileKind file) const {
    return file == FileKind::Joystick ? pair.joystickText : pair.macroText;
  }
  [[nodiscard]] std::string_view Words(const Mention& mention) const {
    return In(TextOf(mention.file), mention.range);
  }
  [[nodiscard]] Place PlaceOf(const Mention& mention) const;
  /// Whether the macro file defines macros at all. Without any, nothing is known of the names in the joystick
  /// file.
  [[nodiscard]] bool HasMacros() const { return hasMacros_; }
  [[nodiscard]] bool IsNullSign(std::string_view word) const { return nullSigns_.Hold(word); }
  /// Whether a word that no macro is called by means something by itself, which other rules judge.
  [[nodiscard]] bool HasMeaning(std::string_view word) const;
  /// The last statement of the joystick file with that word; null where there is none.
  [[nodiscard]] const JoystickStatement* LastSetting(std::string_view word, Place& place) const;

  // What several rules want, made when the first of them asks.
  /// Which macro uses which, by their numbers in the index of names.
  [[nodiscard]] const Graph& MacroGraph() const;
  [[nodiscard]] const GraphOrder& MacroOrder() const;
  [[nodiscard]] const std::vector<KeyLeftDown>& LeftDown() const;

 private:
  bool hasMacros_ = false;
  NullSigns nullSigns_;
  mutable std::optional<Graph> macroGraph_;
  mutable std::optional<GraphOrder> macroOrder_;
  mutable std::optional<std::vector<KeyLeftDown>> leftDown_;
};

/// Takes the problems, each for the rule that runs.
class Report {
 public:
  explicit Report(const FilePair& pair) : pair_(pair) {}

  void Begin(const Rule& rule) { rule_ = &rule; }
  /// An empty range stands for the line that it is in. Without an advice the rule's own holds.
  void Add(const Place& place, Range range, std::string text, std::string advice = {});
  void Add(const Mention& mention, std::string text, std::string advice = {});
  void Add(FileKind file, Range range, std::string text, std::string advice = {});

  [[nodiscard]] std::vector<Problem> TakeSorted();

 private:
  const FilePair& pair_;
  const Rule* rule_ = nullptr;
  std::vector<Problem> problems_;
};

/// Pieces of a sentence, one behind the other.
[[nodiscard]] std::string Said(std::initializer_list<std::string_view> pieces);
/// A word of the user's in quotation marks, cut where it is long, without what cannot be shown.
[[nodiscard]] std::string Shown(std::string_view word);
/// Things in a row: "a", "a or b", "a, b or c".
[[nodiscard]] std::string OneOf(const std::vector<std::string>& things);

// Words that mean something by themselves and are no macro's name, as long as no macro has them.
[[nodiscard]] bool IsLogicWord(std::string_view word);
[[nodiscard]] bool IsForeignWord(std::string_view word);

}  // namespace tarvik::model
