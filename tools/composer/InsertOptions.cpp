#include "tools/composer/InsertOptions.h"

#include "text/CodePage.h"
#include "workbench/HelpTopics.h"

namespace tarvik {
namespace {

using M = InsertOptions;

constexpr MenuRow<InsertOptions> kMenus[] = {
    {0, "mnuRHList", "List"},
    {1, "mnuRHListInsert", "&Insert into Joystick file", "", &M::mnuRHListInsert_Click},
    {1, "mnuRHListDivider1", "-"},
    {1, "mnuFindInJoyFile", "&Find in joystick file", "", &M::mnuFindInJoyFile_Click},
    {1, "mnuRHListDivider2", "-"},
    {1, "mnuRHListEdit", "&Edit", "", &M::mnuRHListEdit_Click},

    {0, "mnuHatPos", "Hat"},
    MenuArray(1, "MnuHatPostion", tables::kHatPositions, &M::MnuHatPostion_Click),
    {1, "mnuHatDivider", "-"},
    MenuArray(1, "MnuHatCornerPostion", tables::kHatCornersAtFirst, &M::MnuHatCornerPostion_Click),

    {0, "mnuTrigger", "Trigger"},
    MenuArray(1, "mnuTrig", tables::kTriggers, &M::mnuTrig_Click),

    {0, "mnuPortAll", "Port"},
    MenuArray(1, "mnuPort", tables::kPorts, &M::mnuPort_Click),

    {0, "mnuTemplates", "&Templates"},
    {1, "mnuInsertInto", "&Insert into"},
    {2, "mnuJoystick", "&Joystick file", "", &M::mnuJoystick_Click},
    {2, "mnuMacrofile", "&Macro file", "", &M::mnuMacrofile_Click},
    {1, "divider", "-"},
    {1, "mnuQuickie", "Just a &quickie ...", "", &M::mnuQuickie_Click},
};

constexpr Twips kPlace{10};  // for a window that would be out of sight

constexpr const char* kTipTitle = "Keep the Composer in memory for increased speed";
constexpr const char* kTip =
    "If you're using the Composer a lot, but it keeps getting in the way when you're using the Editor, then "
    "don't close down the Composer. Rather, minimise it or press the OK button. It then waits in memory and "
    "is back at once, with everything you typed into it, when you press F2. Closing it makes it forget your "
    "logic lines, and it has to be set up again the next time.";

Twips WithinScreen(Twips place, int extent) {
  return place < Twips{0} || InTwips(Pixels{extent}) < place ? kPlace : place;
}

}  // namespace

InsertOptions::InsertOptions(Workbench& bench, Shell& shell)
    : ToolForm("InsertOptions", bench, shell),
      macros(*this, bench.macros),
      TemplatesPreview(*this, "TemplatesPreview", bench.platform.files),
      menus(*this, kMenus),
      writer_(bench),
      logicJournal_(
          bench.journals,
          [this] {
            const Document& joystick = bench_.documents.joystick;
            return JournalHead{TextKind::Logic, joystick.Path,
                               "Logic lines for " + joystick.Name.Get().Text()};
          },
          [this] { return RichText(LogicLinesOnShow()); }) {
  Caption = "  Composer - to ease your programming somewhat !!!";
  for (const char* const menu : {"mnuRHList", "mnuHatPos", "mnuTrigger", "mnuPortAll", "mnuTemplates"}) {
    menus(menu).Visible = false;  // these menus only pop up
  }
  connections_.push_back(bench.documents.joystick.text.Edited.Connect([this](const PaneEdit& edit) {
    if (!edit.OnlyColours()) AssignedChanged();
  }));
  MakeHardware();
  MakeMainPage();
  MakeStatementPages();
  MakeUsePage();
  MakeTemplatesPage();
  MakeLogicPage();
  MakeFrame();
}

void InsertOptions::MakeFrame() {
  constexpr const char* kTips[] = {"Show Pimlet - the Keyboard and RAW code generator",
                                   "Edit your preferences",
                                   "Locate insertion point in the currently selected file"};
  constexpr const char* kEntries[] = {"mnuInsertRAW", "mnuPreferencesEdit", "mnuViewHighlightLine"};
  for (int i = 0; i < Command5.Count(); ++i) {
    Command5(i).ToolTipText = kTips[i];
    Command5(i).Enabled = shell_.Command(kEntries[i]).Enabled;
    Command5(i).Click = [this, entry = kEntries[i], i] {
      shell_.Command(entry).Click();
      Command5_Click(i);
    };
  }
  Check1.ToolTipText = "Keep the Composer above the Editor";
  Check1.Click = [this] { Check1_Click(); };
  Check2FocusThang.ToolTipText = "Shows insertion point when mouse isn't on Composer";
  Check2FocusThang.Click = [this] { COMPreturnFocus = Check2FocusThang.Value; };
  Command6.ToolTipText = "Hides the Composer and keeps it in memory for faster recall";
  Command6.Cancel = true;
  SSTab1.Click = [this] { SSTab1_Click(); };
  Load = [this] { Form_Load(); };
  Activate = [this] { Form_Activate(); };
  Deactivate = [this] { Form_Deactivate(); };
  KeyDown = [this](Key& key) { Form_KeyDown(key); };
  Unload = [this] { Form_Unload(); };
}

/// Nobody asks about logic lines that are in no file.
void InsertOptions::Form_Unload() {
  SaveSpaces();
  logicJournal_.Leave();
}

void InsertOptions::ShowComposer() {
  Show();
  SSTab1.Tab = kComposer;
}

void InsertOptions::ShowTemplates() {
  Show();
  SSTab1.Tab = kComposer;
  SSTab1.Tab = kTemplates;
}

// Life of the form.

void InsertOptions::Form_Load() {
  const Settings& settings = bench_.settings;
  PositionComposer();
  FillMiceListBoxes();
  boxes("Text1(4)").Text = MacroNameForMDEF();
  TemplatePath = bench_.platform.folder + "\\Templates\\";
  FillTemplates();
  FillLogicLists();
  SSTab7.Tab = 0;
  SSTabFlags.Tab = 0;
  for (int i = 0; i < CheckMultiAddCR.Count(); ++i) CheckMultiAddCR(i).Value = settings.CompTabsAddCr.Get();
  Check1.Value = settings.CompOnTop.Get();
  GetSpaces();
  HighlightStatement.Value = settings.HighlightDefinitions.Get();
  Topmost = settings.CompOnTop == 1;
  ShowApproriateTabs();
  CopyMacroList();
}

void InsertOptions::Form_Activate() {
  ShowApproriateTabs();
  if (bench_.values.MacroListChanged == 1 || COMPMacrosTickedCopy == 1) CopyMacroList();
  const std::string delay = TextOf(bench_.settings.DefaultDLYvalue.Get());
  boxes("DLYText").Text = delay;
  TxtFlag(4).Text = delay;
}

void InsertOptions::Form_Deactivate() {
  if (COMPreturnFocus != 0) bench_.documents.FocusActiveText();
}

/// Whoever hides the Composer by its own button goes back to the file on top, whatever had the focus there
/// before.
void InsertOptions::Command6_Click() {
  Visible = false;
  Form_Deactivate();
}

void InsertOptions::Form_KeyDown(Key& key) {
  const bool ctrlAmongOthers = (key.shift & shift::kCtrl) != 0 && key.shift != shift::kCtrl;
  if (!ctrlAmongOthers) shell_.ForwardKey(key);
}

void InsertOptions::PositionComposer() {
  const Profile profile = bench_.profile.Read();
  const auto place = [&profile](const char* key, int extent) {
    const int stored = profile.GetInt(section::kMiscellaneous, key, static_cast<int>(kPlace.count));
    return WithinScreen({static_cast<float>(stored)}, extent);
  };
  const ScreenSize& screen = bench_.platform.screen;
  MoveTo(place("ComposerLeft", screen.width), place("ComposerTop", screen.height));
}

void InsertOptions::GetSpaces() {
  const Profile profile = bench_.profile.Read();
  const auto text = [&profile](const char* key, int fallback) {
    return TextOf(To16Bits(profile.GetInt(section::kMiscellaneous, key, fallback)));
  };
  const auto tick = [&profile](CheckBox& box, Property<int>& member, int fallback) {
    box.Value = profile.GetInt(section::kMiscellaneous, member.Name(), fallback) == 0 ? 0 : 1;
    member = box.Value;
  };
  boxes("Text1(8)").Text = text("NumberOfBlanks", 5);
  boxes("TextRPT").Text = text("DefaultRPTvalue", 2);
  TxtFlag(5).Text = boxes("TextRPT").Text;
  boxes("DLYText").Text = text("DefaultDLYvalue", 60);
  tick(CheckAlwaysInsert, AlwaysInsert, 0);
  tick(CheckAddCR, COMPaddCR, 0);
  tick(Check2FocusThang, COMPreturnFocus, 1);
  tick(CheckCopyTicks, COMPMacrosTickedCopy, 0);
}

void InsertOptions::SaveSpaces() {
  Settings& settings = bench_.settings;
  std::vector<ProfileEntry> entries;
  for (const Property<int>* member :
       {&NumberOfBlanks, &DefaultRPTvalue, &settings.DefaultDLYvalue, &AlwaysInsert, &COMPaddCR,
        &settings.CompTabsAddCr, &COMPreturnFocus, &COMPMacrosTickedCopy}) {
    entries.push_back({section::kMiscellaneous, std::string(member->Name()), member->ToText()});
  }
  if (WindowState != window::kMinimised) {
    const ScreenSize& screen = bench_.platform.screen;
    const auto place = [](Twips at, int extent) {
      return TextOf(static_cast<int>(WithinScreen(at, extent).count));
    };
    entries.push_back({section::kMiscellaneous, "ComposerTop", place(Top, screen.height)});
    entries.push_back({section::kMiscellaneous, "ComposerLeft", place(Left, screen.width)});
  }
  const Trap trap{bench_.errors, "COMPOSER SaveSpaces"};
  trap(bench_.profile.WriteAll(entries));
}

/// Each page that builds statements starts on its first page, ready for typing.
void InsertOptions::SSTab1_Click() {
  for (const tables::StatementTabRow& row : tables::kStatementTabs) {
    if (row.tab != SSTab1.Tab) continue;
    StripOf(row).Tab = 0;
    PreparePage(row);
  }
  if (SSTab1.Tab == kUse) {
    boxes("Text1(4)").Text = MacroNameForMDEF();
    boxes("Text1(3)").SetFocus();
  }
  if (SSTab1.Tab == kTemplates && Templates.ListCount() > 0) MakeTemplateCurrent(0);
  if (SSTab1.Tab == kLogic) {
    WhichLogicText();
    RichTexFlag(CurrentLogicLine).SetFocus();
  }
}

std::string InsertOptions::MacroNameForMDEF() const {
  constexpr std::size_t kExtension = 4;
  const std::string& name = bench_.documents.macro.Name.Get().Text();
  return name.substr(0, name.size() - std::min(name.size(), kExtension));
}

// Below the pages.

/// Runs behind the editor's entry. The user may have chosen other hardware in the preferences.
void InsertOptions::Command5_Click(int index) {
  constexpr int kPreferences = 1;
  if (index != kPreferences) return;
  bench_.TakeChosenFont();
  LabelWCS();
}

void InsertOptions::Command14_Click() {
  bench_.platform.dialogs.Show({kTipTitle, kTip, BoxIcon::Information});
}

void InsertOptions::CommandHelp_Click() {
  bench_.platform.help.ShowContext(bench_.platform.folder + "\\Tarvik.hlp",
                                   topic::kComposerPages[SSTab1.Tab]);
}

void InsertOptions::Check1_Click() {
  bench_.settings.CompOnTop = Check1.Value;
  bench_.settings.SaveOptions();
  Topmost = Check1.Value == 1;
}

// The copy of the editor's macro lists.

void InsertOptions::CopyMacroList() {
  macros.CopyMacroList(bench_.macros.panel);
  for (int item = 0; item < Combo1.ListCount(); ++item) {
    if (Combo1.List()[static_cast<std::size_t>(item)] != "All") continue;
    bench_.values.SelectedCategoryList = item;
    Combo1.ListIndex = item;
    List1(0).ToFront();
  }
  bench_.values.MacroListChanged = 0;
}

void InsertOptions::mnuFindInJoyFile_Click() {
  bench_.documents.joystick.text.SetFocus();
  macros.FindMacriInJfile();
}

}  // namespace tarvik
