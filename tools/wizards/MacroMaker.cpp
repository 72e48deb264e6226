#include "tools/wizards/MacroMaker.h"

#include "language/MacroHeadings.h"

namespace tarvik {
namespace {

constexpr int kPreviewIndex = 38;
constexpr int kName = 0;
constexpr int kKeys = 1;

constexpr MacroMaker::Command kShared[] = {
    {"Insert heading", &MacroMaker::InsertHeading},
    {"Insert into macro file", &MacroMaker::InsertMacro},
    {"Clear text", &MacroMaker::ClearTexts},
    {"Show me Pimlet again - I need his advice !", &MacroMaker::ShowPimlet},
    {"Save the macro file I've just created", &MacroMaker::SaveFile},
    {"Transfer these macros I created into the Editor's macro list", &MacroMaker::UpdateMacros},
};

const MessageBox kBlankInName = {"Ooops!", "You can't have spaces in a macro name buddy ... sorry!",
                                 BoxIcon::Information};

}  // namespace

MacroMaker::MacroMaker(Form& form, Workbench& bench, Shell& shell, std::span<const Command, kOwn> own)
    : Command1(form, "Command1", static_cast<int>(own.size() + std::size(kShared))),
      Text1(form, "Text1", 2),
      Preview(form, "Label1", kPreviewIndex),
      List1(form, "List1"),
      form_(form),
      bench_(bench),
      shell_(shell),
      commands_(own.begin(), own.end()) {
  commands_.insert(commands_.end(), std::begin(kShared), std::end(kShared));
  for (int i = 0; i < Command1.Count(); ++i) {
    Command1(i).Caption = std::string(commands_[static_cast<std::size_t>(i)].caption);
    Command1(i).Click = [this, i] { Command1_Click(i); };
  }
  Command1(kInsert).Enabled = false;
  for (const int i : {kName, kKeys}) Text1(i).Change = [this] { Text1_Change(); };
  form.KeyDown = [this](Key& key) { Text1_KeyDown(key); };
  Preview.Caption = "Macro will appear here";
  List1.ToolTipText = "Double click to insert macro heading";
  List1.DblClick = [this] { List1_DblClick(); };
  AddHeadingsToList();
  keysOffered_ = bench.KeysOffered.Connect([this](const std::string& keys) {
    if (form_.Visible) Text1(kKeys).Text = keys;
  });
}

void MacroMaker::AddHeadingsToList() {
  const auto headings = MacroHeadings();
  List1.FillInOrder({headings.begin(), headings.end()});
}

void MacroMaker::Command1_Click(int index) { (this->*commands_[static_cast<std::size_t>(index)].run)(); }

void MacroMaker::PrepareMacro() {
  Command1(kInsert).MakeDefault();
  Text1(kName).SetFocus();
}

// The macro's line.

void MacroMaker::Text1_Change() {
  const std::string name = Text1(kName).Text;
  if (name.find(' ') != std::string::npos) {
    bench_.platform.dialogs.Show(kBlankInName);
    return;
  }
  Command1(kInsert).Enabled = !name.empty() && !Text1(kKeys).Empty();
  Preview.Caption = name + " = " + Text1(kKeys).Text.Get();
}

/// In the box of the name the Enter key goes on to the keys, where it presses the default button.
void MacroMaker::Text1_KeyDown(Key& key) {
  if (key.code != key::kEnter || form_.ActiveControl() != &Text1(kName)) return;
  Text1(kKeys).SetFocus();
  key = {};
}

/// The line goes into the macro file whatever is on top; its end goes where the editor's insertions go, in
/// the same step of undo.
void MacroMaker::InsertMacro() {
  const bool onTop = &bench_.documents.Active() == &bench_.documents.macro;
  bench_.documents.macro.Undo.BeginCommand(bench_.settings.UndoMax);
  WriteBlack(Preview.Caption.Get() + (onTop ? "\r\n" : ""));
  if (!onTop) bench_.insertion.InsertCarriageReturn();
  bench_.documents.swatch.BackColor = kBlack;
  ClearTexts();
}

void MacroMaker::WriteBlack(const std::string& text) {
  Pane& pane = bench_.documents.macro.text;
  pane.SelColor = kBlack;
  pane.SelText = text;
  bench_.documents.macro.Caret = pane.SelStart;
}

void MacroMaker::ClearTexts() {
  for (const int i : {kName, kKeys}) Text1(i).Text = std::string();
  Command1(kInsert).Enabled = false;
  Text1(kName).SetFocus();
}

// Headings.

void MacroMaker::List1_DblClick() {
  const std::string heading = List1.Current();
  if (heading.empty()) return;
  const bool colour = bench_.settings.InsertWithColour == 1;
  ColouredInsertion& insertion = bench_.insertion;
  insertion.BeginColInsert();
  insertion.InsertCarriageReturn();
  for (const std::string& line : HeadingBlock(heading)) {
    if (colour) {
      insertion.InsertColouredStringNoSpace(line, bench_.settings.RemStatements);
    } else {
      WriteBlack(line);
    }
    insertion.InsertCarriageReturn();
  }
  insertion.EndColInsert();
  const bool elsewhere = !colour && &bench_.documents.Active() != &bench_.documents.macro;
  if (elsewhere) bench_.documents.TextChanged(bench_.documents.macro);  // the group was the other file's
}

// The editor's commands.

void MacroMaker::CreateAndSaveFile() {
  CreateFile();
  SaveFile();
}

}  // namespace tarvik
