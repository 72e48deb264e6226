#include "controls/Menu.h"

#include <algorithm>

namespace tarvik {
namespace {

struct OlderKey {
  Key key;
  int letter;
};
constexpr OlderKey kOlderKeys[] = {{{key::kDelete, shift::kShift}, 'X'},
                                   {{key::kInsert, shift::kCtrl}, 'C'},
                                   {{key::kInsert, shift::kShift}, 'V'}};

/// The letter of a key that is pressed with Ctrl alone, or the one that an older key stands for; 0 for all
/// other keys.
int CtrlLetter(const Key& key) {
  for (const OlderKey& older : kOlderKeys) {
    if (older.key.code == key.code && older.key.shift == key.shift) return older.letter;
  }
  return key.shift == shift::kCtrl && key.code >= 'A' && key.code <= 'Z' ? key.code : 0;
}

}  // namespace

bool Menus::RunCtrlLetter(const Key& key) const {
  const int letter = CtrlLetter(key);
  if (letter == 0) return false;
  const MenuItem* const item = WithShortcut(std::string("Ctrl+") + static_cast<char>(letter));
  if (item && item->Enabled) item->Click();
  return item != nullptr;
}

void Menus::Fill(std::string_view array, const std::vector<std::string>& captions) {
  std::size_t at = 0;
  while (!IsMember(at, array)) ++at;
  for (const std::string& caption : captions) {
    if (!IsMember(at + 1, array)) LoadBehind(at);
    MenuItem& item = *entries_[++at].item;
    item.Caption = caption;
    item.Visible = true;
  }
  while (IsMember(at + 1, array)) Unload(at + 1);
}

void Menus::LoadBehind(std::size_t at) {
  MenuEntry entry = entries_[at];
  MenuItem& before = *entry.item;
  const int index = *before.Index() + 1;
  entry.item = &items_.emplace_back(*before.Parent(), before.Name(), index);
  entry.item->isUsersText = true;
  entry.item->Click = [choose = entry.choose, index] { choose(index); };
  entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(at) + 1, entry);
  Loaded(before, *entry.item);
}

void Menus::Unload(std::size_t at) {
  MenuItem* const item = entries_[at].item;
  Unloading(*item);
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(at));
  items_.remove_if([item](const MenuItem& each) { return &each == item; });
}

}  // namespace tarvik
