#include "workbench/PreviousFiles.h"

#include <algorithm>

namespace tarvik {
namespace {

constexpr std::size_t kPathBuffer = 256;
constexpr std::size_t kShortBuffer = 100;

constexpr RecordKey kJoystickKeys[] = {{"JFPath", "RecentJFToAdd", kPathBuffer, PartKind::File}};
constexpr RecordKey kMacroKeys[] = {{"MFPath", "RecentMFToAdd", kPathBuffer, PartKind::File}};
constexpr RecordKey kFavouriteKeys[] = {
    {"FavName", "FavName", kPathBuffer},
    {"FavJFPath", "FavJFPath", kPathBuffer, PartKind::File},
    {"FavMFPath", "FavMFPath", kPathBuffer, PartKind::File},
};
constexpr RecordKey kGameKeys[] = {
    {"GameName", "GameName", kShortBuffer},          {"GamePath", "GamePath", kShortBuffer},
    {"GameDIRPath", "GameDIRPath", kShortBuffer},    {"GameJF", "GameJF", kShortBuffer, PartKind::File},
    {"GameUseJF", "GameUseJF", 0, PartKind::Number}, {"GameFly", "GameFly", 0, PartKind::Number},
};

constexpr ListTraits kJoystickList = {"PreviousJoystickFiles", "JFArrayNum", kJoystickKeys};
constexpr ListTraits kMacroList = {"PreviousMacroFiles", "MFArrayNum", kMacroKeys};
constexpr ListTraits kFavouriteList = {section::kFavourites, "FavArrayNum", kFavouriteKeys};
constexpr ListTraits kGameList = {section::kGames, "GameArrayNum", kGameKeys};

}  // namespace

PreviousFiles::PreviousFiles(Settings& settings, Errors& errors, DriveFolders& drives)
    : Component("PreviousFiles"),
      JoystickFiles(*this, kJoystickList, settings.File(), drives),
      MacroFiles(*this, kMacroList, settings.File(), drives),
      Favourites(*this, kFavouriteList, settings.File(), drives),
      Games(*this, kGameList, settings.File(), drives),
      settings_(settings),
      errors_(errors) {}

void PreviousFiles::Update(RecentList& list, const char* tag) {
  list.Use();
  Trap{errors_, tag}(list.Save());
}

void PreviousFiles::GetAll() {
  GetPreviousFiles();
  GetFavourites();
  GetGames();
  GetCustomApps();
}

void PreviousFiles::GetPreviousFiles() {
  JoystickFiles.Read();
  MacroFiles.Read();
}

void PreviousFiles::ClearAll(RecentList& list) {
  const bool joystick = &list == &JoystickFiles;
  Trap{errors_, joystick ? "ED_mnuPreviousClearAllJ_Click" : "ED_mnuPreviousClearAllM_Click"}(list.Clear());
}

void PreviousFiles::GetFavourites() {
  const Profile profile = settings_.File().Read();
  FavLoadOnStart = To16Bits(profile.GetInt(section::kFavourites, "FavLoadOnStart", 0));
  FavNameToLoad = profile.GetString(section::kFavourites, "FavNameToLoad", "", kShortBuffer);
  Favourites.Read();
}

void PreviousFiles::SaveFavourites() {
  const Trap trap{errors_, "MODULE SaveFavourites"};
  trap(Favourites.Save({{section::kFavourites, "FavLoadOnStart", TextOf(FavLoadOnStart.Get())},
                        {section::kFavourites, "FavNameToLoad", Protected(FavNameToLoad)}}));
}

void PreviousFiles::UpdateFavouritesMenu() {
  Favourites.Use();
  SaveFavourites();
}

int PreviousFiles::FavouriteToLoad() const {
  if (FavLoadOnStart != 1 || FavNameToLoad.Get().empty()) return 0;
  const std::vector<std::string> names = Favourites.Names();
  return static_cast<int>(names.rend() - std::find(names.rbegin(), names.rend(), FavNameToLoad.Get()));
}

void PreviousFiles::SaveGames() { Trap{errors_, "MODULE SaveGames"}(Games.Save()); }

void PreviousFiles::GetCustomApps() {
  const Profile profile = settings_.File().Read();
  for (int i = 1; CustomApp & app : CustomApps) {
    const std::string number = TextOf(i++);
    app.name = profile.GetString(section::kApps, "CustomAppName" + number, "", kShortBuffer);
    app.path = profile.GetString(section::kApps, "CustomAppPath" + number, "", kShortBuffer);
    app.use = To16Bits(profile.GetInt(section::kApps, "CustomAppUse" + number, 0));
  }
  CustomAppsChanged();
}

void PreviousFiles::SaveApps() {
  std::vector<ProfileEntry> entries = {{section::kApps, "ImageFilePath", settings_.ImageFilePath},
                                       {section::kApps, "TextFilePath", settings_.TextFilePath}};
  for (int i = 1; const CustomApp& app : CustomApps) {
    const std::string number = TextOf(i++);
    entries.push_back({section::kApps, "CustomAppName" + number, Protected(app.name)});
    entries.push_back({section::kApps, "CustomAppPath" + number, Protected(app.path)});
    entries.push_back({section::kApps, "CustomAppUse" + number, TextOf(app.use)});
  }
  Trap{errors_, "MODULE SaveApps"}(settings_.File().WriteAll(entries));
}

}  // namespace tarvik
