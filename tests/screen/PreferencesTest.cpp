// Every setting of the preferences, from what the user does to the settings file and on into the next start:
// with and without widgets, however the window is closed.
#include <gmock/gmock.h>

#include "session/Runner.h"

namespace tarvik::session {
namespace {

/// What somebody does to a control, and what has come of it.
struct SettingRow {
  const char* page;
  const char* does;  ///< lines of a session
  const char* section;
  const char* key;
  const char* stored;
  const char* shown;           ///< a property after the next start
  const char* text = nullptr;  ///< of it; what is stored where nothing is said
  const char* value =
      nullptr;  ///< of the settings; it has the name of the key where nothing is said, "" for none
};

constexpr const char* kFiles = "&File locations";
constexpr const char* kColours = "&Colour highlighting / Fonts";
constexpr const char* kApps = "&Apps";
constexpr const char* kFavourites = "Fa&vourites";
constexpr const char* kMiscellaneous = "&Miscellaneous";
constexpr const char* kGames = "&Games";

constexpr const char* kLocations = "FileLocations";
constexpr const char* kOther = "Miscellaneous";

constexpr SettingRow kRows[] = {
    {kFiles, "set Preferences.Text1.Text c:\\tm\\l.exe", kLocations, "B50LoadPath", "c:\\tm\\l.exe",
     "Text1.Text"},
    {kFiles, "choose C:\\L.EXE\nclick Preferences.Command1", kLocations, "B50LoadPath", "c:\\l.exe",
     "Text1.Text"},
    {kFiles, "set Preferences.Text2.Text c:\\my", kLocations, "ProgramFilesPath", "c:\\my\\", "Text2.Text"},
    {kFiles, "choose C:\\My\nclick Preferences.Command2", kLocations, "ProgramFilesPath", "c:\\my\\",
     "Text2.Text"},
    {kFiles, "set Preferences.Text10.Text c:\\tm.bat", kLocations, "CandCCPath", "c:\\tm.bat", "Text10.Text"},
    {kFiles, "choose C:\\TM.BAT\nclick Preferences.Command8", kLocations, "CandCCPath", "c:\\tm.bat",
     "Text10.Text"},
    {kFiles, "pick Preferences.ComboJoystick #0", kLocations, "JoystickExtension", "f22",
     "ComboJoystick.Text", "F22 Pro"},
    {kFiles, "pick Preferences.ComboJoystick #1", kLocations, "JoyName", "1", "ComboJoystick.Text",
     "F16 FLCS"},
    {kFiles, "pick Preferences.ComboJoystick #2", kLocations, "JoyName", "2", "ComboJoystick.Text", "P FCS"},
    {kFiles, "pick Preferences.ComboJoystick #3", kLocations, "JoystickExtension", "adv",
     "ComboJoystick.Text", "Top Gun"},
    {kFiles, "pick Preferences.ComboJoystick #4", kLocations, "MacroExtension", "mdf", "ComboJoystick.Text",
     "FCS"},
    {kFiles, "pick Preferences.ComboThrottle #2", kLocations, "ThrottleName", "2", "ComboThrottle.Text",
     "WCS MkII"},
    {kFiles, "pick Preferences.ComboRudders #1", kLocations, "RudderName", "1", "ComboRudders.Text", "Elite"},

    {kColours, "choose 1\npick Preferences.List1 #0", "Colours", "BackgroundColour", "1",
     "ExampleJoystickText.BackColor"},
    {kColours, "choose 2\npick Preferences.List1 #1", "Colours", "RemStatements", "2", "List1.ListIndex",
     "-1"},
    {kColours, "choose 3\npick Preferences.List1 #2", "Colours", "BTNColour", "3", "List1.ListIndex", "-1"},
    {kColours, "choose 4\npick Preferences.List1 #3", "Colours", "SlashColour", "4", "List1.ListIndex", "-1"},
    {kColours, "choose 5\npick Preferences.List1 #4", "Colours", "RAWColour", "5", "List1.ListIndex", "-1"},
    {kColours, "choose 6\npick Preferences.List1 #5", "Colours", "MiscellaneousColour", "6",
     "List1.ListIndex", "-1"},
    {kColours, "choose 7\npick Preferences.List1 #6", "Colours", "MacroBackgroundColour", "7",
     "List1.ListIndex", "-1"},
    {kColours, "click Preferences.CheckBox1", "Colours", "ApplyColoursOnFileOpen", "0", "CheckBox1.Value"},
    {kColours, "choose Courier|9|0\nclick Preferences.Command18", "Colours", "TextFontName", "Courier",
     "ExampleJoystickText.SelFontName"},
    {kColours, "choose Courier|9|0\nclick Preferences.Command18", "Colours", "TextFontSize", "9",
     "ExampleJoystickText.SelFontSize"},
    {kColours, "choose Courier|9|1\nclick Preferences.Command18", "Colours", "TextFontBold", "1",
     "ExampleJoystickText.SelBold", "True"},

    {kApps, "set Preferences.Text5.Text c:\\a.jpg", "Apps", "ImageFilePath", "c:\\a.jpg", "Text5.Text"},
    {kApps, "choose C:\\A.JPG\nclick Preferences.Command5", "Apps", "ImageFilePath", "c:\\a.jpg",
     "Text5.Text"},
    {kApps, "set Preferences.Text6.Text c:\\a.txt", "Apps", "TextFilePath", "c:\\a.txt", "Text6.Text"},
    {kApps, "choose C:\\A.TXT\nclick Preferences.Command7", "Apps", "TextFilePath", "c:\\a.txt",
     "Text6.Text"},
    {kApps, "set Preferences.CustomAppNameText(1).Text One", "Apps", "CustomAppName1", "One",
     "CustomAppNameText(1).Text", nullptr, ""},
    {kApps, "set Preferences.CustomAppPathText(4).Text c:\\x.exe", "Apps", "CustomAppPath4", "c:\\x.exe",
     "CustomAppPathText(4).Text", nullptr, ""},
    {kApps, "choose C:\\X.EXE\nclick Preferences.CustomAppPathBrowse(3)", "Apps", "CustomAppPath3",
     "c:\\x.exe", "CustomAppPathText(3).Text", nullptr, ""},
    {kApps, "click Preferences.CustomAppPathUse(2)", "Apps", "CustomAppUse2", "1",
     "CustomAppPathUse(2).Value", nullptr, ""},

    {kFavourites, "set Preferences.Text7.Text New", "Favourites", "FavName1", "New", "Text7.Text", nullptr,
     ""},
    {kFavourites, "set Preferences.Text8.Text c:\\b.b50", "Favourites", "FavJFPath1", "c:\\b.b50",
     "Text8.Text", nullptr, ""},
    {kFavourites, "choose C:\\B.M50\nclick Preferences.Command10", "Favourites", "FavMFPath1", "c:\\b.m50",
     "Text9.Text", nullptr, ""},
    {kFavourites, "click Preferences.LoadAppCheckBox", "Favourites", "FavLoadOnStart", "1",
     "LoadAppCheckBox.Value"},
    {kFavourites, "click Preferences.Command14", "Favourites", "FavNameToLoad", "Own", "Label11.Caption"},

    {kMiscellaneous, "click Preferences.Check3(0)", kOther, "AutoSaveEnabled", "1", "Check3(0).Value"},
    {kMiscellaneous, "set Preferences.Text3.Text 7", kOther, "AutoSaveTime", "7", "Text3.Text"},
    {kMiscellaneous, "set Preferences.Text3.Text 0\nexpect box Tarvik", kOther, "AutoSaveTime", "1",
     "Text3.Text"},
    {kMiscellaneous, "click Preferences.Check3(1)", kOther, "CreateBackup", "0", "Check3(1).Value"},
    {kMiscellaneous, "click Preferences.OpenBothChk", kOther, "OpenBothOnToolbar", "0", "OpenBothChk.Value"},
    {kMiscellaneous, "click Preferences.SaveBothChk", kOther, "SaveBothOnToolbar", "1", "SaveBothChk.Value"},
    {kMiscellaneous, "set Preferences.TxtUndoLevels.Text 5", kOther, "UndoMax", "10", "TxtUndoLevels.Text"},
    {kMiscellaneous, "set Preferences.TxtUndoLevels.Text 50000", kOther, "UndoMax", "30000",
     "TxtUndoLevels.Text"},
    {kMiscellaneous, "click Preferences.CheckUndoSave", kOther, "UndoClearOnSave", "1",
     "CheckUndoSave.Value"},
    {kMiscellaneous, "click Preferences.CheckHighlightOnUndo", kOther, "HighlightLineOnUndo", "1",
     "CheckHighlightOnUndo.Value"},
    {kMiscellaneous, "click Preferences.OptionImagesToShow(1)", kOther, "ComposerImages", "1",
     "OptionImagesToShow(1).Value", "True"},
    {kMiscellaneous, "click Preferences.OptionImagesToShow(2)", kOther, "ComposerImages", "2",
     "OptionImagesToShow(2).Value", "True"},
    {kMiscellaneous, "click Preferences.CheckAggressive", kOther, "AllowAggressiveFocus", "1",
     "CheckAggressive.Value"},
    {kMiscellaneous, "click Preferences.CheckIdentify", kOther, "CheckIdentifyOK", "0",
     "CheckIdentify.Value"},
    {kMiscellaneous, "click Preferences.CheckFlattenToolbar(0)", kOther, "FlatToolbar", "0",
     "CheckFlattenToolbar(0).Value"},
    {kMiscellaneous, "click Preferences.CheckFlattenToolbar(1)", kOther, "GradientEffect", "0",
     "CheckFlattenToolbar(1).Value"},
    {kMiscellaneous, "click Preferences.CheckFlattenToolbar(2)", kOther, "CanWrapToolbar", "1",
     "CheckFlattenToolbar(2).Value"},
    {kMiscellaneous, "set Preferences.DLYText.Text 250", kOther, "DefaultDLYvalue", "250", "DLYText.Text"},

    {kGames, "set Preferences.Text12.Text New", "Games", "GameName1", "New", "Text12.Text", nullptr, ""},
    {kGames, "set Preferences.Text11.Text c:\\x.exe", "Games", "GamePath1", "c:\\x.exe", "Text11.Text",
     nullptr, ""},
    {kGames, "set Preferences.Text4.Text c:\\x", "Games", "GameDIRPath1", "c:\\x", "Text4.Text", nullptr, ""},
    {kGames, "set Preferences.Text13.Text c:\\x.b50", "Games", "GameJF1", "c:\\x.b50", "Text13.Text", nullptr,
     ""},
    {kGames, "click Preferences.Check5", "Games", "GameUseJF1", "1", "Check5.Value", nullptr, ""},
    {kGames, "click Preferences.CheckFly", "Games", "GameFly1", "1", "CheckFly.Value", nullptr, ""},
};

/// As a word of a session, in which a quotation mark behind a backslash ends nothing.
std::string Word(const std::string& text) { return text.ends_with('\\') ? text : "\"" + text + "\""; }

/// The row as a session of two starts.
std::string ScriptFor(const SettingRow& row, const std::string& closing) {
  const std::string show =
      "start\nclick Editor.mnuPreferencesEdit\npick Preferences.SSTab1 " + Word(row.page) + "\n";
  const std::string stored = Word(row.stored);
  const std::string value = row.value ? row.value : row.key;
  return "ini FileLocations ProgramFilesPath c:\\own\\\n"
         "ini Favourites FavArrayNum 1\nini Favourites FavName1 Own\nini Favourites FavJFPath1 c:\\a.b50\n"
         "ini Games GameArrayNum 1\nini Games GameName1 Own\nini Games GamePath1 c:\\g.exe\n" +
         show + row.does + "\n" + closing + "\nexpect no form Preferences\nexpect ini " + row.section + " " +
         row.key + " " + stored + "\nclose Mum\n" + show +
         (value.empty() ? "" : "expect value " + value + " " + stored + "\n") + "expect Preferences." +
         row.shown + " " + Word(row.text ? row.text : row.stored) + "\nclick Preferences.Command3\n";
}

struct Way {
  const char* closing;
  std::unique_ptr<Driver> (*makeDriver)(Application&);

