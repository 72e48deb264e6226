#include "language/KeyBalance.h"

#include <algorithm>
#include <bitset>

namespace tarvik::model {
namespace {

/// A key by its code, 256 and more for those with E0 before it.
constexpr std::size_t kKeyCodes = 512;
using KeySet = std::bitset<kKeyCodes>;

/// Calls `tell(key, pressed, range)` for each key that the codes of a RAW press or let go. One that does not
/// close may lack some of them.
template <class Tell>
void ForEachKey(const Place& place, const Item& item, const Tell& tell) {
  if (!item.closed) return;
  bool extended = false;
  bool released = false;
  int passedOver = 0;
  for (const RawCode& code : RawCodesOf(place.lines, item)) {
    const std::uint8_t value = code.value.value_or(0);
    if (value == kExtendedCode) extended = true;
    if (value == kBreakCode) released = true;
    if (value == kPauseCode) passedOver = kCodesOfPause;
    if (value == kExtendedCode || value == kBreakCode || value == kPauseCode) continue;
    if (passedOver > 0) {
      --passedOver;
    } else if (code.value) {
      tell(value + (extended ? kKeyCodes / 2 : 0), !released, place.InText(code.range));
    }
    extended = released = false;
  }
}

/// What a macro does to the keys of whoever uses it.
struct Balance {
  KeySet down;
  KeySet up;
};

struct Press {
  std::size_t key;
  Range range;
};

/// The keys along one way through a statement, from its beginning to the end of a branch, each once.
struct Way {
  std::vector<Press> down;
  std::vector<std::size_t> up;
  bool behindPress = false;

  void PressKey(std::size_t key, Range range) {
    std::erase(up, key);
    if (std::ranges::find(down, key, &Press::key) == down.end()) down.push_back({key, range});
  }
  void LetGo(std::size_t key) {
    std::erase_if(down, [key](const Press& each) { return each.key == key; });
    if (std::ranges::find(up, key) == up.end()) up.push_back(key);
  }
};

class BalanceSearch {
 public:
  explicit BalanceSearch(const Checked& checked)
      : checked_(checked), macros_(checked.names.Macros()), balanceOf_(macros_.size()) {}

  std::vector<KeyLeftDown> Run() {
    const FilePair& pair = checked_.pair;
    NoteReleases(pair.joystick, FileKind::Joystick);
    const bool macrosHaveCodes = NoteReleases(pair.macros, FileKind::Macros);
    if (macrosHaveCodes) {
      for (const std::size_t macro : checked_.MacroOrder().order) WeighMacro(macro);
    }
    for (std::size_t i = 0; i < pair.joystick.size(); ++i) Weigh(i);
    std::ranges::stable_sort(found_, {},
                             [](const KeyLeftDown& key) { return std::pair(key.file, key.range.start); });
    return std::move(found_);
  }

 private:
  static const Sequence* SequenceOf(const JoystickStatement& statement) {
    if (const auto* button = std::get_if<Button>(&statement.body)) return &button->sends;
    const auto* axis = std::get_if<Axis>(&statement.body);
    return axis == nullptr ? nullptr : &axis->keys;
  }
  static const Sequence* SequenceOf(const MacroStatement& statement) {
    const auto* definition = std::get_if<MacroDefinition>(&statement.body);
    return definition == nullptr ? nullptr : std::get_if<Sequence>(&definition->sends);
  }

  /// Whether there are codes in the file. Notes which keys are let go anywhere.
  template <class File>
  bool NoteReleases(const File& file, FileKind kind) {
    bool any = false;
    for (std::size_t i = 0; i < file.size(); ++i) {
      const Sequence* sequence = SequenceOf(file[i]);
      if (sequence == nullptr) continue;
      const Place place = checked_.PlaceOf({kind, i, {}});
      any |= NoteReleases(place, *sequence);
    }
    return any;
  }

  bool NoteReleases(const Place& place, const Sequence& sequence) {
    bool any = false;
    for (const Item& item : sequence.items) {
      if (item.kind != ItemKind::Raw) continue;
      any = true;
      ForEachKey(place, item, [&](std::size_t key, bool pressed, Range) {
        if (!pressed) letGoSomewhere_.set(key);
      });
    }
    for (const Branch& branch : sequence.branches) any |= NoteReleases(place, branch.sequence);
    return any;
  }

