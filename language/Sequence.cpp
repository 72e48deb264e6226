#include "language/Sequence.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "language/KeyTable.h"
#include "text/CodePage.h"

namespace tarvik::model {
namespace {

constexpr std::string_view kAux = "AUX";
constexpr std::string_view kReset = "F22RST";
/// Beside one another: up to three places of the dogfight switch.
constexpr std::size_t kUsualBranches = 3;

struct BracketWord {
  std::string_view word;
  ItemKind kind;
};

constexpr BracketWord kBracketWords[] = {
    {"RAW", ItemKind::Raw}, {"DLY", ItemKind::Delay}, {"RPT", ItemKind::Repeat}};

/// The names of the keyboard's keys that are longer than a character, parted by their length.
constexpr std::size_t kLongestKey = 6;
using KeyNames = std::array<std::vector<std::string_view>, kLongestKey + 1>;

const KeyNames& NamesOfKeys() {
  static const KeyNames kNames = [] {
    KeyNames names;
    for (const KeyRow& row : kKeys) {
      if (row.name.size() <= kLongestKey && row.name.size() > 1) names[row.name.size()].push_back(row.name);
    }
    return names;
  }();
  return kNames;
}

bool IsLongKeyName(std::string_view word) {
  if (word.size() > kLongestKey) return false;
  return std::ranges::any_of(NamesOfKeys()[word.size()],
                             [word](std::string_view name) { return SameWord(name, word); });
}

const SlashLetter* SlashOf(std::string_view modifier) {
  const char letter = ToUpper(modifier.back());
  const SlashLetter* row = std::ranges::find(kSlashLetters, letter, &SlashLetter::letter);
  return row == std::end(kSlashLetters) ? nullptr : row;
}

ItemKind KindOf(std::string_view word) {
  if (word.size() == 1) return ItemKind::Key;
  if (std::ranges::any_of(kPrefixes, [word](std::string_view each) { return SameWord(each, word); })) {
    return ItemKind::Prefix;
  }
  if (IsKeyName(word)) return ItemKind::Key;
  if (SameWord(word, kReset)) return ItemKind::Reset;
  return word.starts_with('/') || word.starts_with('#') ? ItemKind::Unknown : ItemKind::Name;
}

/// The item whose word stands before an opening bracket; null for any other.
const BracketWord* BracketWordAt(const TokenCursor& cursor) {
  if (!cursor.IsNext(TokenKind::Opening)) return nullptr;
  const BracketWord* row = std::ranges::find_if(
      kBracketWords, [&](const BracketWord& each) { return SameWord(each.word, cursor.Words()); });
  return row == std::end(kBracketWords) ? nullptr : row;
}

/// A bracket that does not close ends at the next slash modifier. DLY and RPT hold one word, so that without
/// the closing bracket what follows is read as usual.
void ReadBracketItem(TokenCursor& cursor, ItemKind kind, Item& item) {
  item.kind = kind;
  const std::size_t start = cursor.Take().start;
  cursor.Take();
  if (kind != ItemKind::Raw) {
    item.number = NumberIn(cursor.Words());
    if (cursor.IsWord()) cursor.Take();
  }
  const bool takesMore = kind == ItemKind::Raw;
  while (takesMore && !cursor.AtEnd() && !cursor.Is(TokenKind::Closing) && !cursor.Is(TokenKind::Modifier)) {
    cursor.Take();
  }
  item.closed = cursor.Is(TokenKind::Closing);
  if (item.closed) cursor.Take();
  item.range.start = start;
  item.range.length = cursor.End() - start;
}

void ReadItem(TokenCursor& cursor, Item& item) {
  if (const BracketWord* row = BracketWordAt(cursor)) return ReadBracketItem(cursor, row->kind, item);
  item.kind = KindOf(cursor.Words());
  item.range = cursor.Take();
}

/// The modifiers that a sequence stands behind. One of a group that is open ends the branches inside that
/// group's own and goes on beside it, so that the tree is never deeper than there are groups and manners.
class OpenModifiers {
 public:
  [[nodiscard]] bool Holds(const SlashLetter* slash) const { return (bits_ & BitOf(slash)) != 0; }
  [[nodiscard]] bool HoldsManner() const { return (bits_ & ~kGroups) != 0; }
  [[nodiscard]] OpenModifiers With(const SlashLetter* slash) const {
    OpenModifiers more = *this;
    more.bits_ |= BitOf(slash);
    return more;
  }

