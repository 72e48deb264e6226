// The page of the preferences for the colours and the font, with the example that shows both.
#include <algorithm>

#include "tools/preferences/Preferences.h"

namespace tarvik {
namespace {

/// What bears a colour in the example: each word, up to and with an end where there is one.
struct ColouredWord {
  std::string_view word;
  std::string_view end = {};
};

struct ColourRow {
  const char* item;
  Property<Colour> Settings::*colour;
  ColouredWord words[8] = {};
};

constexpr std::string_view kLineEnd = "\r";

constexpr ColourRow kColourRows[] = {
    {"Background", &Settings::BackgroundColour},
    {"Rem statements", &Settings::RemStatements, {{"Rem", kLineEnd}, {"~", kLineEnd}}},
    {"Buttons", &Settings::BTNColour, {{"BTN"}}},
    {"Slash modifiers", &Settings::SlashColour, {{"/"}}},
    {"Raw statements", &Settings::RAWColour, {{"RAW (", ")"}}},
    {"Miscellaneous",
     &Settings::MiscellaneousColour,
     {{"ANT"}, {"RNG"}, {"USE"}, {"MT"}, {"MDEF"}, {"MTYPE"}, {"DLY"}, {"RATE"}}},
    {"Macro Background", &Settings::MacroBackgroundColour},
};
constexpr int kBackground = 0;

constexpr const char* kExample =
    "Rem -----------------------------------------\r\n"
    "Rem         My joystick file\r\n"
    "Rem -----------------------------------------\r\n"
    "USE TQS\r\n"
    "MDEF Longbow2\r\n"
    "ANT 1 5 SensorZoom- SensorZoom+ N\r\n"
    "Rem -----------------------------------------\r\n"
    "BTN T2 /I Chaff /O Flare\r\n"
    "BTN T4 /P RAW (#5B) /R RAW (#F0 #5B)    rem tail right\r\n"
    "BTN H1U  /T /N FrontNoCockpit  /T /N Front\r\n"
    "Rate 20";

constexpr const char* kFixedPitchTitle = "Lining up slash modifiers";
constexpr const char* kFixedPitch =
    "If you want all your slash modifiers to line up as they do in Notepad, choose a fixed pitch font, like "
    "Courier New.";

}  // namespace

void Preferences::FillColours() {
  std::vector<std::string> items;
  for (const ColourRow& row : kColourRows) items.emplace_back(row.item);
  List1.FillInOrder(std::move(items));
  ShowSwatches();
}

/// Each colour stands beside its name.
void Preferences::ShowSwatches() {
  std::vector<Colour> colours;
  for (const ColourRow& row : kColourRows) colours.push_back(settings_.*row.colour);
  List1.Paint(std::move(colours));
}

void Preferences::ShowExample() {
  ExampleJoystickText.Text = std::string(kExample);
  ApplyFont(ExampleJoystickText, settings_);
  for (int i = 0; i < List1.ListCount(); ++i) {
    List1.ListIndex = i;
    ApplyColour(settings_.*kColourRows[i].colour);
  }
  List1.ListIndex = -1;
}

void Preferences::List1_Click() {
  const int item = List1.ListIndex;
  if (item < 0) return;
  const Colour before = settings_.*kColourRows[item].colour;
  if (const auto colour = Ignore(bench_.platform.dialogs.AskForColour(before))) ApplyColour(*colour);
}

void Preferences::ApplyColour(Colour colour) {
  const int item = List1.ListIndex;
  if (item < 0) return;
  const ColourRow& row = kColourRows[item];
  settings_.*row.colour = colour;
  ShowSwatches();
  if (item == kBackground) ExampleJoystickText.BackColor = colour;
  for (const ColouredWord& word : row.words) {
    if (!word.word.empty()) PaintExample(word.word, word.end, colour);
  }
}

void Preferences::UseScheme(ColourScheme scheme) {
  for (int i = 0; i < List1.ListCount(); ++i) {
    List1.ListIndex = i;
    ApplyColour(Settings::ColourIn(scheme, kColourRows[i].colour));
  }
  List1.ListIndex = -1;
  bench_.values.FontChanged = 1;  // with which the files take their backgrounds
}

void Preferences::PaintExample(std::string_view word, std::string_view end, Colour colour) {
  Pane& pane = ExampleJoystickText;
  const std::string_view text = pane.Characters();
  std::size_t from = 0;
  while (const auto hit = pane.Find(std::string(word), from, text.size(), find::kKeepSelection)) {
    from = *hit + word.size();
    if (!end.empty()) from = std::min(text.find(end, from), text.size() - 1) + 1;
    pane.Select({*hit, from - *hit});
    pane.SelColor = colour;
  }
  pane.Select({0, 0});
}

void Preferences::DoTheFonts() {
  const FontChoice before = {settings_.TextFontName, settings_.TextFontSize, settings_.TextFontBold == 1};
  const auto font = Ignore(bench_.platform.dialogs.AskForFont(before, CheckFixedPitch.Value == 1));
  if (!font || *font == before) return;
  settings_.TextFontName = font->name;
  settings_.TextFontSize = font->size;
  settings_.TextFontBold = font->bold ? 1 : 0;
  ApplyFont(ExampleJoystickText, settings_);
  ShowFont();
  bench_.values.FontChanged = 1;
  bench_.values.TemplateFontChanged = 1;
}

void Preferences::ShowFont() {
  FontInUse.Caption = settings_.TextFontName.Get() + ", " + TextOf(settings_.TextFontSize.Get()) + " points" +
                      (settings_.TextFontBold == 1 ? ", bold" : "");
}

void Preferences::Command17_Click() {
  bench_.platform.dialogs.Show({kFixedPitchTitle, kFixedPitch, BoxIcon::Information});
}

void Preferences::SaveColourScheme() {
  Trap{bench_.errors, "PREFS SaveColourScheme"}(settings_.SaveColours());
}

}  // namespace tarvik
