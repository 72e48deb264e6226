#include "kneeboard/Deeds.h"

#include <algorithm>

#include "kneeboard/Words.h"
#include "language/KeyTable.h"
#include "text/CodePage.h"

namespace tarvik::kneeboard {
namespace {

using model::In;
using model::Item;
using model::ItemKind;

constexpr std::size_t kDeepest = 32;      // of macros that name macros
constexpr std::size_t kMostPresses = 64;  // of a macro; what comes behind is no longer told

struct HeldKey {
  std::string_view name;
  std::string_view prefix;
};

constexpr HeldKey kHeld[] = {{"LSFT", "SHF"}, {"RSFT", "SHF"}, {"LCTL", "CTL"},
                             {"RCTL", "CTL"}, {"LALT", "ALT"}, {"RALT", "ALT"}};

std::string_view PrefixOf(std::string_view key) {
  const auto* row = std::ranges::find(kHeld, key, &HeldKey::name);
  return row == std::end(kHeld) ? std::string_view{} : row->prefix;
}

void Append(std::string& text, std::string_view words, std::string_view between) {
  if (!text.empty() && !words.empty()) text.append(between);
  text.append(words);
}

/// A key as the table has it, with Shift where its sign tells of it.
Press PressOf(std::string_view word) {
  if (word.size() == 1) {
    for (const KeyRow& row : kKeys) {
      if (row.name == word) return {{}, std::string(word)};
      if (row.shiftCaption[0] == word[0] && row.name.size() == 1) return {"SHF", std::string(row.name)};
    }
    return {{}, std::string(word)};
  }
  std::string key(word);
  std::ranges::transform(key, key.begin(), ToUpper);
  if (key.starts_with("AUX") && key.size() > 3) key.erase(0, 3);
  return {{}, key};
}

/// Follows what the codes of a RAW press and let go.
class CodePresses {
 public:
  explicit CodePresses(std::vector<Press>& presses) : presses_(presses) {}
  ~CodePresses() {
    if (used_) return;
    for (const std::string& each : held_) presses_.push_back({{}, each});
  }
  CodePresses(const CodePresses&) = delete;
  CodePresses& operator=(const CodePresses&) = delete;

  void Take(std::uint8_t code) {
    if (code == 0xE0) {
      extended_ = true;
    } else if (code == 0xF0) {
      released_ = true;
    } else {
      const KeyRow* const row = model::KeyOfCode(code, extended_);
      if (row != nullptr && !released_) Down(row->name);
      extended_ = released_ = false;
    }
  }

 private:
  void Down(std::string_view key) {
    if (!PrefixOf(key).empty()) {
      if (std::ranges::find(held_, key) == held_.end()) held_.emplace_back(key);
      return;
    }
    used_ = true;
    std::string with;
    for (const std::string& each : held_) Append(with, PrefixOf(each), " ");
    presses_.push_back({with, std::string(key)});
  }

