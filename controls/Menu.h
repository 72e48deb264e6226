// The menus of a form: a table of rows becomes menu items, which are found by name like every control.
#pragma once

#include <list>
#include <span>

#include "controls/Controls.h"

namespace tarvik {

/// One menu, entry or divider. A row's level says under which row it stands: the nearest one above with a
/// lower level. An entry without a handler has no tool yet and is disabled.
template <class F>
struct MenuRow {
  int level;
  const char* name;
  const char* caption;
  const char* shortcut = "";
  void (F::*handler)() = nullptr;
  int index = -1;  ///< of a member of a menu array
  void (F::*indexedHandler)(int) = nullptr;
};

struct MenuEntry {
  int level;
  MenuItem* item;
  std::function<void(int)> choose;  ///< of a member of a menu array
};

class Menus {
 public:
  template <class F, std::size_t N>
  Menus(F& form, const MenuRow<F> (&rows)[N]) : form_(&form) {
    for (std::size_t i = 0; i < N; ++i) {
      const MenuRow<F>& row = rows[i];
      const auto index = row.index < 0 ? std::optional<int>() : row.index;
      MenuItem& item = items_.emplace_back(form, row.name, index);
      item.Caption = row.caption;
      item.Shortcut = row.shortcut;
      item.Visible = row.caption[0] != '\0';
      item.Enabled = row.level == 0 || CanDoSomething(rows, i);
      if (row.handler) item.Click = [&form, handler = row.handler] { (form.*handler)(); };
      MenuEntry& entry = entries_.emplace_back(MenuEntry{row.level, &item, {}});
      if (!row.indexedHandler) continue;
      entry.choose = [&form, handler = row.indexedHandler](int at) { (form.*handler)(at); };
      item.Click = [choose = entry.choose, at = row.index] { choose(at); };
    }
  }

  /// Loads or unloads members of an array whose member 0 is hidden, so that it has one for each caption,
  /// counted from 1, and shows them. The captions are users' texts.
  void Fill(std::string_view array, const std::vector<std::string>& captions);

  /// In the order of the table.
  [[nodiscard]] std::span<const MenuEntry> Entries() const { return entries_; }
  [[nodiscard]] MenuItem& operator()(std::string_view name, std::optional<int> index = {}) const {
    for (const MenuEntry& entry : entries_) {
      if (entry.item->Name() == name && entry.item->Index() == index) return *entry.item;
    }
    TellWrongLookup(*form_, name, index);
  }
  /// The entry with this shortcut, null when there is none that does anything.
  [[nodiscard]] MenuItem* WithShortcut(std::string_view shortcut) const {
    for (const MenuEntry& entry : entries_) {
      if (entry.item->Shortcut.Get() == shortcut && entry.item->Click) return entry.item;
    }
    return nullptr;
  }

  /// True when the key is a letter with Ctrl alone that is an entry's, or one of the older keys of cut, copy
  /// and paste, which mean the same; the entry runs when it is enabled.
  bool RunCtrlLetter(const Key& key) const;

  /// For whatever shows the menus: the entry that the new one stands behind, and the new one.
  Signal<MenuItem&, MenuItem&> Loaded;
  Signal<MenuItem&> Unloading;

 private:
  [[nodiscard]] bool IsMember(std::size_t at, std::string_view array) const {
    return at < entries_.size() && entries_[at].item->Name() == array;
  }
  void LoadBehind(std::size_t at);
  void Unload(std::size_t at);

  /// Whether the row has a handler, or one of the rows below it.
  template <class F, std::size_t N>
  static bool CanDoSomething(const MenuRow<F> (&rows)[N], std::size_t row) {
    const auto handled = [&rows](std::size_t i) { return rows[i].handler || rows[i].indexedHandler; };
    if (handled(row)) return true;
    for (std::size_t i = row + 1; i < N && rows[i].level > rows[row].level; ++i) {
      if (handled(i)) return true;
    }
    return false;
  }

  const Component* form_;
  std::list<MenuItem> items_;
  std::vector<MenuEntry> entries_;
};

}  // namespace tarvik
