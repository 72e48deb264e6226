// The user guide names what the program has.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <set>
#include <string>

#include "app/EditorTables.h"
#include "app/Mum.h"
#include "app/Program.h"
#include "support/TemporaryFolder.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

std::string Guide() {
  std::string text;
  for (const auto& entry : fs::directory_iterator(TARVIK_DATA "/../docs/guide")) {
    if (entry.path().extension() == ".md") text += TemporaryFolder::Content(entry.path());
  }
  return text;
}

/// "File > Save as" of every entry of the menus.
std::set<std::string> WaysThroughTheMenus() {
  std::set<std::string> ways;
  std::string menu;
  std::string within;
  for (const MenuRow<Editor>& row : tables::kMenus) {
    const std::string caption = std::regex_replace(std::string(row.caption), std::regex("&| \\.\\.\\."), "");
    if (row.level == 0) menu = caption;
    if (row.level == 1) within = menu + " > " + caption;
    ways.insert(row.level == 2 ? within + " > " + caption : menu + " > " + caption);
  }
  return ways;
}

TEST(Guide, LeadsToEntriesThatTheMenusHave) {
  const std::string guide = std::regex_replace(Guide(), std::regex("\\s+"), " ");
  const std::regex way("\\*([A-Z][a-z]+ > [^*]+)\\*");
  std::set<std::string> named;
  for (std::sregex_iterator at(guide.begin(), guide.end(), way), end; at != end; ++at) named.insert((*at)[1]);
  EXPECT_GT(named.size(), 10U);
  EXPECT_THAT(WaysThroughTheMenus(), testing::IsSupersetOf(named));
}

TEST(Guide, ListsEveryShortcut) {
  const std::string keys = TemporaryFolder::Content(TARVIK_DATA "/../docs/guide/12-keys.md");
  for (const MenuRow<Editor>& row : tables::kMenus) {
    if (!row.shortcut.empty()) {
      EXPECT_THAT(keys, testing::HasSubstr("| **" + std::string(row.shortcut) + "** |")) << row.name;
    }
  }
}

TEST(Guide, IsMissedInTheStatusBar) {
  Program program;
  program.outside.desktop.opensFiles = false;
  program.editor().mnuHelpOnWeb_Click();
  EXPECT_EQ(program.application.mum().StatusBar.Panels(1).Text.Get(), "The user guide can't be opened.");
  EXPECT_EQ(program.application.workbench.errors.ErrorTag.Get(), "ED_mnuHelpOnWeb_Click");
}

}  // namespace
}  // namespace tarvik
