#include "tools/preferences/Preferences.h"

#include <algorithm>
#include <utility>

#include "language/Controllers.h"
#include "text/CodePage.h"
#include "tools/preferences/CommandLines.h"
#include "tools/preferences/DrivesForm.h"
#include "workbench/HelpTopics.h"

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
constexpr const char* kAutoSaveInvalid =
    "The value you entered isn't valid. I'm changing it to 10 minutes to prevent an error ocurring.";

constexpr int kLeftButton = 1;
constexpr int kLeastUndo = 10;
constexpr int kMostUndo = 30000;
constexpr int kAutoSaveMinutes = 10;
constexpr int kDelay = 60;

/// The whole number a box begins with, as far as 16 bits hold it.
int NumberOf(const TextBox& box) {
  return static_cast<int>(std::clamp(NumberIn(box.Text.Get()), -32768.0, 32767.0));
}

std::string WithBackslash(const std::string& path) {
  return path.empty() || path.back() == '\\' ? path : path + "\\";
}

template <class Row, std::size_t N>
void FillCombo(ComboBox& combo, const Row (&rows)[N], int number) {
  std::vector<std::string> names;
  for (const Row& row : rows) names.emplace_back(row.name);
  combo.FillInOrder(std::move(names));
  combo.ListIndex = RowOf(rows, number) ? number : -1;
}

template <class Controls, std::size_t N>
void NameEach(const Controls& controls, const char* const (&captions)[N]) {
  for (std::size_t i = 0; i < N; ++i) controls(static_cast<int>(i)).Caption = captions[i];
}

}  // namespace

Preferences::Preferences(Workbench& bench, Shell& shell)
    : Form("Preferences"),
      ExampleJoystickText(*this, "ExampleJoystickText", bench.platform.files),
      bench_(bench),
      shell_(shell),
      settings_(bench.settings),
      favourites_{bench.lists.Favourites,
                  List2,
                  {&Text7, &Text8, &Text9},
                  {&Command9, &Command10, &Command13, &Command14},
                  "favourites",
                  [this] { bench_.lists.SaveFavourites(); }},
      games_{bench.lists.Games,
             List3,
             {&Text12, &Text11, &Text4, &Text13},
             {&Check5, &Command16, &Command15, &Command4, &Command12},
             "games",
             [this] { bench_.lists.SaveGames(); }} {
  Caption = "Preferences";
  NameControls();
  AttachHandlers();
  AttachMiscellaneous();
  AttachApps();
  AttachLists();
}

void Preferences::NameControls() {
  NameEach(Check3, {"Autosave files every", "Create backup when saving files"});
  NameEach(CheckFlattenToolbar, {"Flatten toolbar on startup", "Apply colour gradient on startup",
                                 "Toolbar is wrappable on startup"});
  NameEach(OptionImagesToShow, {"Your selected controllers", "All Thrustmaster controllers",
                                "Controllers relevant to the files that are open "});
  Text1.ToolTipText = "Program used to transfer joystick files to joystick";
  Text2.ToolTipText = "Default location for joystick and macro files";
  Text10.ToolTipText = "Batch file that runs Thrustmaster DOS C&&CC";
  ComboJoystick.ToolTipText = "Select the Joystick you have";
  ComboThrottle.ToolTipText = "Select the Throttle you have";
  ComboRudders.ToolTipText = "Select the Rudders you have";
  List1.ToolTipText = "Click here to change the colour already assigned";
  ExampleJoystickText.ToolTipText =
      "This is how it should look when you apply colour highlighting to your joystick file";
  ExampleJoystickText.Locked = true;
  Text5.ToolTipText = "Default image for Image Viewer";
  Text6.ToolTipText = "Default file for Template Editor";
  TxtUndoLevels.ToolTipText = "10 to 30,000 - high values slow down Tarvik";
  CheckShowTooltips.ToolTipText = "To be implemented at a later date";
  CommandDrives.ToolTipText = "Which folder each drive letter stands for";
  DLYText.ToolTipText = "Default delay value for Editor's DLY button";
  Command3.ToolTipText = "Saves the Preferences";
}

