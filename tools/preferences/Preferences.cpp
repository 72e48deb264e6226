#include "tools/preferences/Preferences.h"

#include <algorithm>
#include <utility>

#include "language/Controllers.h"
#include "text/CodePage.h"
#include "tools/preferences/CommandLines.h"
#include "tools/preferences/DrivesForm.h"
#include "tools/preferences/StickForm.h"
#include "workbench/FileTypes.h"
#include "workbench/HelpTopics.h"

namespace tarvik {
namespace {

constexpr const char* kAutoSaveInvalid =
    "The value you entered isn't valid. I'm changing it to 10 minutes to prevent an error ocurring.";

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

}  // namespace

Preferences::Preferences(Workbench& bench, Shell& shell)
    : ToolForm("Preferences", bench, shell),
      ExampleJoystickText(*this, "ExampleJoystickText", bench.platform.files),
      settings_(bench.settings),
      favourites_(bench, {.list = bench.lists.Favourites,
                          .rows = List2,
                          .hint = NoFavourites,
                          .save = [this] { bench_.lists.SaveFavourites(); },
                          .parts = {&Text7, &Text8, &Text9},
                          .ticks = {},
                          .remove = Command13,
                          .others = {&Command9, &Command10, &Command14},
                          .menu = "favourites",
                          .removal = "PREFS Command13_Click"}),
      games_(bench, {.list = bench.lists.Games,
                     .rows = List3,
                     .hint = NoGames,
                     .save = [this] { bench_.lists.SaveGames(); },
                     .parts = {&Text12, &Text11, &Text4, &Text13},
                     .ticks = {&Check5, &CheckFly},
                     .remove = Command12,
                     .others = {&Command16, &Command15, &Command4},
                     .menu = "games",
                     .removal = "PREFS Command12_Click"}) {
  Caption = "Preferences";
  NameControls();
  AttachHandlers();
  AttachMiscellaneous();
  AttachApps();
  AttachLists();
}

void Preferences::NameControls() {
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
  CommandStick.ToolTipText = "Which control each button and axis of your stick stands for";
  DLYText.ToolTipText = "Default delay value for Editor's DLY button";
  Command3.ToolTipText = "Saves the Preferences";
  NoFavourites.Caption =
      "There are none yet. Open two files, then choose Favourites > Add current files in the menu.";
  NoGames.Caption = "There are none yet. Choose Games > Add game in the menu.";
  for (Label* const hint : {&FontInUse, &NoFavourites, &NoGames}) hint->BackColor = ToggleLabel::kOff;
}

void Preferences::AttachHandlers() {
  Command3.MakeDefault();
  Command3.Cancel = true;  // Escape stores as well
  SSTab1.Click = [this] { SSTab1_Click(); };
  Text1.Change = [this] { settings_.B50LoadPath = Text1.Text.Get(); };
  Text2.Change = [this] { Text2_Change(); };
  Browse(Command1, Text1, "Locate Thrustmaster file", {filetypes::kExecutables, filetypes::kAll},
         &settings_.B50LoadPath);
  Command2.Click = [this] {
    const auto folder = Ignore(
        bench_.platform.dialogs.AskForFolder("Select your Thrustmaster programs directory", Text2.Text));
    if (folder) Text2.Text = WithBackslash(LowerCase(*folder));
  };
  Browse(Command8, Text10, "Locate Thrustmaster file",
         {filetypes::kBatchFiles, filetypes::kExecutables, filetypes::kAll}, &settings_.CandCCPath);
  Browse(Command5, Text5, "Locate image file", {"Picture files|*.bmp;*.jpg;*.gif;*.wmf", filetypes::kAll},
         &settings_.ImageFilePath);
  Browse(Command7, Text6, "Locate text file", {"Text files|*.txt;*.rtf;*.ini;*.bat", filetypes::kAll},
         &settings_.TextFilePath);
  CommandStick.Click = [this] { shell_.ShowModal(shell_.Tool<StickForm>()); };
  CommandDrives.Click = [this] { shell_.ShowModal(shell_.Tool<DrivesForm>()); };
  ComboJoystick.Click = [this] { ComboJoystick_Click(); };
  ComboThrottle.Click = [this] { settings_.ThrottleName = ComboThrottle.ListIndex; };
  ComboRudders.Click = [this] { settings_.RudderName = ComboRudders.ListIndex; };
  List1.MouseUp = [this](const Mouse& mouse) {
    if (mouse.button == button::kLeft) List1_Click();
  };
  List1.DblClick = [this] { List1_Click(); };  // the Enter key
  CheckBox1.Click = [this] { settings_.ApplyColoursOnFileOpen = CheckBox1.Value; };
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

void Preferences::SSTab1_Click() {
  bench_.values.PreferencesTab = SSTab1.Tab.Get();
  if (SSTab1.Tab == page::kFileLocations) Text1.SetFocus();
  if (SSTab1.Tab == page::kColours) {
    CheckBox1.Value = settings_.ApplyColoursOnFileOpen == 0 ? 0 : 1;
    FillColours();
    ShowExample();
    ShowFont();
  }
  if (SSTab1.Tab == page::kFavourites) {
    bench_.lists.Favourites.Count() > 0 ? UpdateFavouritesControls() : DisableFavouritesControls();
  }
  if (SSTab1.Tab == page::kGames) {
    bench_.lists.Games.Count() > 0 ? UpdateGamesControls() : DisableGamesControls();
  }
}

void Preferences::Command6_Click() { ShowHelp(bench_.platform, topic::kPreferencesPages[SSTab1.Tab]); }

// File locations.

void Preferences::Browse(CommandButton& button, TextBox& box, const char* say,
                         std::initializer_list<std::string_view> types, Property<std::string>* setting) {
  button.Click = [this, &box, say, filter = filetypes::InOrder(types), setting] {
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
    Browse(CustomAppPathBrowse(row), path, "Locate program",
           {filetypes::kExecutables, filetypes::kBatchFiles, "Help files (*.hlp)|*.hlp",
            "Control panel applets (*.cpl)|*.cpl", filetypes::kAll});
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
  PreviousFiles& lists = bench_.lists;
  const auto own = [](std::string_view kind, std::string_view ending) {
    return filetypes::InOrder({filetypes::OfEnding(kind, ending), filetypes::kAll});
  };
  Command9.Click = [this, own] {
    favourites_.Choose(1, own("Joystick file", settings_.JoystickExtension.Get()));
  };
  Command10.Click = [this, own] { favourites_.Choose(2, own("Macro file", settings_.MacroExtension.Get())); };
  Command16.Click = [this] {
    using namespace filetypes;
    games_.Choose(1, InOrder({kExecutables, kBatchFiles, kAll}));
  };
  Command15.Click = [this] { games_.Choose(2, ""); };
  Command4.Click = [this, own] { games_.Choose(3, own("Joystick file", settings_.JoystickExtension.Get())); };
  Text7.LostFocus = [this] { Text7_LostFocus(); };
  Text12.LostFocus = [&lists] { lists.SaveGames(); };
  Text11.LostFocus = [&lists] { lists.SaveGames(); };
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
}

/// The Enter key leaves the window without leaving the box.
void Preferences::Text7_LostFocus() {
  if (Text7.Empty() && List2.ListIndex >= 0) Text7.Text = std::string("Name?");
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
  bench_.platform.dialogs.Show({"Tarvik", kAutoSaveInvalid});
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
