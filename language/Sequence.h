// What a control, a flag or a macro sends: items one after another, and branches behind slash modifiers,
// which say when their own items are sent. All ranges count from the beginning of the statement.
#pragma once

#include <algorithm>
#include <optional>
#include <span>

#include "language/Tokens.h"

namespace tarvik::model {

enum class ItemKind : std::uint8_t {
  Key,     ///< a key's name, or a single character
  Prefix,  ///< SHF, CTL or ALT, held with the key that follows
  Name,    ///< any other word: a macro's name, if there is such a macro
  Raw,     ///< RAW (...)
  Delay,   ///< DLY(n)
  Repeat,  ///< RPT(n)
  Reset,   ///< F22RST
  Unknown,
};

/// The words of a Prefix.
inline constexpr std::string_view kPrefixes[] = {"SHF", "CTL", "ALT"};

struct Item {
  ItemKind kind = ItemKind::Unknown;
  bool closed = true;  ///< false for a RAW, DLY or RPT whose bracket does not close
  std::optional<std::uint32_t> number =
      {};  ///< of DLY and RPT, where a number is all that stands in the bracket
  Range range = {};

  friend bool operator==(const Item&, const Item&) = default;
};

/// Bytes of scan code set 2 that are no key's own.
inline constexpr std::uint8_t kExtendedCode = 0xE0;  ///< before those of the keys that came later
inline constexpr std::uint8_t kPauseCode = 0xE1;
inline constexpr std::uint8_t kBreakCode = 0xF0;  ///< before that of a key that goes up
/// Behind E1 stand two codes, with which Pause goes down and up at once.
inline constexpr int kCodesOfPause = 2;

/// A byte of a RAW statement. What is no pair of hexadecimal digits has no value.
struct RawCode {
  Range range;
  std::optional<std::uint8_t> value;

  friend bool operator==(const RawCode&, const RawCode&) = default;
};

/// The matters that slash modifiers are about.
enum class SlashGroup : std::uint8_t { Dogfight, Shift, Press, Turns, Manner };

struct SlashLetter {
  char letter;
  SlashGroup group;
};

inline constexpr SlashLetter kSlashLetters[] = {
    {'U', SlashGroup::Dogfight}, {'M', SlashGroup::Dogfight}, {'D', SlashGroup::Dogfight},
    {'I', SlashGroup::Shift},    {'O', SlashGroup::Shift},    {'P', SlashGroup::Press},
    {'R', SlashGroup::Press},    {'T', SlashGroup::Turns},    {'H', SlashGroup::Manner},
    {'N', SlashGroup::Manner},   {'A', SlashGroup::Manner},   {'F', SlashGroup::Manner},
    {'Q', SlashGroup::Manner},
};

struct Branch;

/// The items are sent whatever the branches say; no item can follow a branch.
struct Sequence {
  std::vector<Item> items;
  std::vector<Branch> branches;

  [[nodiscard]] bool IsEmpty() const { return items.empty() && branches.empty(); }
  friend bool operator==(const Sequence&, const Sequence&) = default;
};

struct Branch {
  Range modifier;
  const SlashLetter* slash = nullptr;  ///< a row of kSlashLetters; null for a letter that is no modifier
  Sequence sequence = {};

  friend bool operator==(const Branch&, const Branch&) = default;
};

/// The tokens that mean something, one after another, with the text that their ranges are about.
class TokenCursor {
 public:
  TokenCursor(std::string_view text, std::span<const Token> tokens) : text_(text), tokens_(tokens) {}

  [[nodiscard]] bool AtEnd() const { return at_ >= tokens_.size(); }
  [[nodiscard]] bool Is(TokenKind kind) const { return !AtEnd() && tokens_[at_].kind == kind; }
  [[nodiscard]] bool IsNext(TokenKind kind) const {
    return at_ + 1 < tokens_.size() && tokens_[at_ + 1].kind == kind;
  }
  [[nodiscard]] bool IsWord() const {
    return Is(TokenKind::Word) || Is(TokenKind::Number) || Is(TokenKind::Logic) || Is(TokenKind::Code);
  }
  [[nodiscard]] std::string_view Words() const { return AtEnd() ? std::string_view{} : In(text_, Peek()); }
  [[nodiscard]] Range Peek() const { return AtEnd() ? Range{End(), 0} : tokens_[at_].range; }
  /// How many tokens come before the next of that kind, or the end.
  [[nodiscard]] std::size_t CountUpTo(TokenKind kind) const {
    const auto left = tokens_.subspan(std::min(at_, tokens_.size()));
    return static_cast<std::size_t>(std::ranges::find(left, kind, &Token::kind) - left.begin());
  }
  /// The end of the token taken last.
  [[nodiscard]] std::size_t End() const { return at_ == 0 ? 0 : tokens_[at_ - 1].range.End(); }
  Range Take() {
    const Range range = Peek();
    if (!AtEnd()) ++at_;
    return range;
  }
  /// Takes a word of any kind. Where none comes next, the range is empty and stands at the end.
  Range TakeWord() { return IsWord() ? Take() : Range{End(), 0}; }
  /// All that is left; empty at the end.
  Range TakeRest() {
    const std::size_t start = Peek().start;
    if (AtEnd()) return {start, 0};
    at_ = tokens_.size();
    return {start, End() - start};
  }

 private:
  std::string_view text_;
  std::span<const Token> tokens_;
  std::size_t at_ = 0;
};

/// Reads up to the end.
[[nodiscard]] Sequence ReadSequence(TokenCursor& cursor);
/// The number that a word is; none for any other word, and for one that is too large.
[[nodiscard]] std::optional<std::uint32_t> NumberIn(std::string_view word);
/// The codes of a RAW item of the statement whose text this is.
[[nodiscard]] std::vector<RawCode> RawCodesOf(std::string_view statement, const Item& item);
/// Whether a word names a key, in either case: a single character, or a name of the keyboard, also behind
/// AUX.
[[nodiscard]] bool IsKeyName(std::string_view word);
/// The key's name behind AUX, or the word itself.
[[nodiscard]] std::string_view WithoutAux(std::string_view word);
/// Whether brackets follow the word: RAW, DLY, RPT.
[[nodiscard]] bool IsBracketWord(std::string_view word);

}  // namespace tarvik::model
