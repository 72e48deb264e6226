#include "kneeboard/Deeds.h"

#include <algorithm>
#include <utility>

#include "language/Checking.h"
#include "language/KeyTable.h"
#include "text/CodePage.h"

namespace tarvik::kneeboard {
namespace {

using model::Item;
using model::ItemKind;
using model::Said;

/// Nobody reads more keys of one deed; macros in macros could make millions.
constexpr std::size_t kMostKeys = 400;
constexpr int kMostSteps = 4000;

bool IsCapital(char letter) { return letter >= 'A' && letter <= 'Z'; }
bool IsSmall(char letter) { return letter >= 'a' && letter <= 'z'; }
bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

/// The words of a name: parted at "_", "-" and ".", and where a capital letter follows a small one.
std::vector<std::string> WordsIn(std::string_view name) {
  std::vector<std::string> words(1);
  for (std::size_t i = 0; i < name.size(); ++i) {
    const char letter = name[i];
    const bool parts = letter == '_' || letter == '-' || letter == '.';
    const bool begins = i > 0 && IsCapital(letter) && IsSmall(name[i - 1]);
    if ((parts || begins) && !words.back().empty()) words.emplace_back();
    if (!parts) words.back().push_back(letter);
  }
  if (words.back().empty()) words.pop_back();
  return words;
}

/// Whether a word among words with small letters is an abbreviation, which stays as it is.
bool IsAbbreviation(const std::string& word, bool allCapitals) {
  return !allCapitals && word.size() > 1 && std::ranges::none_of(word, IsSmall);
}

std::string JoinedBy(const std::vector<std::string>& pieces, std::string_view between) {
  std::string joined;
  for (const std::string& piece : pieces) {
    if (!joined.empty()) joined.append(between);
    joined.append(piece);
  }
  return joined;
}

/// The row of a key's name: that of the letter for a capital one, and of the key whose face has the sign with
/// Shift.
PressedKey KeyOf(std::string_view word) {
  const std::string_view name = model::WithoutAux(word);
  for (const KeyRow& row : kKeys) {
    if (row.name == name || (name.size() > 1 && model::SameWord(row.name, name)))
      return {{}, std::string(row.name)};
  }
  for (const KeyRow& row : kKeys) {
    if (name.size() == 1 && row.shiftCaption[0] == name[0]) return {"SHF", std::string(row.name)};
  }
  return {{}, std::string(word)};
}

std::string Shown(const PressedKey& key) { return key.with.empty() ? key.key : key.with + " " + key.key; }

/// What holds the key at `at`: the prefixes right before it.
std::string HeldWith(std::string_view lines, std::span<const Item> items, std::size_t at) {
  std::size_t first = at;
  while (first > 0 && items[first - 1].kind == ItemKind::Prefix) --first;
  std::string with;
  for (std::size_t i = first; i < at; ++i) {
    if (!with.empty()) with.push_back(' ');
    with.append(UpperCase(model::In(lines, items[i].range)));
  }
  return with;
}

/// Empty where the number cannot be read.
std::string TimesOf(const Item& repeat) {
  return repeat.number ? Said({std::to_string(*repeat.number), "x "}) : std::string();
}

std::string InWords(std::string_view with) {
  std::string words;
  for (const auto& [prefix, said] : {std::pair{"CTL", "Ctrl+"}, {"ALT", "Alt+"}, {"SHF", "Shift+"}}) {
    if (with.find(prefix) != std::string_view::npos) words.append(said);
  }
  return words;
}

}  // namespace

std::string ReadableName(std::string_view name) {
  const std::vector<std::string> words = WordsIn(name);
  const bool allCapitals = std::ranges::none_of(name, IsSmall);
  std::string readable;
  for (std::string word : words) {
    const bool keeps = IsAbbreviation(word, allCapitals) || std::ranges::any_of(word, IsDigit);
    if (!keeps) word = LowerCase(word);
    if (readable.empty() && !word.empty()) word[0] = ToUpper(word[0]);
    if (!readable.empty()) readable.push_back(' ');
    readable.append(word);
  }
  return readable;
}

std::string DeedWriter::WordsOf(const model::MacroNames& macro) const {
  const std::string comment = speaker_.CommentOf(macro);
  return comment.empty() ? ReadableName(macro.name) : comment;
}

std::string DeedWriter::HeadingOf(const model::MacroNames& macro) const {
  if (macro.definitions.empty()) return {};
  const model::FilePair& pair = speaker_.Pair();
  return model::HeadingOver(pair.macros, pair.macroText, macro.definitions.front().statement);
}

const model::Sequence* DeedWriter::SequenceOf(const model::MacroNames& macro, std::string_view& lines) const {
  if (macro.definitions.empty()) return nullptr;
  const model::FilePair& pair = speaker_.Pair();
  const std::size_t at = macro.definitions.front().statement;
  lines = pair.macros.LinesOf(at, pair.macroText);
  const auto* definition = std::get_if<model::MacroDefinition>(&pair.macros[at].body);
  return definition == nullptr ? nullptr : std::get_if<model::Sequence>(&definition->sends);
}

std::vector<PressedKey> DeedWriter::KeysAt(std::string_view lines, std::span<const Item> items,
                                           std::size_t at) const {
  const std::string_view word = model::In(lines, items[at].range);
  std::vector<PressedKey> keys;
  if (items[at].kind == ItemKind::Raw) {
    for (const std::string_view key : model::KeysPressedBy(lines, items[at]))
      keys.push_back({{}, std::string(key)});
  }
  const std::string with = HeldWith(lines, items, at);
  if (items[at].kind != ItemKind::Key || (with.empty() && speaker_.IsNullSign(word))) return keys;
  PressedKey key = KeyOf(word);
  const bool hasBoth = !with.empty() && !key.with.empty() && with.find(key.with) == std::string::npos;
  if (!with.empty()) key.with = hasBoth ? Said({with, " ", key.with}) : with;
  keys.push_back(std::move(key));
  return keys;
}

std::vector<PressedKey> DeedWriter::KeysIn(std::string_view lines, std::span<const Item> items) const {
  std::vector<PressedKey> keys;
  for (std::size_t i = 0; i < items.size(); ++i) {
    for (PressedKey& key : KeysAt(lines, items, i)) keys.push_back(std::move(key));
  }
  return keys;
}

bool DeedWriter::Keys::IsFull() const { return list.size() > kMostKeys || steps > kMostSteps; }

void DeedWriter::AddKeysOf(std::string_view lines, const model::Sequence& sequence, Chain& open,
                           Keys& keys) const {
  const std::span<const Item> items = sequence.items;
  for (std::size_t i = 0; i < items.size() && !keys.IsFull(); ++i) {
    ++keys.steps;
    if (items[i].kind == ItemKind::Name) {
      const model::MacroNames* const inner = speaker_.Names().FindMacro(model::In(lines, items[i].range));
      if (inner) AddKeysOf(*inner, open, keys);
    } else if (items[i].kind == ItemKind::Repeat) {
      keys.times = TimesOf(items[i]);
    } else {
      for (const PressedKey& key : KeysAt(lines, items, i)) keys.Add(Shown(key));
    }
  }
  for (const model::Branch& branch : sequence.branches) AddKeysOf(lines, branch.sequence, open, keys);
}

/// A macro in itself adds nothing. Several keys that are repeated stand in brackets.
void DeedWriter::AddKeysOf(const model::MacroNames& macro, Chain& open, Keys& keys) const {
  std::string_view lines;
  const bool isOpen = std::ranges::find(open, &macro) != open.end();
  const model::Sequence* const sequence = isOpen ? nullptr : SequenceOf(macro, lines);
  if (!sequence) return;
  const std::string times = std::exchange(keys.times, {});
  const std::size_t first = keys.list.size();
  open.push_back(&macro);
  AddKeysOf(lines, *sequence, open, keys);
  open.pop_back();
  const std::size_t count = keys.list.size() - first;
  if (times.empty() || count == 0) return;
  keys.list[first].insert(0, count > 1 ? times + "(" : times);
  if (count > 1) keys.list.back().append(")");
}

void DeedWriter::TakeName(std::string_view word, Pieces& pieces) const {
  const model::MacroNames* const macro = speaker_.Names().FindMacro(word);
  if (!macro || macro->definitions.empty()) {
    pieces.Say(ReadableName(word));
    pieces.hasNames = true;
    return;
  }
  pieces.Say(WordsOf(*macro));
  pieces.hasNames = true;
  Chain open;
  AddKeysOf(*macro, open, pieces.keys);
  if (pieces.heading.empty()) pieces.heading = HeadingOf(*macro);
}

void DeedWriter::Take(std::string_view lines, std::span<const Item> items, std::size_t at,
                      Pieces& pieces) const {
  const Item& item = items[at];
  const std::string_view word = model::In(lines, item.range);
  if (speaker_.IsNullSign(word) && HeldWith(lines, items, at).empty()) return;
  switch (item.kind) {
    case ItemKind::Name:
      return TakeName(word, pieces);
    case ItemKind::Key: {
      const PressedKey key = KeysAt(lines, items, at).back();
      pieces.Say(InWords(key.with) + model::KeyInWords(key.key));
      pieces.keys.Add(Shown(key));
      return;
    }
    case ItemKind::Raw:
      for (const std::string& code : model::CodesInWords(lines, item)) pieces.Say(code);
      for (const PressedKey& key : KeysAt(lines, items, at)) pieces.keys.Add(Shown(key));
      return;
    case ItemKind::Repeat:
      pieces.before = pieces.keys.times = TimesOf(item);
      return;
    case ItemKind::Reset:
      pieces.Say("reset the stick");
      return;
    default:
      return;
  }
}

Deed DeedWriter::DeedOf(std::string_view lines, std::span<const Item> items) const {
  Pieces pieces;
  for (std::size_t i = 0; i < items.size(); ++i) Take(lines, items, i, pieces);
  std::vector<std::string>& keys = pieces.keys.list;
  if (pieces.keys.IsFull()) {
    keys.resize(std::min(keys.size(), kMostKeys));
    keys.emplace_back("and more than can be told");
  }
  // Words that are nothing but keys have said them.
  return {.words = ToUtf8(JoinedBy(pieces.words, ", ")),
          .keys = pieces.hasNames ? ToUtf8(JoinedBy(keys, " ")) : std::string(),
          .heading = ToUtf8(pieces.heading)};
}

}  // namespace tarvik::kneeboard
