#include "kneeboard/KeyUses.h"

#include <algorithm>
#include <map>

#include "language/KeyTable.h"
#include "text/CodePage.h"

namespace tarvik::kneeboard {
namespace {

using model::Item;
using model::ItemKind;
using model::MacroNames;
using model::Sequence;

/// Calls `tell` with each run of items of a sequence and of its branches.
template <class Tell>
void ForEachItems(const Sequence& sequence, const Tell& tell) {
  tell(std::span<const Item>(sequence.items));
  for (const model::Branch& branch : sequence.branches) ForEachItems(branch.sequence, tell);
}

class KeyCollector {
 public:
  explicit KeyCollector(const DeedWriter& writer) : writer_(writer), pair_(writer.speaker().Pair()) {}

  std::vector<KeyUse> Collect() {
    for (const model::ControlNames& control : writer_.speaker().Names().Controls()) {
      for (const model::Mention& mention : control.assignments) Follow(control.name, mention);
    }
    for (const model::FlagNames& flag : writer_.speaker().Names().Flags()) {
      for (const model::Mention& mention : flag.buttons) Follow("X" + std::to_string(flag.number), mention);
    }
    for (const MacroNames& macro : writer_.speaker().Names().Macros()) AddMacro(macro);
    return InOrder();
  }

 private:
  /// Notes which macros a control leads to, and the keys that it presses by itself.
  void Follow(const std::string& control, const model::Mention& mention) {
    const std::string_view lines = pair_.joystick.LinesOf(mention.statement, pair_.joystickText);
    const model::JoystickStatement& statement = pair_.joystick[mention.statement];
    const auto* button = std::get_if<model::Button>(&statement.body);
    const auto* axis = std::get_if<model::Axis>(&statement.body);
    if (button == nullptr && axis == nullptr) return;
    ForEachItems(button ? button->sends : axis->keys, [&](std::span<const Item> items) {
      for (const PressedKey& key : writer_.KeysIn(lines, items)) {
        Add(key, {.with = key.with, .words = model::ControlInWords(control), .controls = {control}});
      }
      for (const Item& item : items) Lead(control, model::In(lines, item.range), item.kind);
    });
  }

  void Lead(const std::string& control, std::string_view word, ItemKind kind) {
    const MacroNames* const macro =
        kind == ItemKind::Name ? writer_.speaker().Names().FindMacro(word) : nullptr;
    if (macro == nullptr) return;
    std::vector<std::string>& controls = controls_[macro];
    if (std::ranges::find(controls, control) != controls.end()) return;  // also ends a circle
    controls.push_back(control);
    std::string_view lines;
    const Sequence* const sequence = writer_.SequenceOf(*macro, lines);
    if (sequence == nullptr) return;
    ForEachItems(*sequence, [&](std::span<const Item> items) {
      for (const Item& item : items) Lead(control, model::In(lines, item.range), item.kind);
    });
  }

  void AddMacro(const MacroNames& macro) {
    std::string_view lines;
    const Sequence* const sequence = writer_.SequenceOf(macro, lines);
    if (sequence == nullptr) return;
    const KeyUse::Press press{.words = ToUtf8(writer_.WordsOf(macro)),
                              .heading = ToUtf8(writer_.HeadingOf(macro)),
                              .controls = controls_[&macro]};
    ForEachItems(*sequence, [&](std::span<const Item> items) {
      for (const PressedKey& key : writer_.KeysIn(lines, items)) {
        KeyUse::Press own = press;
        own.with = key.with;
        Add(key, std::move(own));
      }
    });
  }

  void Add(const PressedKey& key, KeyUse::Press press) {
    std::vector<KeyUse::Press>& presses = uses_[key.key];
    if (std::ranges::find(presses, press) == presses.end()) presses.push_back(std::move(press));
  }

  [[nodiscard]] std::vector<KeyUse> InOrder() {
    std::vector<KeyUse> uses;
    for (const KeyRow& row : kKeys) {
      const auto found = uses_.find(row.name);
      if (found == uses_.end()) continue;
      uses.push_back({std::string(row.name), std::move(found->second)});
      uses_.erase(found);
    }
    for (auto& [key, presses] : uses_) uses.push_back({ToUtf8(key), std::move(presses)});
    return uses;
  }

  const DeedWriter& writer_;
  const model::FilePair& pair_;
  std::map<const MacroNames*, std::vector<std::string>> controls_;
  std::map<std::string, std::vector<KeyUse::Press>, std::less<>> uses_;
};

}  // namespace

std::vector<KeyUse> KeyUsesOf(const DeedWriter& writer) { return KeyCollector(writer).Collect(); }

}  // namespace tarvik::kneeboard
