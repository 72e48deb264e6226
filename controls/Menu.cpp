#include "controls/Menu.h"

#include <algorithm>

namespace tarvik {

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
