#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "app/EditorTables.h"
#include "app/Program.h"
#include "text/CodePage.h"

namespace tarvik {
namespace {

using Row = MenuRow<Editor>;

bool HasHandler(const Row& row) {
  const auto isSwitch = [&row](const tables::ViewSwitchRow& each) { return each.entry == row.name; };
  return row.handler || row.indexedHandler || std::ranges::any_of(tables::kViewSwitches, isSwitch);
}

std::string FullName(const Row& row) {
  return std::string(row.name) + (row.index < 0 ? "" : "(" + TextOf(row.index) + ")");
}

std::vector<const Row*> AllRows() {
  std::vector<const Row*> rows;
  for (const Row& row : tables::kMenus) rows.push_back(&row);
  for (const Row& row : tables::kPopUps) rows.push_back(&row);
  return rows;
}

const Row* MenuRowOf(std::string_view entry) {
  for (const Row& row : tables::kMenus) {
    if (row.name == entry) return &row;
  }
  return nullptr;
}

/// A table's row with the rows under which it stands, itself last.
template <std::size_t N>
std::vector<const Row*> WayTo(const Row (&table)[N], const Row& row) {
  std::vector<const Row*> way = {&row};
  for (const Row* above = &row; way.front()->level > 0 && above != table;) {
    --above;
    if (above->level < way.front()->level) way.insert(way.begin(), above);
  }
  return way;
}

TEST(EditorTables, NoShortcutIsGivenTwice) {
  std::set<std::string> seen;
  for (const Row& row : tables::kMenus) {
    const std::string shortcut(row.shortcut);
    if (shortcut.empty()) continue;
    EXPECT_TRUE(seen.insert(shortcut).second) << shortcut << " of " << FullName(row);
    EXPECT_THAT(shortcut,
                testing::MatchesRegex("Ctrl\\+(Shift\\+)?([A-Z0+.,-]|Space)|F[0-9]+|Alt\\+(Left|Right)"));
  }
}

/// Of an entry one, of an array one for each member.
std::vector<std::string> CaptionsOf(const Row& row) {
  if (row.captions.empty()) return {std::string(row.caption)};
  return {row.captions.begin(), row.captions.end()};
}

TEST(EditorTables, NoMnemonicIsGivenTwiceInAMenu) {
  std::map<std::string, std::string> taken;  // by the menu and the letter
  const auto check = [&taken](const auto& table, bool bar) {
    for (const Row& row : table) {
      if (row.level == 0 && !bar) continue;
      const std::vector<const Row*> way = WayTo(table, row);
      const std::string menu(way.size() < 2 ? "the menu bar" : way[way.size() - 2]->name);
      for (const std::string& caption : CaptionsOf(row)) {
        const std::size_t mark = caption.find('&');
        if (mark == std::string::npos) continue;
        const auto [at, isNew] = taken.emplace(menu + ToUpper(caption[mark + 1]), caption);
        EXPECT_TRUE(isNew) << menu << ": " << at->second << " and " << caption;
      }
    }
  };
  check(tables::kMenus, true);
  check(tables::kPopUps, false);
}

TEST(EditorTables, EveryEntryHasANameOfItsOwn) {
  std::set<std::string> seen;
  for (const Row* row : AllRows()) EXPECT_TRUE(seen.insert(FullName(*row)).second) << FullName(*row);
}

TEST(EditorTables, EveryMenuIsOneLevelBelowItsOwnAtMost) {
  int level = -1;
  for (const Row* row : AllRows()) {
    EXPECT_LE(row->level, level + 1) << FullName(*row);
    level = row->level;
  }
}

TEST(EditorTables, EveryToolbarButtonRunsAnEntry) {
  for (const tables::ToolbarRow& row : tables::kToolbar) {
    EXPECT_TRUE(MenuRowOf(row.entry)) << row.button << " " << row.entry;
    EXPECT_TRUE(!row.macroEntry || MenuRowOf(row.macroEntry)) << row.button << " " << row.macroEntry;
  }
}

TEST(EditorTables, EveryToolbarButtonIsThereOnceAndNotUnderTheSwatch) {
  std::set<int> seen;
  for (const tables::ToolbarRow& row : tables::kToolbar) {
    EXPECT_TRUE(seen.insert(row.button).second) << row.button;
    EXPECT_THAT(row.button, testing::AllOf(testing::Ge(1), testing::Le(kToolbarButtons)));
    EXPECT_NE(row.button, kSwatchButton);
    EXPECT_STRNE(row.icon, "") << row.button;
  }
}

TEST(EditorTables, ATipTellsTheShortcutOfItsEntry) {
  for (const tables::ToolbarRow& row : tables::kToolbar) {
    const std::string tip = row.tip;
    const Row* entry = MenuRowOf(row.entry);
    ASSERT_TRUE(entry);
    const std::size_t bracket = tip.find('(');
    const std::string told =
        bracket == std::string::npos ? "" : tip.substr(bracket + 1, tip.size() - bracket - 2);
    if (told.empty()) continue;
    EXPECT_EQ(told, entry->shortcut) << tip;
  }
}

class EditorTablesInUse : public testing::Test {
 protected:
  /// True when a user gets there: every menu on the way can be opened.
  template <std::size_t N>
  static bool IsOpen(const Menus& menus, const Row (&table)[N], const Row& row) {
    for (const Row* step : WayTo(table, row)) {
      const bool grows = step->caption.empty();  // its first member is hidden
      const auto index = step->index < 0 ? std::optional<int>() : step->index + (grows ? 1 : 0);
      const MenuItem& item = menus(step->name, index);
      if (!item.Enabled || !item.Visible) return false;
    }
    return true;
  }

