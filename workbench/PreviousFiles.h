// The lists kept in the settings file: the files, favourites and games used last, and the user's own
// programs. They live as long as the program; whoever shows one listens to its `Changed`.
#pragma once

#include <array>

#include "workbench/RecentList.h"
#include "workbench/Settings.h"

namespace tarvik {

/// A program of the user's in the Apps menu.
struct CustomApp {
  std::string name;
  std::string path;  ///< the whole command line
  int use = 0;       ///< 1: it has a menu entry
};

class PreviousFiles : public Component {
 public:
  static constexpr int kCustomApps = 4;

  PreviousFiles(Settings& settings, Errors& errors, DriveFolders& drives);

  RecentList JoystickFiles;
  RecentList MacroFiles;
  RecentList Favourites;
  RecentList Games;

  // The records in hand.
  Property<std::string>& RecentJFToAdd = JoystickFiles.InHand("RecentJFToAdd");
  Property<std::string>& RecentMFToAdd = MacroFiles.InHand("RecentMFToAdd");
  Property<std::string>& FavName = Favourites.InHand("FavName");
  Property<std::string>& FavJFPath = Favourites.InHand("FavJFPath");
  Property<std::string>& FavMFPath = Favourites.InHand("FavMFPath");
  Property<std::string>& GameName = Games.InHand("GameName");
  Property<std::string>& GamePath = Games.InHand("GamePath");
  Property<std::string>& GameDIRPath = Games.InHand("GameDIRPath");
  Property<std::string>& GameJF = Games.InHand("GameJF");
  Property<std::string>& GameUseJF = Games.InHand("GameUseJF");  ///< "1": download GameJF first
  Property<std::string>& GameFly = Games.InHand("GameFly");      ///< "1": fly while the game runs
  /// It is 1 when the window for a game has ended with OK.
  Property<int> GameDialogOK{*this, "GameDialogOK", 0};
  Property<int> FavLoadOnStart{*this, "FavLoadOnStart", 0};
  Property<std::string> FavNameToLoad{*this, "FavNameToLoad"};

  /// Reads all lists.
  void GetAll();

  // Files.
  void GetPreviousFiles();
  void UpdateRecentJFMenuList() { Update(JoystickFiles, "MODULE UpdateRecentJFMenuList"); }
  void UpdateRecentMFMenuList() { Update(MacroFiles, "MODULE UpdateRecentMFMenuList"); }
  [[nodiscard]] bool IsJFonMenuAlready(std::string_view path) const { return JoystickFiles.Contains(path); }
  [[nodiscard]] bool IsMFonMenuAlready(std::string_view path) const { return MacroFiles.Contains(path); }
  void ClearAll(RecentList& list);

  // Favourites.
  void GetFavourites();
  void SaveFavourites();
  void UpdateFavouritesMenu();
  [[nodiscard]] bool IsFavOnMenuAlready(std::string_view name) const { return Favourites.Contains(name); }
  /// The number of the favourite to load when the program starts, 0 for none.
  [[nodiscard]] int FavouriteToLoad() const;

  // Games.
  void GetGames() { Games.Read(); }
  void SaveGames();
  void UpdateGamesMenu() { Update(Games, "MODULE SaveGames"); }
  [[nodiscard]] bool IsGameOnMenuAlready(std::string_view name) const { return Games.Contains(name); }

  // The user's programs.
  std::array<CustomApp, kCustomApps> CustomApps;
  void GetCustomApps();
  void SaveApps();
  Signal<> CustomAppsChanged;

 private:
  void Update(RecentList& list, const char* tag);

  Settings& settings_;
  Errors& errors_;
};

}  // namespace tarvik
