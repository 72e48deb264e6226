// The menus of a form: a table of rows becomes menu items, which are found by name like every control.
#pragma once

#include <cassert>
#include <deque>
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
};

class Menus {
 public:
  template <class F, std::size_t N>
  Menus(F& form, const MenuRow<F> (&rows)[N]) {
    for (std::size_t i = 0; i < N; ++i) {
      const MenuRow<F>& row = rows[i];
      const auto index = row.index < 0 ? std::optional<int>() : row.index;
      MenuItem& item = items_.emplace_back(form, row.name, index);
      item.Caption = row.caption;
      item.Shortcut = row.shortcut;
      item.Visible = row.caption[0] != '\0';
      item.Enabled = row.level == 0 || CanDoSomething(rows, i);
      if (row.handler) item.Click = [&form, handler = row.handler] { (form.*handler)(); };
      if (row.indexedHandler) {
        item.Click = [&form, handler = row.indexedHandler, at = row.index] { (form.*handler)(at); };
      }
      entries_.push_back({row.level, &item});
    }
  }

  /// In the order of the table.
  [[nodiscard]] std::span<const MenuEntry> Entries() const { return entries_; }
  [[nodiscard]] MenuItem& operator()(std::string_view name, std::optional<int> index = {}) const {
    for (const MenuEntry& entry : entries_) {
      if (entry.item->Name() == name && entry.item->Index() == index) return *entry.item;
    }
    assert(false && "no such menu item");
    std::abort();
  }
  /// The entry with this shortcut, null when there is none that does anything.
  [[nodiscard]] MenuItem* WithShortcut(std::string_view shortcut) const {
    for (const MenuEntry& entry : entries_) {
      if (entry.item->Shortcut.Get() == shortcut && entry.item->Click) return entry.item;
    }
    return nullptr;
  }

  /// True when the key is a letter with Ctrl alone that is an entry's; the entry runs when it is enabled.
  bool RunCtrlLetter(const Key& key) const {
    if (key.shift != shift::kCtrl || key.code < 'A' || key.code > 'Z') return false;
    const MenuItem* const item = WithShortcut(std::string("Ctrl+") + static_cast<char>(key.code));
    if (item && item->Enabled) item->Click();
    return item != nullptr;
  }

 private:
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

  std::deque<MenuItem> items_;
  std::vector<MenuEntry> entries_;
};

}  // namespace tarvik
