// The menus of a form: a table of rows becomes menu items, which are found by name like every control.
#pragma once

#include <list>
#include <span>

#include "controls/Controls.h"

namespace tarvik {

/// One menu, entry, divider or array of entries. A row's level says under which row it stands: the nearest
/// one above with a lower level. An entry without a handler has no tool yet and is disabled.
template <class F>
struct MenuRow {
  int level;
  std::string_view name;
  std::string_view caption;
  std::string_view shortcut = {};
  void (F::*handler)() = nullptr;
  int index = -1;  ///< of a member of a menu array, or the first of several
  void (F::*indexedHandler)(int) = nullptr;
  std::span<const std::string_view> captions = {};  ///< of the members, for an array of several
};

/// The row of a whole array, its members counted from 0.
template <class F>
constexpr MenuRow<F> MenuArray(int level, std::string_view name, std::span<const std::string_view> captions,
                               void (F::*handler)(int) = nullptr) {
  return {level, name, captions[0], {}, nullptr, 0, handler, captions};
}

/// The entries that arrange windows inside another one. The tools have windows of their own, so that these
/// entries have nothing to do.
inline constexpr std::string_view kArrangements[] = {"&Cascade", "Tile &horizontally", "Tile &vertically",
                                                     "&Arrange icons"};

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
      const bool enabled = rows[i].level == 0 || CanDoSomething(rows, i);
      Add(form, rows[i], rows[i].caption, rows[i].index, enabled);
      for (std::size_t member = 1; member < rows[i].captions.size(); ++member) {
        Add(form, rows[i], rows[i].captions[member], static_cast<int>(member), enabled);
      }
    }
  }

  /// Loads or unloads members of an array whose member 0 is hidden, so that it has one for each caption,
  /// counted from 1, and shows them. The captions are users' texts.
  void Fill(std::string_view array, const std::vector<std::string>& captions);

  /// The entries in the order of the table.
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

  /// Tells whatever shows the menus behind which entry a new one stands.
  Signal<MenuItem&, MenuItem&> Loaded;
  Signal<MenuItem&> Unloading;

 private:
  template <class F>
  void Add(F& form, const MenuRow<F>& row, std::string_view caption, int index, bool enabled) {
    MenuItem& item = items_.emplace_back(form, row.name, index < 0 ? std::optional<int>() : index);
    item.Caption = std::string(caption);
    item.Shortcut = std::string(row.shortcut);
    item.Visible = !caption.empty();
    item.Enabled = enabled;
    if (row.handler) item.Click = [&form, handler = row.handler] { (form.*handler)(); };
    MenuEntry& entry = entries_.emplace_back(MenuEntry{row.level, &item, {}});
    if (!row.indexedHandler) return;
    entry.choose = [&form, handler = row.indexedHandler](int at) { (form.*handler)(at); };
    item.Click = [choose = entry.choose, at = index] { choose(at); };
  }
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
