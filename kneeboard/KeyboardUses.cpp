#include "kneeboard/KeyboardUses.h"

#include <algorithm>
#include <tuple>

#include "language/KeyTable.h"

namespace tarvik::kneeboard {
namespace {

using model::In;

/// Where a key stands: its row, and its place in it.
std::tuple<int, int, std::string> OrderOf(const std::string& key) {
  constexpr int kBehindAll = 1000000;
  for (const KeyRow& row : kKeys) {
    const bool isAux = row.mark == Mark::Aux;
    if (row.name == key || (isAux && row.name.ends_with(key))) return {row.place.top, row.place.left, key};
  }
  return {kBehindAll, 0, key};
}

class Uses {
 public:
  explicit Uses(const Deeds& deeds) : deeds_(deeds), controls_(deeds.Macros().size()) {}

  std::vector<KeyUse> Collect() {
    const model::FilePair& pair = deeds_.Speaker().Pair();
    for (std::size_t i = 0; i < pair.joystick.size(); ++i) {
      const std::string_view lines = pair.joystick.LinesOf(i, pair.joystickText);
      if (const auto* button = std::get_if<model::Button>(&pair.joystick[i].body)) {
        const bool isRocker = pair.joystick[i].row->form == model::StatementForm::Rocker;
        std::string control(isRocker ? "RKR " : "");
        Take(lines, button->sends, control.append(In(lines, button->control)));
      } else if (const auto* axis = std::get_if<model::Axis>(&pair.joystick[i].body)) {
        Take(lines, axis->keys, std::string(axis->shape->word));
      }
    }
    for (std::size_t i = 0; i < controls_.size(); ++i) {
      const MacroWords& macro = deeds_.Macros()[i];
      for (const Press& each : macro.presses) Add(each, macro.words, macro.heading, controls_[i]);
    }
    return Sorted();
  }

 private:
  void Take(std::string_view lines, const model::Sequence& sequence, const std::string& control) {
    for (const model::Item& item : sequence.items) {
      if (item.kind != model::ItemKind::Name) continue;
      const MacroWords* macro = deeds_.Find(In(lines, item.range));
      if (macro == nullptr) continue;
      auto& controls = controls_[static_cast<std::size_t>(macro - deeds_.Macros().data())];
      if (std::ranges::find(controls, control) == controls.end()) controls.push_back(control);
    }
    for (const Press& each : deeds_.PressesOf(lines, sequence.items)) {
      Add(each, InLetters(each), {}, {control});
    }
    for (const model::Branch& branch : sequence.branches) Take(lines, branch.sequence, control);
  }

  void Add(const Press& press, const std::string& words, const std::string& heading,
           const std::vector<std::string>& controls) {
    std::vector<KeyUse::Press>& presses = uses_[press.key];
    const auto found = std::ranges::find_if(presses, [&](const KeyUse::Press& each) {
      return each.with == press.with && each.words == words && each.heading == heading;
    });
    if (found == presses.end()) return presses.push_back({press.with, words, heading, controls});
    for (const std::string& each : controls) {
      if (std::ranges::find(found->controls, each) == found->controls.end()) found->controls.push_back(each);
    }
  }

  std::vector<KeyUse> Sorted() {
    std::vector<KeyUse> sorted;
    for (auto& [key, presses] : uses_) sorted.push_back({key, std::move(presses)});
    std::ranges::stable_sort(sorted, {}, [](const KeyUse& each) { return OrderOf(each.key); });
    return sorted;
  }

  const Deeds& deeds_;
  std::vector<std::vector<std::string>> controls_;  // that name each macro
  std::map<std::string, std::vector<KeyUse::Press>> uses_;
};

}  // namespace

std::vector<KeyUse> KeyUsesOf(const Deeds& deeds) { return Uses(deeds).Collect(); }

}  // namespace tarvik::kneeboard