 private:
  static constexpr unsigned kGroups = (1U << static_cast<unsigned>(SlashGroup::Manner)) - 1;

  /// A bit a group, one a letter of the manners, and one for all letters that are no modifier.
  static unsigned BitOf(const SlashLetter* slash) {
    if (slash == nullptr) return 1U << (static_cast<unsigned>(SlashGroup::Manner) + std::size(kSlashLetters));
    if (slash->group != SlashGroup::Manner) return 1U << static_cast<unsigned>(slash->group);
    return 1U << (static_cast<unsigned>(SlashGroup::Manner) + static_cast<unsigned>(slash - kSlashLetters));
  }

  unsigned bits_ = 0;
};

bool IsManner(const SlashLetter* slash) { return slash == nullptr || slash->group == SlashGroup::Manner; }

void ReadSequenceBehind(TokenCursor& cursor, OpenModifiers open, Sequence& sequence) {
  sequence.items.reserve(cursor.CountUpTo(TokenKind::Modifier));
  while (!cursor.AtEnd() && !cursor.Is(TokenKind::Modifier)) ReadItem(cursor, sequence.items.emplace_back());
  while (!cursor.AtEnd()) {
    const SlashLetter* slash = SlashOf(cursor.Words());
    const bool beside = IsManner(slash) && open.HoldsManner() && !sequence.IsEmpty();
    if (open.Holds(slash) || beside) break;
    if (sequence.branches.empty()) sequence.branches.reserve(kUsualBranches);
    const Range modifier = cursor.Take();
    sequence.branches.push_back({modifier, slash});
    ReadSequenceBehind(cursor, open.With(slash), sequence.branches.back().sequence);
  }
}

}  // namespace

Sequence ReadSequence(TokenCursor& cursor) {
  Sequence sequence;
  ReadSequenceBehind(cursor, {}, sequence);
  return sequence;
}

std::optional<std::uint32_t> NumberIn(std::string_view word) {
  std::uint32_t number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return number;
}

std::vector<RawCode> RawCodesOf(std::string_view statement, const Item& item) {
  std::vector<RawCode> codes;
  bool inside = false;
  for (const Token& token : TokensOf(In(statement, item.range))) {
    const Range range{item.range.start + token.range.start, token.range.length};
    const bool shown = token.kind != TokenKind::Blank && token.kind != TokenKind::LineEnd &&
                       token.kind != TokenKind::Comment && token.kind != TokenKind::Closing;
    if (inside && shown) {
      const std::string_view word = In(statement, range);
      std::uint8_t value = 0;
      const auto [end, error] = std::from_chars(word.data() + 1, word.data() + word.size(), value, 16);
      const bool isCode = token.kind == TokenKind::Code && word.size() == 3 && error == std::errc() &&
                          end == word.data() + word.size();
      codes.push_back({range, isCode ? std::optional(value) : std::nullopt});
    }
    if (token.kind == TokenKind::Opening) inside = true;
  }
  return codes;
}

bool IsKeyName(std::string_view word) { return word.size() == 1 || IsLongKeyName(WithoutAux(word)); }

std::string_view WithoutAux(std::string_view word) {
  const bool hasAux = word.size() > kAux.size() && SameWord(word.substr(0, kAux.size()), kAux);
  return hasAux ? word.substr(kAux.size()) : word;
}

bool IsBracketWord(std::string_view word) {
  return std::ranges::any_of(kBracketWords,
                             [word](const BracketWord& each) { return SameWord(each.word, word); });
}

}  // namespace tarvik::model
