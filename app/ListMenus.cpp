#include "app/ListMenus.h"

#include <algorithm>

namespace tarvik {

ListMenus::ListMenus(PreviousFiles& lists, Menus& menus) : lists_(lists), menus_(menus) {
  connections_ = {
      lists.JoystickFiles.Changed.Connect([this] { AddMnuJFArray(); }),
      lists.MacroFiles.Changed.Connect([this] { AddMnuMFArray(); }),
      lists.Favourites.Changed.Connect([this] { AddmnuFavouritesArray(); }),
      lists.Games.Changed.Connect([this] { AddmnuGamesArray(); }),
      lists.CustomAppsChanged.Connect([this] { UpdateMnuCustomApps(); }),
  };
}

void ListMenus::AddMnuJFArray() {
  ShowFiles(lists_.JoystickFiles, "mnuJFArray", "mnuPreviousClearAllJ", "mnuFilePrevious");
}

void ListMenus::AddMnuMFArray() {
  ShowFiles(lists_.MacroFiles, "mnuMFArray", "mnuPreviousClearAllM", "mnuFilePrevMacro");
}

void ListMenus::ShowFiles(const RecentList& list, const char* array, const char* clear, const char* menu) {
  menus_.Fill(array, list.Names());
  for (const char* const entry : {clear, menu}) menus_(entry).Enabled = list.Count() > 0;
}

void ListMenus::UpdateMnuCustomApps() {
  const auto& apps = lists_.CustomApps;
  std::vector<std::string> names(apps.size());
  std::transform(apps.begin(), apps.end(), names.begin(), [](const CustomApp& app) { return app.name; });
  menus_.Fill("mnuCustomApp", names);
  for (int i = 0; i < PreviousFiles::kCustomApps; ++i) {
    menus_("mnuCustomApp", i + 1).Visible = apps[static_cast<std::size_t>(i)].use == 1;
  }
  menus_("mnuCustomAppDivider").Visible =
      std::any_of(apps.begin(), apps.end(), [](const CustomApp& app) { return app.use == 1; });
}

}  // namespace tarvik
