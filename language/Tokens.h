// The tokens of the two files: every byte of a text belongs to exactly one. Used by all that reads
// statements.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "text/CodePage.h"
#include "text/RichText.h"

namespace tarvik::model {

enum class TokenKind : std::uint8_t {
  Blank,
  LineEnd,
  Comment,  ///< from Rem or ~ to the end of the line, without the line end
  Word,
  Number,    ///< digits alone
  Modifier,  ///< a slash and a letter, behind a blank
  Code,      ///< "#" and what should be two hexadecimal digits
  Opening,
  Closing,
  Logic,   ///< AND, OR, NOT
  Equals,  ///< what ends the name of a macro
};

struct Token {
  TokenKind kind = TokenKind::Blank;
  Range range;

  friend bool operator==(const Token&, const Token&) = default;
};

/// What the first "=" is: a key as any other, or the end of a macro's name.
enum class FirstEquals { IsKey, EndsName };

/// The tokens of a text of any number of lines. Its first byte counts as the beginning of a line.
[[nodiscard]] std::vector<Token> TokensOf(std::string_view text, FirstEquals equals = FirstEquals::IsKey);
/// The tokens that mean something, in the place of what `words` held, and the comments beside them.
void ReadWords(std::string_view text, FirstEquals equals, std::vector<Token>& words,
               std::vector<Range>& comments);

/// Whether nothing of the bytes is shown: blanks, tabs and the like.
[[nodiscard]] constexpr bool IsBlank(char byte) {
  return byte == ' ' || (byte >= '\t' && byte <= '\r' && byte != '\n');
}
/// The word beginning with "Rem", or "~", makes the rest of its line a comment.
[[nodiscard]] bool BeginsComment(std::string_view text);
/// Equal but for the case of the letters.
[[nodiscard]] inline bool SameWord(std::string_view one, std::string_view other) {
  if (one.size() != other.size()) return false;
  for (std::size_t i = 0; i < one.size(); ++i) {
    if (ToLower(one[i]) != ToLower(other[i])) return false;
  }
  return true;
}
/// What the range covers.
[[nodiscard]] inline std::string_view In(std::string_view text, Range range) {
  return text.substr(range.start, range.length);
}

}  // namespace tarvik::model
