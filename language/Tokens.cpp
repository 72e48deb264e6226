#include "language/Tokens.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarvik::model {
namespace {

constexpr std::string_view kRem = "rem";

constexpr bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }
constexpr bool IsLetter(char byte) { return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z'); }

/// What a token may be by its first byte.
enum class Beginning : std::uint8_t {
  Word,
  Blank,
  Return,
  LineFeed,
  Opening,
  Closing,
  Equals,
  Remark,
  Slash,
  Code
};

/// Every token's first byte is asked this.
constexpr auto kBeginnings = [] {
  using enum Beginning;
  std::array<Beginning, 256> beginnings{};
  for (std::size_t byte = 0; byte < beginnings.size(); ++byte) {
    beginnings[byte] = IsBlank(static_cast<char>(byte)) ? Blank : Word;
  }
  constexpr std::pair<char, Beginning> kOthers[] = {
      {'\r', Return}, {'\n', LineFeed}, {'(', Opening}, {')', Closing}, {'=', Equals},
      {'~', Remark},  {'r', Remark},    {'R', Remark},  {'/', Slash},   {'#', Code}};
  for (const auto& [byte, beginning] : kOthers) beginnings[codepage::Byte(byte)] = beginning;
  return beginnings;
}();

/// What stands behind a word, whatever the word is. Most bytes of a file are asked this.
using Ends = std::array<bool, 256>;
constexpr Ends kEndsWord = [] {
  Ends ends{};
  for (std::size_t byte = 0; byte < ends.size(); ++byte) ends[byte] = IsBlank(static_cast<char>(byte));
  for (const char byte : {'\n', '(', ')', '~'}) ends[codepage::Byte(byte)] = true;
  return ends;
}();
/// The same within the name of a macro.
constexpr Ends kEndsNameWord = [] {
  Ends ends = kEndsWord;
  ends[codepage::Byte('=')] = true;
  return ends;
}();

/// Reads one token after another from a text.
class TokenReader {
 public:
  TokenReader(std::string_view text, FirstEquals equals)
      : text_(text), ends_(equals == FirstEquals::EndsName ? &kEndsNameWord : &kEndsWord) {}

  [[nodiscard]] bool AtEnd() const { return at_ >= text_.size(); }

  /// Reads into the token's own place: a copy of what was only just written waits for it.
  void Next(Token& token) {
    token.range.start = at_;
    token.kind = Skip();
    token.range.length = at_ - token.range.start;
  }
  /// Goes on to what is shown.
  void SkipUnseen() {
    while (!AtEnd() && (IsBlank(text_[at_]) || text_[at_] == '\n')) ++at_;
  }

 private:
  /// A blank stands for what lies behind the end.
  [[nodiscard]] char Peek(std::size_t ahead = 0) const {
    return at_ + ahead < text_.size() ? text_[at_ + ahead] : ' ';
  }

  TokenKind Take(std::size_t length, TokenKind kind) {
    at_ += length;
    return kind;
  }

  TokenKind Skip() {
    switch (kBeginnings[codepage::Byte(Peek())]) {
      case Beginning::LineFeed:
        return Take(1, TokenKind::LineEnd);
      case Beginning::Return:
        return Peek(1) == '\n' ? Take(2, TokenKind::LineEnd) : SkipBlanks();
      case Beginning::Blank:
        return SkipBlanks();
      case Beginning::Opening:
        return Take(1, TokenKind::Opening);
      case Beginning::Closing:
        return Take(1, TokenKind::Closing);
      case Beginning::Equals:
        return EndsName() ? SkipEquals() : SkipWord();
      case Beginning::Remark:
        return BeginsComment(text_.substr(at_)) ? SkipComment() : SkipWord();
      case Beginning::Slash:
        return AtModifier() ? Take(2, TokenKind::Modifier) : SkipWord();
      case Beginning::Code:
        return IsWordCharacter(Peek(1)) ? SkipCode() : SkipWord();
      case Beginning::Word:
        break;
    }
    return SkipWord();
  }

  [[nodiscard]] bool EndsName() const { return ends_ == &kEndsNameWord; }

  /// A slash anywhere else, or before a longer word, is part of that word.
  [[nodiscard]] bool AtModifier() const {
    const bool behindBlank = at_ == 0 || IsBlank(text_[at_ - 1]) || text_[at_ - 1] == '\n';
    return behindBlank && IsLetter(Peek(1)) && !IsWordCharacter(Peek(2));
  }

  TokenKind SkipBlanks() {
    while (!AtEnd() && IsBlank(text_[at_]) && (text_[at_] != '\r' || Peek(1) != '\n')) ++at_;
    return TokenKind::Blank;
  }

  /// Any further "=" is a key.
  TokenKind SkipEquals() {
    ends_ = &kEndsWord;
    return Take(1, TokenKind::Equals);
  }

  TokenKind SkipComment() {
    at_ = std::min(text_.find('\n', at_), text_.size());
    if (at_ < text_.size() && text_[at_ - 1] == '\r') --at_;
    return TokenKind::Comment;
  }

  TokenKind SkipCode() {
    ++at_;
    while (!AtEnd() && IsWordCharacter(text_[at_])) ++at_;
    return TokenKind::Code;
  }

  TokenKind SkipWord() {
    const std::size_t start = at_++;
    while (!AtEnd() && !(*ends_)[codepage::Byte(text_[at_])]) ++at_;
    const std::string_view word = text_.substr(start, at_ - start);
    if (IsDigit(word.front()) && std::ranges::all_of(word, IsDigit)) return TokenKind::Number;
    return word == "AND" || word == "OR" || word == "NOT" ? TokenKind::Logic : TokenKind::Word;
  }

  std::string_view text_;
  const Ends* ends_;
  std::size_t at_ = 0;
};

}  // namespace

std::vector<Token> TokensOf(std::string_view text, FirstEquals equals) {
  std::vector<Token> tokens;
  TokenReader reader(text, equals);
  while (!reader.AtEnd()) reader.Next(tokens.emplace_back());
  return tokens;
}

void ReadWords(std::string_view text, FirstEquals equals, std::vector<Token>& words,
               std::vector<Range>& comments) {
  words.clear();
  TokenReader reader(text, equals);
  for (reader.SkipUnseen(); !reader.AtEnd(); reader.SkipUnseen()) {
    Token& token = words.emplace_back();
    reader.Next(token);
    if (token.kind == TokenKind::Comment) {
      comments.push_back(token.range);
      words.pop_back();
    }
  }
}

bool BeginsComment(std::string_view text) {
  if (text.starts_with('~')) return true;
  return text.size() >= kRem.size() && ToLower(text[0]) == kRem[0] &&
         SameWord(text.substr(0, kRem.size()), kRem) &&
         (text.size() == kRem.size() || !IsWordCharacter(text[kRem.size()]));
}

}  // namespace tarvik::model
