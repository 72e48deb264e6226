// The colour rules of both file languages: tables of search passes, each over the whole text, of which a
// later one overrides an earlier one. Adding a statement kind is adding a row.
#pragma once

#include <functional>
#include <span>

#include "panes/Pane.h"

namespace tarvik {

/// What a character is, and so which setting gives its colour.
enum class ColourClass : unsigned char { Black, Button, Slash, Raw, Miscellaneous, Comment };
inline constexpr int kColourClasses = 6;

/// How a pass goes on from a hit of its text.
enum class PassKind {
  WordAndOperand,  ///< the word, the character behind it, and the operand up to the next blank
  Modifier,        ///< a "/" behind a blank, and the one character behind it
  Bracket,         ///< the opening text, and the ")" that closes it
  FollowedWord,    ///< the word, when the follow character stands right behind it
  PlainWord,       ///< the word
  Port,            ///< the word up to the next "S", and the rest of the line as a control statement
  Comment,         ///< the word and the rest of the line
};

struct Pass {
  std::string_view text;
  PassKind kind;
  int options;  ///< of the search, see find::
  char follow;  ///< the follow character of FollowedWord
  ColourClass colour;
  const char* status;  ///< what status panel 1 says from this pass on; null for no change
  int progress;        ///< of 15, for a pass of the commands' group; 0 where the bar follows the hits
};

[[nodiscard]] std::span<const Pass> JoystickPasses();
[[nodiscard]] std::span<const Pass> MacroPasses();

/// The classes of all characters of one text, as far as the passes made so far have set them.
class Painting {
 public:
  explicit Painting(SearchableText text) : text_(text), classes_(text.text.size(), ColourClass::Black) {}

  /// Makes one pass. `onHit` is told the position of each hit.
  void Run(const Pass& pass, const std::function<void(std::size_t)>& onHit = {});
  /// The colours of the classes, `colours` being indexed by ColourClass.
  [[nodiscard]] ColourRuns Colours(std::span<const Colour, kColourClasses> colours) const;

 private:
  std::size_t Handle(const Pass& pass, std::size_t hit);
  std::size_t HandleWordAndOperand(const Pass& pass, std::size_t hit);
  std::size_t HandleModifier(const Pass& pass, std::size_t hit);
  std::size_t HandleBracket(const Pass& pass, std::size_t hit);
  std::size_t HandlePort(const Pass& pass, std::size_t hit);
  [[nodiscard]] std::size_t Until(std::string_view set, std::size_t from) const;
  void Paint(std::size_t from, std::size_t to, ColourClass colour);

  SearchableText text_;
  std::vector<ColourClass> classes_;
};

}  // namespace tarvik