void Preferences::AttachHandlers() {
  Command3.MakeDefault();
  Command3.Cancel = true;  // Escape stores as well
  Command3.Click = [this] { shell_.Unload(*this); };
  Command6.Click = [this] { Command6_Click(); };
  SSTab1.Click = [this] { SSTab1_Click(); };
  Text1.Change = [this] { settings_.B50LoadPath = Text1.Text.Get(); };
  Text2.Change = [this] { Text2_Change(); };
  Browse(Command1, Text1, "Locate Thrustmaster file", "Executables (*.exe)|*.exe|All files (*.*)|*.*",
         &settings_.B50LoadPath);
  Command2.Click = [this] {
    const auto folder = Ignore(
        bench_.platform.dialogs.AskForFolder("Select your Thrustmaster programs directory", Text2.Text));
    if (folder) Text2.Text = WithBackslash(LowerCase(*folder));
  };
  Browse(Command8, Text10, "Locate Thrustmaster file",
         "Batch files (*.bat)|*.bat|Executables (*.exe)|*.exe|All files (*.*)|*.*", &settings_.CandCCPath);
  Browse(Command5, Text5, "Locate image file", "Picture files|*.bmp;*.jpg;*.gif;*.wmf|All files (*.*)|*.*",
         &settings_.ImageFilePath);
  Browse(Command7, Text6, "Locate text file", "Text files|*.txt;*.rtf;*.ini;*.bat|All files (*.*)|*.*",
         &settings_.TextFilePath);
  CommandDrives.Click = [this] { shell_.ShowModal(shell_.Tool<DrivesForm>()); };
  ComboJoystick.Click = [this] { ComboJoystick_Click(); };
  ComboThrottle.Click = [this] { settings_.ThrottleName = ComboThrottle.ListIndex; };
  ComboRudders.Click = [this] { settings_.RudderName = ComboRudders.ListIndex; };
  List1.MouseUp = [this](const Mouse& mouse) {
    if (mouse.button == kLeftButton) List1_Click();
  };
  List1.DblClick = [this] { List1_Click(); };  // the Enter key
  CheckBox1.Click = [this] { settings_.ApplyColoursOnFileOpen = CheckBox1.Value; };
  Command17.Click = [this] { Command17_Click(); };
  Command18.Click = [this] { DoTheFonts(); };
  Load = [this] { Form_Load(); };
  Activate = [this] { Form_Activate(); };
  Unload = [this] { Form_Unload(); };
}

void Preferences::AttachMiscellaneous() {
  const auto atOnce = [this](CheckBox& box, Property<int>& setting) {
    box.Click = [this, &box, &setting] {
      setting = box.Value;
      bench_.ToolbarSettingsChanged();
    };
  };
  atOnce(OpenBothChk, settings_.OpenBothOnToolbar);
  atOnce(SaveBothChk, settings_.SaveBothOnToolbar);
  Text3.Change = [this] { Text3_Change(); };
  Text3.LostFocus = [this] { Text3_LostFocus(); };
  TxtUndoLevels.Change = [this] { TxtUndoLevels_Change(); };
  TxtUndoLevels.LostFocus = [this] { TxtUndoLevels_LostFocus(); };
  DLYText.Change = [this] { DLYtext_Change(); };
  Command11.Click = [this] { bench_.ForgetUndos(); };
  for (int i = 0; i < OptionImagesToShow.Count(); ++i) {
    OptionImagesToShow(i).Click = [this, i] { settings_.ComposerImages = i; };
  }
}

std::vector<Preferences::Tick> Preferences::Ticks() {
  return {{Check3(0), settings_.AutoSaveEnabled},
          {Check3(1), settings_.CreateBackup},
          {CheckFlattenToolbar(0), settings_.FlatToolbar},
          {CheckFlattenToolbar(1), settings_.GradientEffect},
          {CheckFlattenToolbar(2), settings_.CanWrapToolbar},
          {OpenBothChk, settings_.OpenBothOnToolbar},
          {SaveBothChk, settings_.SaveBothOnToolbar},
          {CheckUndoSave, settings_.UndoClearOnSave},
          {CheckIdentify, settings_.CheckIdentifyOK},
          {CheckAggressive, settings_.AllowAggressiveFocus},
          {CheckHighlightOnUndo, settings_.HighlightLineOnUndo}};
}

// Life of the form.