  friend void PrintTo(const Way& way, std::ostream* out) { *out << way.closing; }
};

class PreferencesSettings : public testing::TestWithParam<Way> {};

TEST_P(PreferencesSettings, AreStoredAndComeBack) {
  for (const SettingRow& row : kRows) {
    Runner runner(GetParam().makeDriver, TARVIK_DATA);
    EXPECT_THAT(runner.Run(ScriptFor(row, GetParam().closing)), testing::IsEmpty()) << row.does;
  }
}

constexpr Way kWays[] = {
    {"click Preferences.Command3", MakeFormDriver},    {"close Preferences", MakeFormDriver},
    {"key Preferences.SSTab1 Escape", MakeFormDriver}, {"click Preferences.Command3", MakeScreenDriver},
    {"close Preferences", MakeScreenDriver},           {"key Preferences.SSTab1 Escape", MakeScreenDriver}};
constexpr const char* kWayNames[] = {"ByOK",         "ByCloseBox",         "ByEscape",
                                     "OnScreenByOK", "OnScreenByCloseBox", "OnScreenByEscape"};

INSTANTIATE_TEST_SUITE_P(Closed, PreferencesSettings, testing::ValuesIn(kWays),
                         [](const auto& info) { return kWayNames[info.index]; });

}  // namespace
}  // namespace tarvik::session
