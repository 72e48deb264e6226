#include "workbench/Settings.h"

#include <algorithm>
#include <charconv>
#include <variant>

#include "text/Blanks.h"
#include "text/Contrast.h"

namespace tarvik {
namespace {

// Strings come through buffers of these sizes, and longer ones are cut to one character less.
constexpr std::size_t kOptionBuffer = 100;
constexpr std::size_t kColourBuffer = 50;
constexpr std::size_t kFontSizeBuffer = 10;

enum class Saved { Yes, No };

struct Option {
  const char* section;
  std::variant<Property<int> Settings::*, Property<std::string> Settings::*> member;
  std::string_view fallback;
  Saved saved = Saved::Yes;
};

// The options in the order in which they are written.
constexpr Option kOptions[] = {
    {section::kFileLocations, &Settings::B50LoadPath, ""},
    {section::kFileLocations, &Settings::ProgramFilesPath, ""},
    {section::kFileLocations, &Settings::JoystickExtension, "b50"},
    {section::kFileLocations, &Settings::MacroExtension, "m50"},
    {section::kFileLocations, &Settings::JoyName, "0"},
    {section::kFileLocations, &Settings::ThrottleName, "0"},
    {section::kFileLocations, &Settings::RudderName, "0"},
    {section::kFileLocations, &Settings::ShowTips, "1", Saved::No},
    {section::kFileLocations, &Settings::FirstTimeUsed, "1"},
    {section::kFileLocations, &Settings::CandCCPath, ""},
    {section::kMiscellaneous, &Settings::AutoSaveEnabled, "0"},
    {section::kMiscellaneous, &Settings::AutoSaveTime, "10"},
    {section::kMiscellaneous, &Settings::CreateBackup, "1"},
    {section::kMiscellaneous, &Settings::DefaultDLYvalue, "60"},
    {section::kMiscellaneous, &Settings::ComposerImages, "0"},
    {section::kMiscellaneous, &Settings::AllowAggressiveFocus, "0"},
    {section::kMiscellaneous, &Settings::UndoMax, "50"},
    {section::kMiscellaneous, &Settings::UndoClearOnSave, "0"},
    {section::kMiscellaneous, &Settings::HighlightLineOnUndo, "0"},
    {section::kMiscellaneous, &Settings::ValidUser, "User unknown"},
    {section::kMiscellaneous, &Settings::CheckIdentifyOK, "1"},
    {section::kMiscellaneous, &Settings::GradientEffect, "1"},
    {section::kMiscellaneous, &Settings::AddCRtoREM, "1"},
    {section::kMiscellaneous, &Settings::FlatToolbar, "1"},
    {section::kMiscellaneous, &Settings::CanWrapToolbar, "0"},
    {section::kMiscellaneous, &Settings::OpenBothOnToolbar, "1"},
    {section::kMiscellaneous, &Settings::SaveBothOnToolbar, "0"},
    {section::kMiscellaneous, &Settings::CompOnTop, "1"},
    {section::kMiscellaneous, &Settings::CompTabsAddCr, "1"},
    {section::kMiscellaneous, &Settings::PimletOnTop, "1"},
    {section::kMiscellaneous, &Settings::HighlightDefinitions, "0"},
    {section::kMiscellaneous, &Settings::MacroFrameWidth, "185"},
    {section::kApps, &Settings::ImageFilePath, ""},
    {section::kApps, &Settings::TextFilePath, ""},
    {section::kColours, &Settings::ApplyColoursOnFileOpen, "1"},
    {section::kView, &Settings::LineNumbers, "1"},
    {section::kView, &Settings::CurrentLine, "1"},
    {section::kView, &Settings::MatchingBrackets, "1"},
    {section::kView, &Settings::OtherPlaces, "1"},
    {section::kView, &Settings::ChangedLines, "1"},
    {section::kView, &Settings::ColourAsYouType, "0"},
    {section::kView, &Settings::OfferColourAsYouType, "1"},
    {section::kView, &Settings::WelcomePage, "1"},
    {section::kView, &Settings::MarkProblems, "1"},
    {section::kView, &Settings::ProblemsPanel, "0"},
    {section::kView, &Settings::ErrorsBeforeDownload, "1"},
    {section::kView, &Settings::ExplainLine, "0"},
    {section::kView, &Settings::Outline, "0"},
    {section::kView, &Settings::SuggestAsYouType, "0"},
    {section::kView, &Settings::FileHeads, "1"},
    {section::kView, &Settings::FilterLines, "1"},
    {section::kView, &Settings::FollowStick, "0"},
    {section::kView, &Settings::FixedPitch, "0"},
    {section::kView, &Settings::Zoom, "100"},
    {section::kView, &Settings::TileShare, "500"},
    {section::kKneeboard, &Settings::KneeboardPaper, "0"},
    {section::kKneeboard, &Settings::KneeboardTurned, "0"},
    {section::kKneeboard, &Settings::KneeboardLayers, "0"},
    {section::kKneeboard, &Settings::KneeboardOrder, "0"},
    {section::kKneeboard, &Settings::KneeboardResolution, "2"},
    {section::kKneeboard, &Settings::KneeboardZoom, "0"},
    {section::kKneeboard, &Settings::KneeboardDevices, "1"},
    {section::kKneeboard, &Settings::KneeboardKeyboard, "1"},
    {section::kKneeboard, &Settings::KneeboardList, "1"},
    {section::kKneeboard, &Settings::KneeboardKeys, "1"},
    {section::kKneeboard, &Settings::KneeboardTwoOnASheet, "0"},
    {section::kKneeboard, &Settings::KneeboardBlackAndWhite, "0"},
};

struct ColourOption {
  Property<Colour> Settings::*member;
  Colour factory;
  Colour dark;
};

// The default for a file without the key differs from the factory scheme on purpose.
constexpr std::string_view kColourFallback = "16744448";
constexpr ColourOption kColourOptions[] = {
    {&Settings::BackgroundColour, kUsualBackground, Rgb(30, 32, 36)},
    {&Settings::BTNColour, Colour{16711680}, Rgb(110, 170, 255)},
    {&Settings::SlashColour, Colour{255}, Rgb(255, 125, 115)},
    {&Settings::RAWColour, Colour{32768}, Rgb(125, 210, 125)},
    {&Settings::MiscellaneousColour, Colour{12615680}, Rgb(90, 200, 225)},
    {&Settings::MacroBackgroundColour, Colour{16645091}, Rgb(26, 34, 38)},
    {&Settings::RemStatements, Colour{8421504}, Rgb(150, 150, 150)},
};

constexpr const char* kFontFallback = "Arial";
constexpr std::string_view kFontSizeFallback = "10";
constexpr int kFactoryFontSize = 8;

int Number(std::string_view text) {
  int number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

std::string Decimal(int value) { return TextOf(value); }
const std::string& Decimal(const std::string& value) { return value; }
std::string Decimal(Colour value) { return TextOf(static_cast<int>(NumberOf(value))); }

}  // namespace

Outcome<int> ToLong(std::string_view text) {
  text = WithoutBlanks(text);
  int value = 0;
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (status == std::errc::result_out_of_range) return Failure{error::kOverflow, "Overflow", 0};
  if (status != std::errc{} || end != text.data() + text.size()) {
    return Failure{error::kTypeMismatch, "Type mismatch", 0};
  }
  return value;
}

int To16Bits(int value) { return static_cast<std::int16_t>(value); }

Colour Settings::ColourIn(ColourScheme scheme, Property<Colour> Settings::*colour) {
  const auto option = std::ranges::find(kColourOptions, colour, &ColourOption::member);
  return scheme == ColourScheme::Dark ? option->dark : option->factory;
}

void Settings::GetOptions() {
  const Profile profile = file_.Read();
  for (const Option& option : kOptions) {
    if (const auto* number = std::get_if<Property<int> Settings::*>(&option.member)) {
      Property<int>& property = this->**number;
      property = To16Bits(profile.GetInt(option.section, property.Name(), Number(option.fallback)));
    } else {
      Property<std::string>& property = this->*std::get<Property<std::string> Settings::*>(option.member);
      property = profile.GetString(option.section, property.Name(), option.fallback, kOptionBuffer);
    }
  }
  if (AllowAggressiveFocus == 1) PimletOnTop = CompOnTop = 1;
}

void Settings::SaveOptions() {
  const Trap trap{errors_, "MODULE SaveOptions"};
  std::vector<ProfileEntry> entries;
  for (const Option& option : kOptions) {
    if (option.saved == Saved::No) continue;
    std::visit(
        [&](auto member) {
          const auto& property = this->*member;
          entries.push_back({option.section, std::string(property.Name()), Decimal(property.Get())});
        },
        option.member);
  }
  trap(file_.WriteAll(entries));
}

void Settings::GetColours() {
  const Trap trap{errors_, "MODULE GetColours"};
  const Profile profile = file_.Read();
  const auto number = [&](std::string_view key, std::string_view fallback, std::size_t buffer) {
    const auto read = trap(ToLong(profile.GetString(section::kColours, key, fallback, buffer)));
    if (!read) profile.TellUnreadable(section::kColours, key);
    return read;
  };
  for (const ColourOption& option : kColourOptions) {
    Property<Colour>& property = this->*option.member;
    const auto colour = number(property.Name(), kColourFallback, kColourBuffer);
    if (colour) property = static_cast<Colour>(*colour);
  }
  TextFontName = profile.GetString(section::kColours, "TextFontName", kFontFallback, kColourBuffer);
  const auto size = number("TextFontSize", kFontSizeFallback, kFontSizeBuffer);
  if (size) TextFontSize = To16Bits(*size);
  TextFontBold = To16Bits(profile.GetInt(section::kColours, "TextFontBold", 0));
  ApplyColoursOnFileOpen = To16Bits(profile.GetInt(section::kColours, "ApplyColoursOnFileOpen", 1));
  InsertWithColour = To16Bits(profile.GetInt(section::kColours, "InsertWithColour", 1));
}

void Settings::ColoursSortOut() {
  TextFontName = kFontFallback;
  TextFontSize = kFactoryFontSize;
  TextFontBold = 0;
  ApplyColoursOnFileOpen = 1;
  InsertWithColour = 1;
  for (const ColourOption& option : kColourOptions) this->*option.member = option.factory;
  Trap{errors_, "MUM ColoursSortOut"}(SaveColours());
}

void Settings::UseScheme(ColourScheme scheme) {
  for (const ColourOption& option : kColourOptions) this->*option.member = ColourIn(scheme, option.member);
  Trap{errors_, "Settings"}(SaveColours());
}

Outcome<> Settings::SaveColours() {
  std::vector<ProfileEntry> entries;
  const auto add = [&entries](const auto& property) {
    entries.push_back({section::kColours, std::string(property.Name()), Decimal(property.Get())});
  };
  for (const ColourOption& option : kColourOptions) add(this->*option.member);
  add(TextFontName);
  add(TextFontSize);
  add(TextFontBold);
  add(ApplyColoursOnFileOpen);
  return file_.WriteAll(entries);
}

void Settings::Change(Property<int>& option, int value) {
  const auto isRow = [&](const Option& row) {
    const auto* const member = std::get_if<Property<int> Settings::*>(&row.member);
    return member != nullptr && &(this->**member) == &option;
  };
  const auto row = std::ranges::find_if(kOptions, isRow);
  option = value;
  if (row != std::end(kOptions)) Write(row->section, option.Name(), TextOf(value));
}

void Settings::Write(std::string_view section, std::string_view key, std::string_view value) {
  Ignore(file_.Write(section, key, value));
}

}  // namespace tarvik