void Preferences::Form_Load() {
  FillCombo(ComboJoystick, kJoysticks, settings_.JoyName);
  FillCombo(ComboThrottle, kThrottles, settings_.ThrottleName);
  FillCombo(ComboRudders, kRudders, settings_.RudderName);
  Text1.Text = settings_.B50LoadPath.Get();
  Text2.Text = settings_.ProgramFilesPath.Get();
  Text10.Text = settings_.CandCCPath.Get();
  Text5.Text = settings_.ImageFilePath.Get();
  Text6.Text = settings_.TextFilePath.Get();
  for (const Tick& tick : Ticks()) tick.box.Value = tick.setting == 0 ? 0 : 1;
  Text3.Text = TextOf(settings_.AutoSaveTime.Get());
  TxtUndoLevels.Text = TextOf(settings_.UndoMax.Get());
  DLYText.Text = TextOf(settings_.DefaultDLYvalue.Get());
  const int images = settings_.ComposerImages;
  if (images >= 0 && images < OptionImagesToShow.Count()) OptionImagesToShow(images).Value = true;
  bench_.values.FontChanged = 0;
  settings_.GetColours();
  SSTab1.Tab = page::kFileLocations;
  Topmost = true;
}

void Preferences::Form_Activate() {
  SSTab1.Tab = bench_.values.PreferencesTab;
  if (SSTab1.Tab == page::kFileLocations) Text1.SetFocus();
}

/// The one place where the dialog's state becomes the program's.
void Preferences::Form_Unload() {
  Text7_LostFocus();
  settings_.B50LoadPath = Text1.Text.Get();
  settings_.ProgramFilesPath = WithBackslash(Text2.Text);
  settings_.CandCCPath = Text10.Text.Get();
  settings_.ImageFilePath = Text5.Text.Get();
  settings_.TextFilePath = Text6.Text.Get();
  for (const Tick& tick : Ticks()) tick.setting = tick.box.Value;
  TxtUndoLevels_Change();
  settings_.FirstTimeUsed = 0;
  settings_.SaveOptions();
  SaveColourScheme();
  bench_.lists.SaveApps();
  bench_.lists.SaveFavourites();
  bench_.lists.SaveGames();
  bench_.AutoSaveSettingsChanged();
  if (bench_.values.HardwareChanged == 1) bench_.HardwareSettingsChanged();
}

void Preferences::SaveColourScheme() {
  Trap{bench_.errors, "PREFS SaveColourScheme"}(settings_.SaveColours());
}

void Preferences::SSTab1_Click() {
  bench_.values.PreferencesTab = SSTab1.Tab.Get();
  if (SSTab1.Tab == page::kFileLocations) Text1.SetFocus();
  if (SSTab1.Tab == page::kColours) {
    CheckBox1.Value = settings_.ApplyColoursOnFileOpen == 0 ? 0 : 1;
    FillColours();
    ShowExample();
  }
  if (SSTab1.Tab == page::kFavourites) Show(favourites_, 0);
  if (SSTab1.Tab == page::kGames) Show(games_, 0);
}

void Preferences::Say(const std::string& text) { bench_.documents.status.Panels(1).Text = text; }

void Preferences::Command6_Click() { ShowHelp(bench_.platform, topic::kPreferencesPages[SSTab1.Tab]); }

// File locations.

void Preferences::Browse(CommandButton& button, TextBox& box, const char* say, const char* filter,
                         Property<std::string>* setting) {
  button.Click = [this, &box, say, filter, setting] {
    Say(say);
    FileRequest request;
    request.title = say;
    request.filter = filter;
    request.folder = box.Text.Get().substr(0, box.Text.Get().rfind('\\') + 1);
    const auto path = Ignore(bench_.platform.dialogs.AskForFile(request));
    if (!path) return;
    box.Text = LowerCase(*path);
    if (setting) *setting = box.Text.Get();
  };
}

void Preferences::Text2_Change() { settings_.ProgramFilesPath = WithBackslash(Text2.Text); }

void Preferences::ComboJoystick_Click() {
  const int joystick = ComboJoystick.ListIndex;
  if (joystick < 0) return;
  if (joystick != settings_.JoyName) bench_.values.HardwareChanged = 1;
  settings_.JoyName = joystick;
  const Endings& endings = kJoysticks[joystick].endings;
  settings_.JoystickExtension = std::string(endings.joystick);
  settings_.MacroExtension = std::string(endings.macro);
}

// Apps.