  /// A macro that only presses is left to those who use it, as long as anything lets go what it presses.
  void WeighMacro(std::size_t macro) {
    if (macros_[macro].definitions.empty() || checked_.MacroOrder().inCircle[macro]) return;
    const Mention& definition = macros_[macro].definitions.front();
    const Sequence* sequence = SequenceOf(checked_.pair.macros[definition.statement]);
    if (sequence == nullptr) return;
    WalkStatement(checked_.PlaceOf(definition), *sequence);
    if (left_.empty() && released_.none()) return;
    Balance balance{.down = {}, .up = released_};
    for (const KeyLeftDown& key : left_) {
      if (released_[key.key]) continue;
      if (letGoSomewhere_[key.key]) {
        balance.down.set(key.key);
      } else {
        found_.push_back(key);
      }
    }
    balanceOf_[macro] = balances_.size() + 1;
    balances_.push_back(balance);
  }

  void Weigh(std::size_t statement) {
    const Sequence* sequence = SequenceOf(checked_.pair.joystick[statement]);
    if (sequence == nullptr) return;
    WalkStatement(checked_.PlaceOf({FileKind::Joystick, statement, {}}), *sequence);
    for (const KeyLeftDown& key : left_) {
      const bool same = !found_.empty() && found_.back().range == key.range && found_.back().file == key.file;
      if (!released_[key.key] && !same) found_.push_back(key);
    }
  }

  void WalkStatement(const Place& place, const Sequence& sequence) {
    left_.clear();
    released_.reset();
    WalkSequence(place, sequence, {});
  }

  void WalkSequence(const Place& place, const Sequence& sequence, Way way) {
    for (const Item& item : sequence.items) Take(place, item, way);
    for (const Branch& branch : sequence.branches) {
      const char letter = branch.slash == nullptr ? '\0' : branch.slash->letter;
      if (letter == 'H') continue;
      Way further = way;
      further.behindPress |= letter == 'P';
      WalkSequence(place, branch.sequence, std::move(further));
    }
    if (!sequence.branches.empty()) return;
    for (const std::size_t key : way.up) released_.set(key);
    for (const Press& press : way.down)
      left_.push_back({place.file, press.range, press.key, way.behindPress});
  }

  void Take(const Place& place, const Item& item, Way& way) {
    if (item.kind == ItemKind::Raw) {
      ForEachKey(place, item, [&](std::size_t key, bool pressed, Range range) {
        if (pressed) {
          way.PressKey(key, range);
        } else {
          way.LetGo(key);
        }
      });
    }
    if (item.kind != ItemKind::Name || balances_.empty()) return;
    const MacroNames* macro = checked_.names.FindMacro(place.Words(item.range));
    if (macro == nullptr || balanceOf_[static_cast<std::size_t>(macro - macros_.data())] == 0) return;
    const Balance& balance = balances_[balanceOf_[static_cast<std::size_t>(macro - macros_.data())] - 1];
    for (std::size_t key = 0; key < kKeyCodes; ++key) {
      if (balance.up[key]) way.LetGo(key);
      if (balance.down[key]) way.PressKey(key, place.InText(item.range));
    }
  }

  const Checked& checked_;
  const std::vector<MacroNames>& macros_;
  KeySet letGoSomewhere_;
  std::vector<std::size_t> balanceOf_;  // 0 for a macro without codes, else one more than in balances_
  std::vector<Balance> balances_;
  std::vector<KeyLeftDown> left_;  // by the statement that is walked over
  KeySet released_;                // by the end of one of its branches
  std::vector<KeyLeftDown> found_;
};

}  // namespace

std::vector<KeyLeftDown> KeysLeftDown(const Checked& checked) { return BalanceSearch(checked).Run(); }

std::string CodeInWords(std::size_t key) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string words = key >= kKeyCodes / 2 ? "#E0 #" : "#";
  words.push_back(kDigits[key % (kKeyCodes / 2) / kDigits.size()]);
  words.push_back(kDigits[key % kDigits.size()]);
  return words;
}

}  // namespace tarvik::model
