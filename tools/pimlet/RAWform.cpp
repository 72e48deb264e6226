#include "tools/pimlet/RAWform.h"

#include <cmath>

#include "workbench/HelpTopics.h"

namespace tarvik {
namespace {

// The size that the window comes up with, in twips.
constexpr Twips kWidth{12855};
constexpr Twips kHeight{8850};

constexpr int kFallbackPlace = 200;

constexpr int kMinus = 47;
constexpr int kColourButton = 7;
enum AddKind { kNothing, kText, kRaw };

constexpr const char* kAddTip = "Paste into the combined selection";
constexpr const char* kCopyTip = "Copy to the clipboard";

const MessageBox kTip = {
    "Keep the Composer in memory for increased speed",
    "If you're using Pimlet a lot, but he keeps getting in the way when you're using the Editor, then don't "
    "close down Pimlet. Rather, minimise him or press the OK button. This way, Pimlet is kept in memory and "
    "therefore will appear much quicker when you want him to. Closing Pimlet removes him from memory and "
    "therefore makes him much slower to view as he has to be loaded up again. Don't forget that you can use "
    "the F4 key to view Pimlet.",
    BoxIcon::Information};

const MessageBox kLayoutWarning = {
    "Applies to symbols generated with the SHIFT key pressed",
    "If your keyboard layout is different to that above, then be careful! Let's say that if you press the \" "
    "key the undercarriage will be raised, and if you press the @ symbol, you eject. So in your macro file, "
    "you have: UnderCarriageUp = \" and Eject = @. You then assign these to Joystick buttons S1 and S2 "
    "respectively. Now on a British keyboard, the \" symbol is above the number 2, and the @ symbol is above "
    "the symbol ' . So what happens ... you take off, you press S1 to raise the undercarriage, but instead, "
    "you find yourself ejecting. Why? Well, using this keyboard, you can see that the Thrustmaster compiler "
    "will convert \" into the key sequence SHF ' which on a British keyboard produces the @ symbol. So the "
    "moral of this tale is .... if for example you want to get a \" symbol generated, then find it on your "
    "keyboard, and use SHF key where key is the symbol below the \" symbol. On a British keyboard then, SHF "
    "2 will give me the desired \" symbol.",
    BoxIcon::Information};

constexpr std::string_view kDelays[] = {"20", "40", "60", "80", "100", "150", "200", "300", "400", "500"};

constexpr MenuRow<RAWform> kMenus[] = {
    {0, "mnuFile", "&File"},
    {1, "mnuFileClose", "&Close Pimlet", "", &RAWform::mnuFileClose_Click},
    {0, "mnuDelay", "Delay"},
    MenuArray(1, "mnuDelayValue", kDelays, &RAWform::mnuDelayValue_Click),
    {0, "mnuColourPaste", "Colour paste"},
    {1, "mnuPasteJ", "Paste into joystick file", "", &RAWform::mnuPasteJ_Click},
    {1, "mnuPasteM", "Paste into macro file", "", &RAWform::mnuPasteM_Click},
    {0, "mnuHelp", "&Help"},
    {1, "mnuRawOverview", "&Overview", "", &RAWform::mnuRawOverview_Click},
    {1, "mnuHelpDivider", "-"},
    {1, "mnuHelpRawcodes", "What's a &raw code?", "", &RAWform::mnuHelpRawcodes_Click},
};

std::string Raw(const std::string& codes) { return "RAW (" + codes + ")"; }

/// The place, moved to where the window can be seen on the screen.
int OnScreen(int place, int pixels) {
  return place < 0 || static_cast<float>(place) > InTwips(Pixels{pixels}).count ? kFallbackPlace : place;
}

}  // namespace

RAWform::RAWform(Workbench& bench, Shell& shell)
    : ToolForm("RAWform", bench, shell),
      TotalCombinedText(*this, "TotalCombinedText", bench.platform.files),
      menus(*this, kMenus) {
  Caption = "Pimlet - the Thrustmaster key syntax and RAW code generator";
  Width = kWidth;
  Height = kHeight;
  MakeKeys();
  SetUpTexts();
  AttachHandlers();
}

void RAWform::MakeKeys() {
  for (const KeyRow& row : kKeys) {
    CommandButton& key = Command1.Load(row.key);
    key.Caption = row.caption;
    key.Move(static_cast<float>(row.place.left), static_cast<float>(row.place.top),
             static_cast<float>(row.place.width), static_cast<float>(row.place.height));
    key.Click = [this, number = row.key] { Command1_Click(number); };
  }
}

void RAWform::SetUpTexts() {
  for (CommandButton* const add : {&Command5, &Command10(0), &Command10(1), &Command10(2)}) {
    add->ToolTipText = kAddTip;
  }
  for (int i = 0; i < Command9.Count(); ++i) Command9(i).ToolTipText = kCopyTip;
  Command4.ToolTipText = "Clear the combined selection contents";
  TotalCombinedText.ToolTipText =
      "Use the Combined text !! It'll make your life much easier! Click in it to insert text into files";
  CheckUseSHFUK.ToolTipText = "Especially important for non-US keyboard layout";
  Command14(1).ToolTipText = "Locate insertion point in the currently selected file";
  Command2.ToolTipText = "Hides Pimlet and keeps him in memory for faster recall";
  Command2.MakeDefault();
  Command2.Cancel = true;
}

void RAWform::AttachHandlers() {
  ToggleButton1.Click = [this] { ToggleButton1_Click(); };
  ToggleButton2.Click = [this] { ToggleButton2_Click(); };
  ToggleButton3.Click = [this] { ToggleButton3_Click(); };
  ToggleButton4.Click = [this] { ToggleButton4_Click(); };
  CheckUseSHFUK.Click = [this] { CheckUseSHFUK_Click(); };
  CheckAddCRPimlet.Click = [this] { CheckAddCRPimlet_Click(); };
  Check1.Click = [this] { Check1_Click(); };
  Command4.Click = [this] { Command4_Click(); };
  Command5.Click = [this] { Command5_Click(); };
  Command9.OnClick(*this, &RAWform::Command9_Click);
  Command10.OnClick(*this, &RAWform::Command10_Click);
  TotalCombinedText.Change = [this] { TotalCombinedText_Change(); };
  TotalCombinedText.KeyDown = [this](Key& key) { TotalCombinedText_KeyDown(key); };
  Form::Load = [this] { Form_Load(); };
  Form::Unload = [this] { Form_Unload(); };
  Form::Activate = [this] { Raise(); };
  Form::KeyDown = [this](Key& key) { shell_.ForwardKey(key); };
}

// Life of the form.

void RAWform::Form_Load() {
  PositionPimlet();
  FormatCombinedText();
  TotalCombinedText_Change();
  SelectedKey = -1;
  LastAddKind = kNothing;
  menus("mnuDelay").Visible = false;
  menus("mnuColourPaste").Visible = false;
  Check1.Value = bench_.settings.PimletOnTop == 1 ? 1 : 0;
  Topmost = Check1.Value == 1;
}

void RAWform::Check1_Click() {
  Topmost = Check1.Value == 1;
  bench_.settings.PimletOnTop = Check1.Value;
  bench_.settings.SaveOptions();
}

void RAWform::PositionPimlet() {
  const ScreenSize& screen = bench_.platform.screen;
  const Profile stored = bench_.profile.Read();
  const auto read = [&stored](const char* key, Twips size, int end) {
    const int centred = static_cast<int>((InTwips(Pixels{end}) - size).count / 2);
    return Twips{static_cast<float>(OnScreen(stored.GetInt(section::kMiscellaneous, key, centred), end))};
  };
  MoveTo(read("PimletLeft", Width, screen.width), read("PimletTop", Height, screen.height));
  const int addCR = To16Bits(stored.GetInt(section::kMiscellaneous, "AddPimletCR", 0));
  CheckAddCRPimlet.Value = addCR == 1 ? 1 : 0;
  AddCR = addCR;
}

void RAWform::SavePosition() {
  if (WindowState == window::kMinimised) return;
  const ScreenSize& screen = bench_.platform.screen;
  const auto place = [](Twips at, int end) {
    return TextOf(OnScreen(static_cast<int>(std::lround(at.count)), end));
  };
  Ignore(bench_.profile.WriteAll(std::vector<ProfileEntry>{
      {section::kMiscellaneous, "PimletTop", place(Top, screen.height)},
      {section::kMiscellaneous, "PimletLeft", place(Left, screen.width)},
      {section::kMiscellaneous, "AddPimletCR", TextOf(AddCR.Get())},
  }));
}

void RAWform::FormatCombinedText() {
  TotalCombinedText.BackColor = bench_.settings.BackgroundColour.Get();
  ApplyFont(TotalCombinedText, bench_.settings);
}

// Keys.

void RAWform::Command1_Click(int key) {
  SelectedKey = key;
  ShowKeystrings();
}

void RAWform::CheckUseSHFUK_Click() {
  if (SelectedKey >= 0) ShowKeystrings();
}

void RAWform::ShowKeystrings() {
  const Keystrings keys = GetKeystrings();
  SyntaxText.Text = keys.KeyText;
  RMakeText.Text = keys.MakeCode;
  RBreakText.Text = keys.BreakCode;
  RCombinedText.Text = keys.CombinedCode;
}

Keystrings RAWform::GetKeystrings() const {
  const KeyRow* const row = FindKey(SelectedKey);
  if (!row) return {};
  const HeldModifiers held = {ToggleButton1.On(), ToggleButton2.On(), ToggleButton3.On(), ToggleButton4.On()};
  return tarvik::GetKeystrings(*row, Command1(row->key).Caption.Get(), held,
                               {bench_.settings.JoyName, CheckUseSHFUK.Value == 1});
}

void RAWform::Toggle(ToggleLabel& label, std::initializer_list<int> keys) {
  label.Turn(!label.On());
  for (const int key : keys) Command1(key).Enabled = !label.On();
}

void RAWform::ToggleButton1_Click() {
  Toggle(ToggleButton1, {58, 59});
  for (const KeyRow& row : kKeys) {
    if (!*row.shiftCaption) continue;
    const char* const without = row.key == kMinus ? "." : row.caption;  // Shift leaves its point on this key
    Command1(row.key).Caption = ToggleButton1.On() ? row.shiftCaption : without;
  }
}

// The line.

void RAWform::SetLine(const std::string& line, int kind) {
  TotalCombinedText.Text = line;
  TotalCombinedText.SelStart = line.size();
  LastAddKind = kind;
}

void RAWform::AddText(const std::string& text) { SetLine(Line() + " " + text, kText); }

TextBox& RAWform::CodeBox(int index) {
  TextBox* const boxes[] = {&RMakeText, &RBreakText, &RCombinedText};
  return Require(index >= 0 && index < 3 ? boxes[index] : nullptr, *this, "CodeBox", index);
}

void RAWform::Command3_Click(int index) {
  if (index == kColourButton) return ApplyColour();
  AddText(Command3(index).Caption);
}

void RAWform::Command5_Click() {
  if (!SyntaxText.Empty()) AddText(SyntaxText.Text);
}

/// Codes that follow codes join their statement.
void RAWform::Command10_Click(int index) {
  const std::string codes = CodeBox(index).Text;
  if (codes.empty()) return;
  std::string line = Line();
  if (line.empty()) {
    line = Raw(codes);
  } else if (line.back() == ')' && LastAddKind == kRaw) {
    line.back() = ' ';
    line += codes + ")";
  } else {
    line += " " + Raw(codes);
  }
  SetLine(line, kRaw);
}

void RAWform::mnuDelayValue_Click(int index) {
  AddText("DLY(" + menus("mnuDelayValue", index).Caption.Get() + ")");
}

void RAWform::Command7_Click() {
  shell_.Show(ToolId::Remark);
  const std::string& remark = bench_.values.REMText;
  if (!remark.empty()) AddText("Rem " + remark);
}

void RAWform::Command4_Click() {
  SetLine("", kNothing);
  FormatCombinedText();
}

void RAWform::TotalCombinedText_Change() {
  bench_.KeysOffered(Line());
  for (const int i : {0, 1}) CommandINS(i).Enabled = !TotalCombinedText.Characters().empty();
}

/// The line has one line only, in a box that would otherwise take these keys for itself.
void RAWform::TotalCombinedText_KeyDown(Key& key) {
  if (key.code == key::kEscape) Command2_Click();
  if (key.code == key::kEnter || key.code == key::kEscape) key = {};
}

void RAWform::Command9_Click(int index) {
  constexpr int kLine = 3;
  constexpr int kSyntax = 4;
  const std::string text = index == kLine     ? Line()
                           : index == kSyntax ? SyntaxText.Text.Get()
                                              : Raw(CodeBox(index).Text);
  bench_.platform.clipboard.Put(text, "");
  bench_.edit.Copied();
}

void RAWform::CommandINS_Click(int index) {
  bench_.documents.tabs.Select(index + 1);
  bench_.values.InsertionText = Line() + " ";
  ColouredInsertion& insertion = bench_.insertion;
  insertion.BeginColInsert();
  insertion.InsertBlackText();
  if (AddCR == 1) insertion.InsertCarriageReturn();
  insertion.EndColInsert();
}

void RAWform::PasteInto(Document& document) {
  const std::string line = Line();
  if (line.empty()) return;
  const std::size_t place = document.text.SelStart;
  document.text.SelText = line;
  document.Caret = place + line.size();
  document.text.SelStart = document.Caret;
  bench_.documents.Reformat();
}

// What else it offers.

void RAWform::Command11_Click() { bench_.platform.dialogs.Show(kLayoutWarning); }

void RAWform::Command14_Click(int index) {
  if (index == 1) return bench_.blink.Start();
  bench_.platform.dialogs.Show(kTip);
}

void RAWform::mnuRawOverview_Click() { ShowHelp(bench_.platform, topic::kPimlet); }
void RAWform::mnuHelpRawcodes_Click() { ShowHelp(bench_.platform, topic::kRawCodes); }

}  // namespace tarvik