  Program program;
  Editor& editor = program.editor();
};

TEST_F(EditorTablesInUse, EachEntryWithAHandlerCanBeReachedAndTheOthersCannot) {
  editor.JoystickText.UserReplaced({0, 0}, "a");
  editor.mnuEditUndo_Click();
  editor.JoystickText.UserReplaced({0, 0}, "b");
  editor.JoystickText.UserReplaced({1, 0}, "c");
  editor.mnuEditUndo_Click();  // now both undo and redo have something to do
  editor.mnuEditSelectAll_Click();
  program.outside.clipboard.PutFromOutside("text", "");
  for (const char* const array :
       {"mnuJFArray", "mnuMFArray", "mnuFavArray", "mnuCustomApp", "mnuGameArray"}) {
    editor.menus.Fill(array, {"a member"});
  }
  editor.popUps.Fill("mnuPlaceArray", {"a member"});
  for (const char* const entry : {"mnuFilePrevious", "mnuPreviousClearAllJ", "mnuFilePrevMacro",
                                  "mnuPreviousClearAllM", "mnuEditBack", "mnuEditForward"}) {
    editor.menus(entry).Enabled = true;
  }
  const auto check = [](const Menus& menus, const auto& table) {
    for (std::size_t i = 0; i < std::size(table); ++i) {
      const Row& row = table[i];
      const bool opensMenu = i + 1 < std::size(table) && table[i + 1].level > row.level;
      bool leadsSomewhere = row.level == 0;
      for (std::size_t below = i + 1; below < std::size(table) && table[below].level > row.level; ++below) {
        leadsSomewhere = leadsSomewhere || HasHandler(table[below]);
      }
      EXPECT_EQ(IsOpen(menus, table, row), HasHandler(row) || (opensMenu && leadsSomewhere)) << FullName(row);
      EXPECT_FALSE(HasHandler(row) && opensMenu) << FullName(row);
      EXPECT_FALSE(HasHandler(row) && row.caption == MenuItem::kDivider) << FullName(row);
    }
  };
  check(editor.menus, tables::kMenus);
  check(editor.popUps, tables::kPopUps);
}

TEST_F(EditorTablesInUse, AToolbarButtonCanBeClickedWhenItsEntryCan) {
  for (const tables::ToolbarRow& row : tables::kToolbar) {
    EXPECT_EQ(program.application.mum().Toolbar1.Buttons(row.button).Enabled.Get(),
              editor.menus(row.entry).Enabled.Get())
        << row.tip;
  }
}

}  // namespace
}  // namespace tarvik
