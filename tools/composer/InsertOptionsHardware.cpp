// The Composer's main page: which hardware it shows, and what a click on it does.
#include <algorithm>

#include "language/Controllers.h"
#include "text/Blanks.h"
#include "tools/composer/InsertOptions.h"

namespace tarvik {
namespace {

/// The values of ComposerImages.
enum HardwareShown { kByPreferences, kAll, kByFile };

constexpr int kPictures = 4;

/// The whole number that a text begins with, or `fallback` where it is below 1.
int AtLeastOne(const TextBox& box, int fallback) {
  const double number = NumberIn(box.Text.Get());
  return number >= 1 && number < 1 << 15 ? static_cast<int>(number) : fallback;
}

std::string FullNameOf(const tables::HardwareRow& row) {
  std::string name(row.array);
  if (row.index >= 0) name += "(" + std::to_string(row.index) + ")";
  return name;
}

/// What is written, without the blanks around it.
std::string NameOf(const Statement& statement) { return std::string(WithoutBlanks(statement.Text())); }

bool Holds(Pane& pane, const std::string& word) {
  return pane.Find(word, 0, pane.Characters().size(), find::kKeepSelection).has_value();
}

}  // namespace

// The controls.

Label& InsertOptions::LabelOf(const tables::HardwareRow& row) const { return hardware(FullNameOf(row)); }

void InsertOptions::MakeHardware() {
  for (const tables::HardwareRow& row : tables::kHardware) {
    Label& label = hardware.Load(FullNameOf(row));
    label.Caption = std::string(row.caption);
    label.ToolTipText = std::string(row.tip);
    if (row.array == "BTN") label.Click = [this, &row] { BTN_Click(row.index); };
    if (row.array == "HAT") label.Click = [this, &row] { HAT_Click(row.index); };
    if (row.array == "TRIG") label.Click = [this] { TRIG_Click(); };
    if (row.array == "ROTARY") label.Click = [this, &row] { ROTARY_Click(row.index); };
  }
}

void InsertOptions::MakeMainPage() {
  macros.SetHooks({[] {}, [this] { PopUp("mnuRHList"); },
                   [this] {
                     if (COMPaddCR == 1) bench_.insertion.InsertCarriageReturn();
                   }});
  CheckCopyTicks.ToolTipText = "Use only if you're changing the ticks in the Editor's macro list regularly";
  CheckCopyTicks.Click = [this] { COMPMacrosTickedCopy = CheckCopyTicks.Value; };
  CheckAddCR.ToolTipText = "Doesn't apply if you're using drag and drop";
  CheckAddCR.Click = [this] { COMPaddCR = CheckAddCR.Value; };
  CheckAlwaysInsert.Click = [this] { AlwaysInsert = CheckAlwaysInsert.Value; };
  HighlightStatement.ToolTipText =
      "Be aware that this routine doesn't always work - leave it unselected if it causes problems";
  MakeModifiers();
  MakeBlanksAndComments();
}

void InsertOptions::MakeModifiers() {
  for (int i = 0; i < SlashButton.Count(); ++i) {
    SlashButton(i).Caption = std::string(tables::kSlashes[i].caption);
    SlashButton(i).ToolTipText = std::string(tables::kSlashes[i].tip);
    SlashButton(i).Click = [this, i] { SlashButton_Click(i); };
  }
  SlashButton(tables::kIgnoreSlash).ToolTipText = std::string(tables::kIgnoreSlashFirstTip);
  for (int i = 0; i < DlyRptButtons.Count(); ++i) {
    const std::string_view opening = tables::kBrackets[i].opening;
    DlyRptButtons(i).Caption = std::string(opening.substr(0, opening.size() - 1));
    DlyRptButtons(i).Click = [this, i] { DlyRptButtons_Click(i); };
  }
  MakeNumberBox("DLYText", bench_.settings.DefaultDLYvalue, 60);
  MakeNumberBox("TextRPT", DefaultRPTvalue, 2);
}

/// What is typed into the box becomes the number; one of less than 1 becomes `fallback`.
TextBox& InsertOptions::MakeNumberBox(const char* name, Property<int>& number, int fallback) {
  TextBox& box = boxes.Load(name);
  box.Change = [&box, &number, fallback] { number = AtLeastOne(box, fallback); };
  return box;
}

void InsertOptions::MakeBlanksAndComments() {
  TextBox& blanks = MakeNumberBox("Text1(8)", NumberOfBlanks, 5);
  blanks.GotFocus = [this, &blanks] {
    blanks.SelectAll();
    Command7(1).MakeDefault();
  };
  RemTextBox.GotFocus = [this] { CommandREM.MakeDefault(); };
  Command10.Click = [this] { RemTextBox.Text = std::string(); };
}

// What it shows.

void InsertOptions::ShowApproriateTabs() {
  const Settings& settings = bench_.settings;
  if (settings.ComposerImages == kByPreferences) ShowForPreferences();
  if (settings.ComposerImages == kAll) ShowAllHardware();
  if (settings.ComposerImages == kByFile) ShowForFile();
  for (const int rudder : tables::kRudderLabels) {
    hardware("ROTARY(" + std::to_string(rudder) + ")").Visible =
        settings.RudderName != 0 || settings.ComposerImages == kAll;
  }
}

/// The page on show stays, where it is still there.
void InsertOptions::ShowPictures(const bool (&shown)[kPictures]) {
  for (int i = 0; i < kPictures; ++i) {
    if (shown[i]) SSTabHardware.Pages(i).Visible = true;
  }
  if (!shown[SSTabHardware.Tab]) {
    SSTabHardware.Tab = static_cast<int>(std::find(shown, shown + kPictures, true) - shown);
  }
  for (int i = 0; i < kPictures; ++i) SSTabHardware.Pages(i).Visible = shown[i];
}

void InsertOptions::ShowPorts(Sight sight) {
  for (int i = 1; i < static_cast<int>(std::size(tables::kPorts)); ++i)
    menus("mnuPort", i).Visible = sight == Sight::Shown;
}

void InsertOptions::ShowCorners(Sight sight) {
  for (int i = 0; i < static_cast<int>(std::size(tables::kHatCorners)); ++i) {
    menus("MnuHatCornerPostion", i).Visible = sight == Sight::Shown;
  }
  menus("mnuHatDivider").Visible = sight == Sight::Shown;
}

/// "/Q" is the F-22 Pro's alone, and "/A" has another name there.
void InsertOptions::ShowIgnoreSlash(int joystick) {
  const bool f22 = HasExtras(joystick);
  const tables::SlashRow& row = f22 ? tables::kFormatSlash : tables::kSlashes[tables::kForceSlash];
  SlashButton(tables::kForceSlash).Caption = std::string(row.caption);
  SlashButton(tables::kForceSlash).ToolTipText = std::string(row.tip);
  CommandButton& ignore = SlashButton(tables::kIgnoreSlash);
  ignore.Visible = f22;
  if (f22) ignore.ToolTipText = std::string(tables::kSlashes[tables::kIgnoreSlash].tip);
}

void InsertOptions::ShowForJoystick(int joystick) {
  const int picture = IsPlain(joystick) ? 1 : 0;
  if (const JoystickRow* const row = RowOf(kJoysticks, joystick)) {
    SSTabHardware.Pages(picture).Caption = std::string(row->inComposer);
  }
  ShowIgnoreSlash(joystick);
  ShowCorners(picture == 0 ? Sight::Shown : Sight::Hidden);
}

void InsertOptions::ShowForPreferences() {
  const Settings& settings = bench_.settings;
  const int throttle = settings.ThrottleName;
  const bool plain = IsPlain(settings.JoyName);
  const bool known = throttle <= kWcs;
  const bool tqs = known ? throttle == kTqs : SSTabHardware.Pages(2).Visible.Get();
  const bool wcs = known ? throttle > kTqs : SSTabHardware.Pages(3).Visible.Get();
  ShowPictures({!plain, plain, tqs, wcs});
  if (known) ShowPorts(wcs ? Sight::Hidden : Sight::Shown);
  if (known && wcs) LabelWCS();
  ShowForJoystick(settings.JoyName);
  hardware("ROTARY(7)").Visible = HasExtras(settings.JoyName);
}

void InsertOptions::ShowAllHardware() {
  constexpr bool kAllPictures[kPictures] = {true, true, true, true};
  ShowPictures(kAllPictures);
  LabelWCS();
  SSTabHardware.Pages(0).Caption = "F22 and F16";
  ShowIgnoreSlash(kFlcs);  // as beside every joystick but the F-22 Pro
  ShowPorts(Sight::Shown);
  ShowCorners(Sight::Shown);
}

void InsertOptions::ShowForFile() {
  const std::string ending = EndingOfFile();
  const int joystick = JoystickOf(ending);
  Pane& file = bench_.documents.joystick.text;
  const bool tqs = Holds(file, "TQS");
  const bool wcs = !tqs && Holds(file, "WCS");
  const bool plain = IsPlain(joystick);
  ShowPictures({!plain, plain, tqs, wcs});
  ShowForJoystick(joystick);
  ShowPorts(wcs ? Sight::Hidden : Sight::Shown);
  if (wcs) LabelWCS();
}

std::string InsertOptions::EndingOfFile() const {
  return std::string(Ending(bench_.documents.tabs.Tabs(1).Caption.Get()));
}

/// The throttle goes by the language of the joystick that it is programmed with.
void InsertOptions::LabelWCS() {
  const bool plain = IsPlain(JoystickOf(EndingOfFile())) || IsPlain(bench_.settings.JoyName);
  for (const tables::WcsRow& row : tables::kWcsButtons) {
    Label& button = hardware("BTN(" + std::to_string(row.button) + ")");
    button.Caption = std::string(plain ? row.plain : row.numbered);
    button.Visible = !button.Caption.Get().empty();
  }
}

// Statements.

StatementStyle InsertOptions::Style() const {
  const Settings& settings = bench_.settings;
  return {settings.InsertWithColour != 0, settings.CompTabsAddCr == 1};
}

/// A search that succeeds leaves the latch as it is, except for a port.
void InsertOptions::FindOrWrite(const Statement& statement) {
  InsertAfterSearch = writer_.FindOrWrite(statement, AlwaysInsert == 1) ? 1 : 0;
  Say(NameOf(statement) +
      (InsertAfterSearch == 1 ? " is in now, fresh from me" : " was there already - here it is"));
  if (InsertAfterSearch == 1 ? statement.releasesPort : statement.pastHit > 0) ReleasePort();
}

void InsertOptions::BTN_Click(int index) {
  const std::string caption = hardware("BTN(" + std::to_string(index) + ")").Caption;
  FindOrWrite(ButtonStatement(index, caption, PortArmed(), Style()));
}

/// The corner entries of a hat that has none keep what they had; they are hidden then.
void InsertOptions::HAT_Click(int index) {
  const HatTokens tokens = TokensOf(index);
  const auto name = [this](const char* array, const std::vector<std::string>& captions) {
    for (std::size_t i = 0; i < captions.size(); ++i) menus(array, static_cast<int>(i)).Caption = captions[i];
  };
  name("MnuHatPostion", tokens.positions);
  name("MnuHatCornerPostion", tokens.corners);
  PopUp("mnuHatPos");
}

void InsertOptions::MnuHatPostion_Click(int index) {
  FindOrWrite(ControlStatement(menus("MnuHatPostion", index).Caption.Get(), PortArmed(), Style()));
}

void InsertOptions::MnuHatCornerPostion_Click(int index) {
  FindOrWrite(ControlStatement(menus("MnuHatCornerPostion", index).Caption.Get(), PortArmed(), Style()));
}

void InsertOptions::mnuTrig_Click(int index) {
  FindOrWrite(ControlStatement(menus("mnuTrig", index).Caption.Get(), PortArmed(), Style()));
}

void InsertOptions::mnuPort_Click(int index) {
  FindOrWrite(PortStatement(menus("mnuPort", index).Caption.Get(), Style()));
}

void InsertOptions::ROTARY_Click(int index) {
  const tables::RotaryRow& row = tables::kRotaries[index];
  if (index == tables::kPortLatch) {
    if (PortArmed()) return ReleasePort();
    ArmPort();
    return PopUp("mnuPortAll");
  }
  if (index == tables::kSwapTriggers) return FindOrWrite(SwapTriggersStatement(Style()));
  const bool found = AlwaysInsert != 1 && writer_.FindButton(std::string(row.search));
  InsertAfterSearch = found ? 0 : 1;
  const std::string name(row.search);
  Say(found ? name + " was there already - here it is" : "No " + name + " yet, so let's make one");
  if (found) return;
  SSTab1.Tab = row.tab;
  if (row.axis >= 0) ToggleButton1_Click(row.axis);
}

void InsertOptions::SlashButton_Click(int index) {
  writer_.Write(SlashStatement(SlashButton(index).Caption.Get(), Style()));
}

void InsertOptions::DlyRptButtons_Click(int index) {
  const tables::BracketRow& row = tables::kBrackets[index];
  writer_.Write(BracketStatement(row, boxes(row.box).Text, Style()));
}

void InsertOptions::Command7_Click(int index) {
  ColouredInsertion& insertion = bench_.insertion;
  if (index == 0) return insertion.InsertCarriageReturn();
  insertion.BeginColInsert();
  InsertComposerBlanks();
  insertion.EndColInsert();
}

void InsertOptions::InsertComposerBlanks() {
  NumberOfBlanks = AtLeastOne(boxes("Text1(8)"), 5);
  bench_.insertion.InsertBlackBlanks(static_cast<std::size_t>(NumberOfBlanks.Get()));
}

}  // namespace tarvik
