// The editor's menus that grow: the files, favourites and games used last, and the user's own programs.
#pragma once

#include "controls/Menu.h"
#include "workbench/PreviousFiles.h"

namespace tarvik {

/// Keeps the menus as the lists are.
class ListMenus {
 public:
  ListMenus(PreviousFiles& lists, Menus& menus);

  void AddMnuJFArray();
  void AddMnuMFArray();
  void AddmnuFavouritesArray() { menus_.Fill("mnuFavArray", lists_.Favourites.Names()); }
  void AddmnuGamesArray() { menus_.Fill("mnuGameArray", lists_.Games.Names()); }
  void UpdateMnuCustomApps();

 private:
  void ShowFiles(const RecentList& list, const char* array, const char* clear, const char* menu);

  PreviousFiles& lists_;
  Menus& menus_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