void Preferences::AttachApps() {
  for (int row = 1; row <= PreviousFiles::kCustomApps; ++row) {
    CustomApp& app = bench_.lists.CustomApps[static_cast<std::size_t>(row - 1)];
    TextBox& name = CustomAppNameText.Load(row);
    TextBox& path = CustomAppPathText.Load(row);
    CheckBox& use = CustomAppPathUse.Load(row);
    name.Text = app.name;
    path.Text = app.path;
    use.Caption = "In the menu";
    use.Value = app.use == 1 ? 1 : 0;
    CustomAppPathBrowse.Load(row).Caption = "Browse";
    Browse(
        CustomAppPathBrowse(row), path, "Locate program",
        "Executables (*.exe)|*.exe|Batch files (*.bat)|*.bat|Help files (*.hlp)|*.hlp|Control panel applets "
        "(*.cpl)|*.cpl|All files (*.*)|*.*");
    const auto take = [this, &app, &name, &path] {
      app.name = name.Text.Get();
      app.path = path.Text.Get();
      bench_.lists.CustomAppsChanged();
    };
    name.Change = take;
    path.Change = take;
    use.Click = [this, row] { CustomAppPathUse_Click(row); };
  }
}

void Preferences::CustomAppPathUse_Click(int row) {
  CustomApp& app = bench_.lists.CustomApps[static_cast<std::size_t>(row - 1)];
  app.use = CustomAppPathUse(row).Value;
  if (app.use == 1) {
    CustomAppPathText(row).Text = tarvik::CustomAppPathUse(bench_.platform.dialogs, app.path);
  }
  bench_.lists.CustomAppsChanged();
}

// Favourites and games.

void Preferences::AttachLists() {
  AttachList(favourites_, Command13);
  AttachList(games_, Command12);
  PreviousFiles& lists = bench_.lists;
  const std::string all = "|All files (*.*)|*.*";
  const auto own = [all](const std::string& kind, const std::string& ending) {
    return kind + " (*." + ending + ")|*." + ending + all;
  };
  Command9.Click = [this, own] { Choose(favourites_, 1, own("Joystick file", settings_.JoystickExtension)); };
  Command10.Click = [this, own] { Choose(favourites_, 2, own("Macro file", settings_.MacroExtension)); };
  Command16.Click = [this, all] {
    Choose(games_, 1, "Executables (*.exe)|*.exe|Batch files (*.bat)|*.bat" + all);
  };
  Command15.Click = [this] { Choose(games_, 2, ""); };
  Command4.Click = [this, own] { Choose(games_, 3, own("Joystick file", settings_.JoystickExtension)); };
  Text7.LostFocus = [this] { Text7_LostFocus(); };
  Text12.LostFocus = games_.save;
  Text11.LostFocus = games_.save;
  Command14.Click = [this, &lists] {
    lists.FavNameToLoad = Text7.Text.Get();
    Label11.Caption = Text7.Text.Get();
    lists.SaveFavourites();
  };
  LoadAppCheckBox.Value = lists.FavLoadOnStart == 1 ? 1 : 0;
  LoadAppCheckBox.Click = [this, &lists] {
    lists.FavLoadOnStart = LoadAppCheckBox.Value;
    lists.SaveFavourites();
  };
  Label11.Caption = lists.FavNameToLoad.Get();
  Label11.BackColor = ToggleLabel::kOff;
  Check5.Click = [this] {
    if (filling_ || List3.ListIndex < 0) return;
    games_.list.SetPart(List3.ListIndex + 1, 4, Check5.Value.ToText());
    games_.save();
  };
}

/// The Enter key leaves the window without leaving the box.
void Preferences::Text7_LostFocus() {
  if (Text7.Empty() && List2.ListIndex >= 0) Text7.Text = std::string("Name?");
}

void Preferences::AttachList(ListPage& page, CommandButton& remove) {
  connections_.push_back(page.rows.ListIndex.Changed.Connect([this, &page] { ShowRecord(page); }));
  for (std::size_t part = 0; part < page.parts.size(); ++part) {
    TextBox& box = *page.parts[part];
    box.Change = [this, &page, &box, part] {
      const int row = page.rows.ListIndex;
      if (filling_ || row < 0) return;
      page.list.SetPart(row + 1, part, box.Text);
      if (part == 0) Fill(page, row);
    };
  }
  remove.Click = [this, &page] { Remove(page); };
}

/// The names, with the row in hand.
void Preferences::Fill(ListPage& page, int row) {
  const bool before = std::exchange(filling_, true);
  page.rows.FillInOrder(page.list.Names());
  page.rows.ListIndex = std::min(row, page.list.Count() - 1);
  filling_ = before;
}

void Preferences::ShowRecord(ListPage& page) {
  const int row = page.rows.ListIndex;
  if (filling_ || row < 0) return;
  filling_ = true;
  for (std::size_t part = 0; part < page.parts.size(); ++part) {
    page.parts[part]->Text = page.list.Part(row + 1, part);
    page.parts[part]->Enabled = true;
  }
  for (Control* const other : page.others) other->Enabled = true;
  if (&page == &games_) Check5.Value = page.list.Part(row + 1, 4) == "1" ? 1 : 0;
  filling_ = false;
}

