#include "language/Tokens.h"

#include <algorithm>
#include <array>

#include "text/CodePage.h"

namespace tarvik::model {
namespace {

constexpr std::string_view kRem = "rem";

bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }
bool IsLetter(char byte) { return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z'); }

/// What stands behind a word, whatever the word is. Most bytes of a file are asked this.
constexpr std::array<bool, 256> kEndsWord = [] {
  std::array<bool, 256> ends{};
  for (std::size_t byte = 0; byte < ends.size(); ++byte) ends[byte] = IsBlank(static_cast<char>(byte));
  for (const char byte : {'\n', '(', ')', '~'}) ends[static_cast<unsigned char>(byte)] = true;
  return ends;
}();

/// Reads one token after another from a text.
class TokenReader {
 public:
  TokenReader(std::string_view text, FirstEquals equals) : text_(text), equals_(equals) {}

  [[nodiscard]] bool AtEnd() const { return at_ >= text_.size(); }

  Token Next() {
    const std::size_t start = at_;
    const TokenKind kind = Skip();
    return {kind, {start, at_ - start}};
  }

 private:
  /// A blank stands for what lies behind the end.
  [[nodiscard]] char Peek(std::size_t ahead = 0) const {
    return at_ + ahead < text_.size() ? text_[at_ + ahead] : ' ';
  }
  [[nodiscard]] bool AtLineEnd() const { return Peek() == '\n' || (Peek() == '\r' && Peek(1) == '\n'); }

  TokenKind Take(std::size_t length, TokenKind kind) {
    at_ += length;
    return kind;
  }

  TokenKind Skip() {
    if (AtLineEnd()) return Take(Peek() == '\r' ? 2 : 1, TokenKind::LineEnd);
    if (IsBlank(Peek())) return SkipBlanks();
    if (Peek() == '(') return Take(1, TokenKind::Opening);
    if (Peek() == ')') return Take(1, TokenKind::Closing);
    if (AtEquals()) {
      equals_ = FirstEquals::IsKey;
      return Take(1, TokenKind::Equals);
    }
    if (BeginsComment(text_.substr(at_))) return SkipComment();
    if (AtModifier()) return Take(2, TokenKind::Modifier);
    if (Peek() == '#' && IsWordCharacter(Peek(1))) return SkipCode();
    return SkipWord();
  }

  [[nodiscard]] bool AtEquals() const { return equals_ == FirstEquals::EndsName && Peek() == '='; }

  /// A slash anywhere else, or before a longer word, is part of that word.
  [[nodiscard]] bool AtModifier() const {
    const bool behindBlank = at_ == 0 || IsBlank(text_[at_ - 1]) || text_[at_ - 1] == '\n';
    return behindBlank && Peek() == '/' && IsLetter(Peek(1)) && !IsWordCharacter(Peek(2));
  }

  TokenKind SkipBlanks() {
    while (!AtEnd() && IsBlank(Peek()) && !AtLineEnd()) ++at_;
    return TokenKind::Blank;
  }

  TokenKind SkipComment() {
    at_ = std::min(text_.find('\n', at_), text_.size());
    if (at_ < text_.size() && text_[at_ - 1] == '\r') --at_;
    return TokenKind::Comment;
  }

  TokenKind SkipCode() {
    ++at_;
    while (!AtEnd() && IsWordCharacter(Peek())) ++at_;
    return TokenKind::Code;
  }

  TokenKind SkipWord() {
    const std::size_t start = at_++;
    const auto first = text_.begin() + static_cast<std::ptrdiff_t>(at_);
    const bool endsName = equals_ == FirstEquals::EndsName;
    const auto end = std::find_if(first, text_.end(), [endsName](char byte) {
      return kEndsWord[static_cast<unsigned char>(byte)] || (endsName && byte == '=');
    });
    at_ = static_cast<std::size_t>(end - text_.begin());
    const std::string_view word = text_.substr(start, at_ - start);
    if (std::ranges::all_of(word, IsDigit)) return TokenKind::Number;
    return word == "AND" || word == "OR" || word == "NOT" ? TokenKind::Logic : TokenKind::Word;
  }

  std::string_view text_;
  FirstEquals equals_;
  std::size_t at_ = 0;
};

}  // namespace

std::vector<Token> TokensOf(std::string_view text, FirstEquals equals) {
  std::vector<Token> tokens;
  TokenReader reader(text, equals);
  while (!reader.AtEnd()) tokens.push_back(reader.Next());
  return tokens;
}

void ReadWords(std::string_view text, FirstEquals equals, std::vector<Token>& words,
               std::vector<Range>& comments) {
  using enum TokenKind;
  words.clear();
  TokenReader reader(text, equals);
  while (!reader.AtEnd()) {
    const Token token = reader.Next();
    if (token.kind == Comment) {
      comments.push_back(token.range);
    } else if (token.kind != Blank && token.kind != LineEnd) {
      words.push_back(token);
    }
  }
}

bool BeginsComment(std::string_view text) {
  if (text.starts_with('~')) return true;
  return text.size() >= kRem.size() && ToLower(text[0]) == kRem[0] &&
         SameWord(text.substr(0, kRem.size()), kRem) &&
         (text.size() == kRem.size() || !IsWordCharacter(text[kRem.size()]));
}

bool SameWord(std::string_view one, std::string_view other) {
  return one.size() == other.size() && std::ranges::equal(one, other, {}, ToLower, ToLower);
}

}  // namespace tarvik::model
