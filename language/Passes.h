// The colour rules of both file languages: tables of search passes, each over the whole text, of which a
// later one overrides an earlier one. Adding a statement kind is adding a row.
#pragma once

#include <span>
#include <string_view>

#include "text/Search.h"

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
  const char* status;  ///< what the status bar says from this pass on; null for no change
  int progress;        ///< of 15, for a pass of the commands' group; 0 where the bar follows the hits
};

[[nodiscard]] std::span<const Pass> JoystickPasses();
[[nodiscard]] std::span<const Pass> MacroPasses();

}  // namespace tarvik