  std::vector<Press>& presses_;
  std::vector<std::string> held_;
  bool extended_ = false;
  bool released_ = false;
  bool used_ = false;
};

std::string InLetters(const std::vector<Press>& presses) {
  std::string letters;
  for (const Press& each : presses) Append(letters, kneeboard::InLetters(each), ", ");
  return letters;
}

}  // namespace

std::string InLetters(const Press& press) {
  std::string letters = press.with;
  Append(letters, press.key, " ");
  return letters;
}

Deeds::Deeds(const model::FilePair& pair, const model::NameIndex& names)
    : speaker_(pair, names), macros_(names.Macros().size()), states_(names.Macros().size()) {
  for (std::size_t i = 0; i < macros_.size(); ++i) {
    const model::MacroNames& macro = names.Macros()[i];
    const std::string remark = BareRemark(speaker_.CommentOf(macro));
    macros_[i].words = remark.empty() ? ReadableName(macro.name) : remark;
  }
  ReadHeadings();
  for (std::size_t i = 0; i < macros_.size(); ++i) ReadPresses(i);
  for (MacroWords& each : macros_) each.keys = InLetters(each.presses);
}

void Deeds::ReadHeadings() {
  const model::FilePair& pair = speaker_.Pair();
  std::map<std::size_t, std::size_t> first;  // macros by the statements that define them
  for (std::size_t i = 0; i < macros_.size(); ++i) {
    const auto& definitions = speaker_.Names().Macros()[i].definitions;
    if (!definitions.empty()) first.emplace(definitions.front().statement, i);
  }
  constexpr std::size_t kLinesOfHeading = 3;
  std::size_t before = 0;
  std::string heading;
  for (const auto& [statement, macro] : first) {
    if (statement - before >= kLinesOfHeading) {
      heading = model::HeadingOver(pair.macros, pair.macroText, statement);
      const bool isNew = !heading.empty() && std::ranges::find(headings_, heading) == headings_.end();
      if (isNew) headings_.push_back(heading);
    }
    macros_[macro].heading = heading;
    before = statement;
  }
}

void Deeds::ReadPresses(std::size_t macro) {
  if (states_[macro] != 0 || depth_ > kDeepest) return;
  states_[macro] = 1;
  ++depth_;
  const auto& definitions = speaker_.Names().Macros()[macro].definitions;
  if (!definitions.empty()) {
    const model::FilePair& pair = speaker_.Pair();
    const std::size_t at = definitions.front().statement;
    const auto* definition = std::get_if<model::MacroDefinition>(&pair.macros[at].body);
    const auto* sends = definition == nullptr ? nullptr : std::get_if<model::Sequence>(&definition->sends);
    if (sends != nullptr) AddPresses(pair.macros.LinesOf(at, pair.macroText), *sends, macros_[macro]);
  }
  --depth_;
}

void Deeds::AddPresses(std::string_view lines, const model::Sequence& sequence, MacroWords& macro) {
  const auto add = [&](const std::vector<Press>& presses) {
    for (const Press& each : presses) {
      if (macro.presses.size() < kMostPresses) macro.presses.push_back(each);
    }
  };
  std::size_t begin = 0;
  for (std::size_t i = 0; i <= sequence.items.size(); ++i) {
    const bool atEnd = i == sequence.items.size();
    if (!atEnd && sequence.items[i].kind != ItemKind::Name) continue;
    add(PressesOf(lines, std::span(sequence.items).subspan(begin, i - begin)));
    begin = i + 1;
    if (atEnd) break;
    const MacroWords* inner = Find(In(lines, sequence.items[i].range));
    if (inner == nullptr || inner == &macro) continue;
    ReadPresses(static_cast<std::size_t>(inner - macros_.data()));
    add(inner->presses);
  }
  for (const model::Branch& branch : sequence.branches) AddPresses(lines, branch.sequence, macro);
}

const MacroWords* Deeds::Find(std::string_view name) const {
  const model::MacroNames* macro = speaker_.Names().FindMacro(name);
  if (macro == nullptr || macro->definitions.empty()) return nullptr;
  return &macros_[static_cast<std::size_t>(macro - speaker_.Names().Macros().data())];
}

std::vector<Press> Deeds::PressesOf(std::string_view lines, std::span<const Item> items) const {
  std::vector<Press> presses;
  std::string held;
  for (const Item& item : items) {
    const std::string_view word = In(lines, item.range);
    if (item.kind == ItemKind::Prefix) {
      std::string prefix(word);
      std::ranges::transform(prefix, prefix.begin(), ToUpper);
      Append(held, prefix, " ");
      continue;
    }
    if (item.kind == ItemKind::Key && !(held.empty() && speaker_.IsNullSign(word))) {
      Press press = PressOf(word);
      if (held.find(press.with) == std::string::npos) Append(held, press.with, " ");
      presses.push_back({held, std::move(press.key)});
    } else if (item.kind == ItemKind::Raw) {
      CodePresses codes(presses);
      for (const model::RawCode& code : model::RawCodesOf(lines, item)) {
        if (code.value) codes.Take(*code.value);
      }
    }
    held.clear();
  }
  return presses;
}

Deed Deeds::Of(std::string_view lines, std::span<const Item> items) const {
  Deed deed;
  std::size_t begin = 0;
  const auto addKeys = [&](std::size_t end) {
    const std::string keys = InLetters(PressesOf(lines, items.subspan(begin, end - begin)));
    Append(deed.words, keys, ", ");
    Append(deed.keys, keys, ", ");
    begin = end + 1;
  };
  for (std::size_t i = 0; i < items.size(); ++i) {
    const std::string_view word = In(lines, items[i].range);
    if (items[i].kind == ItemKind::Reset) Append(deed.words, "Reset the stick", ", ");
    if (items[i].kind != ItemKind::Name) continue;
    addKeys(i);
    if (speaker_.IsNullSign(word)) continue;
    const MacroWords* macro = Find(word);
    Append(deed.words, macro == nullptr ? ReadableName(word) : macro->words, ", ");
    if (macro == nullptr) continue;
    Append(deed.keys, macro->keys, ", ");
    if (deed.heading.empty()) deed.heading = macro->heading;
  }
  if (begin < items.size()) addKeys(items.size());
  return deed;
}

}  // namespace tarvik::kneeboard
