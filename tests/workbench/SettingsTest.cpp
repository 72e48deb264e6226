#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>

#include "support/MemoryFiles.h"
#include "support/ScriptedPrinter.h"
#include "text/Contrast.h"
#include "workbench/Settings.h"

namespace tarvik {
namespace {

enum class Kind { Text, Number, Colour };

struct KeyRow {
  const char* section;
  const char* name;
  const char* fallback;
  Kind kind;
  bool savedWithTheOptions;
};

void PrintTo(const KeyRow& key, std::ostream* out) { *out << key.section << " " << key.name; }

constexpr KeyRow kKeys[] = {
    {"FileLocations", "B50LoadPath", "", Kind::Text, true},
    {"FileLocations", "ProgramFilesPath", "", Kind::Text, true},
    {"FileLocations", "JoystickExtension", "b50", Kind::Text, true},
    {"FileLocations", "MacroExtension", "m50", Kind::Text, true},
    {"FileLocations", "JoyName", "0", Kind::Number, true},
    {"FileLocations", "ThrottleName", "0", Kind::Number, true},
    {"FileLocations", "RudderName", "0", Kind::Number, true},
    {"FileLocations", "ShowTips", "1", Kind::Number, false},
    {"FileLocations", "FirstTimeUsed", "1", Kind::Number, true},
    {"FileLocations", "CandCCPath", "", Kind::Text, true},
    {"Miscellaneous", "AutoSaveEnabled", "0", Kind::Number, true},
    {"Miscellaneous", "AutoSaveTime", "10", Kind::Number, true},
    {"Miscellaneous", "CreateBackup", "1", Kind::Number, true},
    {"Miscellaneous", "GradientEffect", "1", Kind::Number, true},
    {"Miscellaneous", "OpenBothOnToolbar", "1", Kind::Number, true},
    {"Miscellaneous", "SaveBothOnToolbar", "0", Kind::Number, true},
    {"Miscellaneous", "AddCRtoREM", "1", Kind::Number, true},
    {"Miscellaneous", "CompOnTop", "1", Kind::Number, true},
    {"Miscellaneous", "PimletOnTop", "1", Kind::Number, true},
    {"Miscellaneous", "AllowAggressiveFocus", "0", Kind::Number, true},
    {"Miscellaneous", "MacroFrameWidth", "185", Kind::Number, true},
    {"Miscellaneous", "HighlightLineOnUndo", "0", Kind::Number, true},
    {"Miscellaneous", "HighlightDefinitions", "0", Kind::Number, true},
    {"Miscellaneous", "CheckIdentifyOK", "1", Kind::Number, true},
    {"Miscellaneous", "FlatToolbar", "1", Kind::Number, true},
    {"Miscellaneous", "CanWrapToolbar", "0", Kind::Number, true},
    {"Miscellaneous", "DefaultDLYvalue", "60", Kind::Number, true},
    {"Miscellaneous", "ComposerImages", "0", Kind::Number, true},
    {"Miscellaneous", "UndoMax", "50", Kind::Number, true},
    {"Miscellaneous", "UndoClearOnSave", "0", Kind::Number, true},
    {"Miscellaneous", "CompTabsAddCr", "1", Kind::Number, true},
    {"Miscellaneous", "ValidUser", "User unknown", Kind::Text, true},
    {"Apps", "ImageFilePath", "", Kind::Text, true},
    {"Apps", "TextFilePath", "", Kind::Text, true},
    {"Colours", "BackgroundColour", "16744448", Kind::Colour, false},
    {"Colours", "BTNColour", "16744448", Kind::Colour, false},
    {"Colours", "SlashColour", "16744448", Kind::Colour, false},
    {"Colours", "RAWColour", "16744448", Kind::Colour, false},
    {"Colours", "MiscellaneousColour", "16744448", Kind::Colour, false},
    {"Colours", "MacroBackgroundColour", "16744448", Kind::Colour, false},
    {"Colours", "RemStatements", "16744448", Kind::Colour, false},
    {"Colours", "TextFontName", "Arial", Kind::Text, false},
    {"Colours", "TextFontSize", "10", Kind::Number, false},
    {"Colours", "TextFontBold", "0", Kind::Number, false},
    {"Colours", "ApplyColoursOnFileOpen", "1", Kind::Number, true},
    {"Colours", "InsertWithColour", "1", Kind::Number, false},
};

class SettingsTest : public testing::Test {
 protected:
  SettingsTest() { files.PutFolder("c:\\tarvik"); }