void Preferences::Disable(ListPage& page) {
  Fill(page, -1);
  filling_ = true;
  for (TextBox* const part : page.parts) {
    part->Text = std::string();
    part->Enabled = false;
  }
  for (Control* const other : page.others) other->Enabled = false;
  filling_ = false;
}

/// The list anew, with this row in hand as far as there is one.
void Preferences::Show(ListPage& page, int row) {
  if (page.list.Count() == 0) return Disable(page);
  Fill(page, row);
  ShowRecord(page);
}

void Preferences::UpdateFavouritesControls() { Show(favourites_, std::max(0, List2.ListIndex.Get())); }
void Preferences::DisableFavouritesControls() { Disable(favourites_); }
void Preferences::UpdateGamesControls() { Show(games_, std::max(0, List3.ListIndex.Get())); }
void Preferences::DisableGamesControls() { Disable(games_); }

void Preferences::Choose(ListPage& page, std::size_t part, const std::string& filter) {
  const int row = page.rows.ListIndex;
  if (row < 0) return;
  Dialogs& dialogs = bench_.platform.dialogs;
  TextBox& box = *page.parts[part];
  const std::string folder = box.Text.Get().substr(0, box.Text.Get().rfind('\\') + 1);
  const std::string title = "Select the working directory for " + page.list.Part(row + 1, 0);
  const auto chosen =
      Ignore(filter.empty() ? dialogs.AskForFolder(title, folder)
                            : dialogs.AskForFile({FileDialogKind::Open, "", filter, folder, "", ""}));
  if (!chosen) return;
  box.Text = LowerCase(*chosen);
  page.save();
}

void Preferences::Remove(ListPage& page) {
  const int row = page.rows.ListIndex;
  if (row < 0) return;
  const std::string name = page.list.Part(row + 1, 0);
  const std::string menu = page.menu;
  const Answer answer = bench_.platform.dialogs.Show(
      {"Remove " + name + " from " + menu + "?",
       "Are you sure you want to remove " + name + " from the " + menu + " menu?", BoxIcon::Question,
       BoxButtons::YesNo});
  if (answer != Answer::Yes) return;
  const Trap trap{bench_.errors, &page == &games_ ? "PREFS Command12_Click" : "PREFS Command13_Click"};
  trap(page.list.Remove(row + 1));
  page.save();
  if (&page == &games_) return UpdateGamesControls();
  UpdateFavouritesControls();
}

// Colours and fonts.

void Preferences::FillColours() {
  std::vector<std::string> items;
  for (const ColourRow& row : kColourRows) items.emplace_back(row.item);
  List1.FillInOrder(std::move(items));
  ShowSwatches();
}

/// Each colour stands beside its name.
void Preferences::ShowSwatches() {
  std::vector<unsigned> colours;
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
  bench_.values.FontChanged = 1;
  bench_.values.TemplateFontChanged = 1;
}

void Preferences::Command17_Click() {
  bench_.platform.dialogs.Show({kFixedPitchTitle, kFixedPitch, BoxIcon::Information, BoxButtons::Ok});
}

// Values with limits.

/// The words say ten minutes, the value is one.
void Preferences::Text3_Change() {
  if (Text3.Empty()) {
    settings_.AutoSaveTime = kAutoSaveMinutes;
    return;
  }
  const int minutes = NumberOf(Text3);
  settings_.AutoSaveTime = std::max(minutes, 1);
  if (minutes >= 1) return;
  Text3.Text = std::string("1");
  bench_.platform.dialogs.Show({"Tarvik", kAutoSaveInvalid, BoxIcon::None, BoxButtons::Ok});
}

void Preferences::Text3_LostFocus() {
  if (NumberOf(Text3) < 1) Text3.Text = TextOf(kAutoSaveMinutes);
}

void Preferences::DLYtext_Change() {
  const int delay = NumberOf(DLYText);
  settings_.DefaultDLYvalue = delay < 1 ? kDelay : delay;
}

void Preferences::TxtUndoLevels_Change() {
  settings_.UndoMax = std::clamp(NumberOf(TxtUndoLevels), kLeastUndo, kMostUndo);
}

void Preferences::TxtUndoLevels_LostFocus() {
  TxtUndoLevels_Change();
  TxtUndoLevels.Text = TextOf(settings_.UndoMax.Get());
}

}  // namespace tarvik