  void Read() {
    settings.GetOptions();
    settings.GetColours();
  }
  void Store(const char* section, const char* key, const std::string& value) {
    ASSERT_TRUE(file.Write(section, key, value));
  }
  std::string Stored(const char* section, const char* key) const {
    return file.GetString(section, key, "(missing)", 1000);
  }
  std::string Value(const char* name) const { return settings.FindProperty(name)->ToText(); }

  MemoryFiles files;
  ProfileFile file{files, "c:\\tarvik\\tarvik.ini"};
  FixedCalendar calendar;
  Log log{calendar};
  Errors errors{log};
  Settings settings{file, errors};
};

class EverySetting : public SettingsTest, public testing::WithParamInterface<KeyRow> {
 protected:
  const KeyRow& key = GetParam();
};

class EveryTextSetting : public EverySetting {};
class EveryNumberSetting : public EverySetting {};
class EveryNumericSetting : public EverySetting {};

std::vector<KeyRow> Of(std::set<Kind> kinds) {
  std::vector<KeyRow> keys;
  std::copy_if(std::begin(kKeys), std::end(kKeys), std::back_inserter(keys),
               [&](const KeyRow& key) { return kinds.contains(key.kind); });
  return keys;
}

std::string NameOf(const testing::TestParamInfo<KeyRow>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(All, EverySetting, testing::ValuesIn(kKeys), NameOf);
INSTANTIATE_TEST_SUITE_P(All, EveryTextSetting, testing::ValuesIn(Of({Kind::Text})), NameOf);
INSTANTIATE_TEST_SUITE_P(All, EveryNumberSetting, testing::ValuesIn(Of({Kind::Number})), NameOf);
INSTANTIATE_TEST_SUITE_P(All, EveryNumericSetting, testing::ValuesIn(Of({Kind::Number, Kind::Colour})),
                         NameOf);

TEST_P(EverySetting, HasItsDefaultWithoutAFile) {
  Read();
  EXPECT_EQ(Value(key.name), key.fallback);
}

TEST_P(EverySetting, IsReadFromItsKey) {
  const std::string value = key.kind == Kind::Text ? "My Text" : "7";
  Store(key.section, key.name, value);
  Read();
  EXPECT_EQ(Value(key.name), value);
}

TEST_P(EverySetting, IsSavedWithTheOptionsOrByItsOwner) {
  Read();
  const std::string value = key.kind == Kind::Text ? "My Text" : "7";
  ASSERT_TRUE(settings.FindProperty(key.name)->FromText(value));
  settings.SaveOptions();
  EXPECT_EQ(Stored(key.section, key.name), key.savedWithTheOptions ? value : "(missing)");
}

TEST_P(EveryTextSetting, IsCutAtTheEndOfItsBuffer) {
  const std::size_t longest = std::string_view(key.section) == "Colours" ? 49 : 99;
  const std::string value = "c:\\" + std::string(117, 'x');
  Store(key.section, key.name, value);
  Read();
  EXPECT_EQ(Value(key.name), value.substr(0, longest));
  settings.SaveOptions();
  EXPECT_EQ(Stored(key.section, key.name), key.savedWithTheOptions ? value.substr(0, longest) : value);
}

TEST_P(EveryNumberSetting, LosesWhatIsBeyondSixteenBits) {
  for (const auto& [stored, value] : {std::pair{"32767", "32767"},
                                      {"32768", "-32768"},
                                      {"65537", "1"},
                                      {"-1", "-1"},
                                      {"-32769", "32767"}}) {
    Store(key.section, key.name, stored);
    Read();
    EXPECT_EQ(Value(key.name), value) << stored;
  }
}

TEST_P(EveryNumericSetting, ThatIsNoNumberIsZeroOrKeepsItsValue) {
  const std::string before = "5";
  ASSERT_TRUE(settings.FindProperty(key.name)->FromText(before));
  Store(key.section, key.name, "red");
  Read();
  // Colours and the font size are texts that are made numbers; the failure is on record.
  const bool converted = key.kind == Kind::Colour || std::string_view(key.name) == "TextFontSize";
  EXPECT_EQ(Value(key.name), converted ? before : "0");
  EXPECT_EQ(errors.ErrorTag.Get(), converted ? "MODULE GetColours" : "");
  EXPECT_EQ(errors.ErrorNumber, converted ? error::kTypeMismatch : 0);
}

TEST_F(SettingsTest, AColourTakesEveryThirtyTwoBitNumber) {
  for (const auto& [stored, colour] : {std::pair{" 255 ", 255U},
                                       {"-1", 0xFFFFFFFFU},
                                       {"2147483647", 0x7FFFFFFFU},
                                       {"-2147483648", 0x80000000U}}) {
    Store("Colours", "BTNColour", stored);
    settings.GetColours();
    EXPECT_EQ(settings.BTNColour, Colour{colour}) << stored;
  }
}

TEST_F(SettingsTest, AColourBeyondThirtyTwoBitsOrEmptyKeepsItsValue) {
  settings.BTNColour = Colour{255};
  Store("Colours", "BTNColour", "2147483648");
  settings.GetColours();
  EXPECT_EQ(settings.BTNColour, Colour{255});
  EXPECT_EQ(errors.ErrorText.Get(), "Overflow");
  Store("Colours", "BTNColour", "");
  settings.GetColours();
  EXPECT_EQ(settings.BTNColour, Colour{255});
  EXPECT_EQ(errors.ErrorText.Get(), "Type mismatch");
}

TEST_F(SettingsTest, TheFontSizeIsCutAtNineCharacters) {
  Store("Colours", "TextFontSize", "0000000000012");
  settings.GetColours();
  EXPECT_EQ(settings.TextFontSize, 0);
  Store("Colours", "TextFontSize", "000000012");
  settings.GetColours();
  EXPECT_EQ(settings.TextFontSize, 12);
}

TEST_F(SettingsTest, AggressiveFocusKeepsBothToolsOnTop) {
  Store("Miscellaneous", "CompOnTop", "0");
  Store("Miscellaneous", "PimletOnTop", "0");
  settings.GetOptions();
  EXPECT_EQ(settings.CompOnTop, 0);
  EXPECT_EQ(settings.PimletOnTop, 0);
  Store("Miscellaneous", "AllowAggressiveFocus", "1");
  settings.GetOptions();
  EXPECT_EQ(settings.CompOnTop, 1);
  EXPECT_EQ(settings.PimletOnTop, 1);
  settings.SaveOptions();
  EXPECT_EQ(Stored("Miscellaneous", "CompOnTop"), "1");
  EXPECT_EQ(Stored("Miscellaneous", "PimletOnTop"), "1");
}

TEST_F(SettingsTest, TheTipsKeyOutlivesASaveOfTheOptions) {
  Store("FileLocations", "ShowTips", "0");
  settings.GetOptions();
  settings.ShowTips = 1;
  settings.SaveOptions();
  EXPECT_EQ(Stored("FileLocations", "ShowTips"), "0");
}

TEST_F(SettingsTest, TheFactoryColoursAreWrittenButForTheInsertionColour) {
  Store("Colours", "InsertWithColour", "0");
  Read();
  settings.ColoursSortOut();
  constexpr std::pair<const char*, const char*> kFactory[] = {
      {"BackgroundColour", "14285565"},
      {"BTNColour", "16711680"},
      {"SlashColour", "255"},
      {"RAWColour", "32768"},
      {"MiscellaneousColour", "12615680"},
      {"MacroBackgroundColour", "16645091"},
      {"RemStatements", "8421504"},
      {"TextFontName", "Arial"},
      {"TextFontSize", "8"},
      {"TextFontBold", "0"},
      {"ApplyColoursOnFileOpen", "1"},
  };
  for (const auto& [name, value] : kFactory) {
    EXPECT_EQ(Value(name), value);
    EXPECT_EQ(Stored("Colours", name), value);
  }
  EXPECT_EQ(settings.InsertWithColour, 1);
  EXPECT_EQ(Stored("Colours", "InsertWithColour"), "0");
}

TEST_F(SettingsTest, AFileThatCannotBeWrittenIsOnRecordAndKept) {
  Store("Miscellaneous", "UndoMax", "20");
  files.SetReadOnly("c:\\tarvik\\tarvik.ini");
  Read();
  settings.UndoMax = 30;
  settings.SaveOptions();
  EXPECT_EQ(Stored("Miscellaneous", "UndoMax"), "20");
  EXPECT_EQ(settings.UndoMax, 30);
  EXPECT_EQ(errors.ErrorTag.Get(), "MODULE SaveOptions");
}

TEST(ColourScheme, TheDarkOneCanBeReadInBothFiles) {
  constexpr Property<Colour> Settings::*kInks[] = {&Settings::BTNColour, &Settings::SlashColour,
                                                   &Settings::RAWColour, &Settings::MiscellaneousColour,
                                                   &Settings::RemStatements};
  for (const auto background : {&Settings::BackgroundColour, &Settings::MacroBackgroundColour}) {
    for (const auto ink : kInks) {
      EXPECT_GE(ContrastOf(Settings::ColourIn(ColourScheme::Dark, ink),
                           Settings::ColourIn(ColourScheme::Dark, background)),
                kReadable);
    }
  }
}

}  // namespace
}  // namespace tarvik
