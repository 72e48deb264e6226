// The Composer's pages beside the main one: statements built from fields, templates, and logic lines.
#include <sstream>

#include "tools/composer/InsertOptions.h"
#include "workbench/Highlighter.h"

namespace tarvik {
namespace {

constexpr Colour kCurrentLine{0xC0FFFF};

constexpr const char* kQuickieTitle = "Double clicking is quickest";
constexpr const char* kQuickie =
    "If you double click in the preview area, the template will be inserted into whichever file has the "
    "focus in the Editor window. It's much quicker inserting templates in this manner. I thought you might "
    "like to know that!";
constexpr const char* kNoLogicTitle = "What logical statements?";
constexpr const char* kNoLogic = "I couldn't find any logical statements in your jouystick file";

/// What an array of controls holds, under full names, for the makers of statements.
template <class T, class TextIn>
void AddTexts(const ControlArray<T>& controls, TextIn textIn, BoxTexts& texts) {
  for (int i = 0; i < controls.Count(); ++i) texts[controls(i).FullName()] = textIn(controls(i));
}

}  // namespace

// Statements built from fields.

TabPages& InsertOptions::StripOf(const tables::StatementTabRow& row) const {
  return dynamic_cast<TabPages&>(Require(FindChild(row.strip, {}), *this, row.strip));
}

void InsertOptions::MakeStatementPages() {
  for (const tables::TabRow& row : tables::kTabStatements) {
    CommandButton& insert = buttons.Load(row.button);
    insert.Caption = "Insert";
    insert.Click = [this, &row] { TabStatement_Click(row); };
    for (const tables::FieldRow& field : row.fields) {
      if (field.box.empty()) break;
      boxes.Load(field.box).GotFocus = [&insert] { insert.MakeDefault(); };
    }
  }
  for (const tables::StatementTabRow& row : tables::kStatementTabs) {
    StripOf(row).Click = [this, &row] { PreparePage(row); };
  }
  for (int i = 0; i < ToggleButton1.Count(); ++i) {
    ToggleButton1(i).Caption = std::string(tables::kAxes[i].caption);
    ToggleButton1(i).Click = [this, i] { ToggleButton1_Click(i); };
  }
  ToggleButton1(2).TurnOn();
  constexpr int kTabsWithStatements = 5;
  for (int i = 0; i < kTabsWithStatements; ++i) {
    CheckBox& box = CheckMultiAddCR.Load(i);
    box.Caption = "Add carriage return when inserting";
    box.Click = [this, i] { CheckMultiAddCR_Click(i); };
  }
}

/// Gives the focus to the first field. The last page of the throttle has none, only buttons.
void InsertOptions::PreparePage(const tables::StatementTabRow& row) {
  constexpr int kDigitalThrottle = 5;
  const int page = StripOf(row).Tab;
  if (page >= row.rows) return Command1(kDigitalThrottle).MakeDefault();
  const tables::TabRow& statement = tables::kTabStatements[row.firstRow + page];
  buttons(statement.button).MakeDefault();
  boxes(statement.fields[0].box).SetFocus();
}

void InsertOptions::ToggleButton1_Click(int index) {
  for (int i = 0; i < ToggleButton1.Count(); ++i) ToggleButton1(i).Turn(i == index);
}

int InsertOptions::LitAxis() const {
  int axis = 0;
  while (axis < ToggleButton1.Count() - 1 && !ToggleButton1(axis).On()) ++axis;
  return axis;
}

void InsertOptions::TabStatement_Click(const tables::TabRow& row) {
  BoxTexts texts;
  for (const auto& [name, box] : boxes.Members()) texts[name] = box->Text;
  writer_.Write(TabStatement(row, texts, LitAxis(), Style()));
}

void InsertOptions::CheckMultiAddCR_Click(int index) {
  const int value = CheckMultiAddCR(index).Value;
  bench_.settings.CompTabsAddCr = value;
  for (int i = 0; i < CheckMultiAddCR.Count(); ++i) CheckMultiAddCR(i).Value = value;
}

// Use, mouse and the rest.

void InsertOptions::MakeUsePage() {
  for (int i = 0; i < Command1.Count(); ++i) {
    Command1(i).Caption = std::string(tables::kUses[i].caption);
    Command1(i).Click = [this, i] { Command1_Click(i); };
  }
  for (int i = 0; i < Command2.Count(); ++i) {
    TextBox& box = boxes.Load(tables::kValues[i].box);
    box.Text = std::string(tables::kValues[i].initial);
    box.GotFocus = [this, i] { Command2(i).MakeDefault(); };
    Command2(i).Caption = "Insert";
    Command2(i).Click = [this, i] { Command2_Click(i); };
  }
  for (int i = 0; i < MouseList.Count(); ++i) {
    Option1.Load(i).Caption = std::string(tables::kMouseLists[i].option);
    Option1(i).Click = [this, i] { Option1_Click(i); };
    connections_.push_back(MouseList(i).ListIndex.Changed.Connect([this, i] { MouseList_Click(i); }));
  }
  for (int i = 0; i < Label5.Count(); ++i) Label5(i).BackColor = ToggleLabel::kOff;
}

void InsertOptions::FillMiceListBoxes() {
  for (int i = 0; i < MouseList.Count(); ++i) MouseList(i).FillInOrder(MouseTypes(tables::kMouseLists[i]));
  MouseList(0).ToFront();
  MouseList(0).ListIndex = 0;
}

void InsertOptions::Option1_Click(int index) {
  MouseList(index).ToFront();
  MouseList(index).ListIndex = -1;  // so that an item chosen before counts as a new choice
  MouseList(index).ListIndex = 0;
}

void InsertOptions::MouseList_Click(int index) {
  const int item = MouseList(index).ListIndex;
  if (item < 0) return;
  const tables::MouseRow& row = tables::kMouseLists[index].types[static_cast<std::size_t>(item)];
  Label5(0).Caption = std::string(row.left);
  Label5(1).Caption = std::string(row.middle);
  Label5(2).Caption = std::string(row.right);
}

void InsertOptions::Command2_Click(int index) {
  const tables::ValueRow& row = tables::kValues[index];
  writer_.Write(ValueStatement(row, boxes(row.box).Text, Style()));
}

/// The kind of mouse that is chosen; the first one as long as none is.
int InsertOptions::KindOfMouse() const {
  for (int i = 0; i < Option1.Count(); ++i) {
    if (Option1(i).Value) return i;
  }
  return 0;
}

void InsertOptions::Command9_Click() {
  writer_.Write(MouseStatement(MouseList(KindOfMouse()).Current(), Style()));
}

// Templates.

void InsertOptions::MakeTemplatesPage() {
  Templates.ToolTipText = "Select a template to view";
  Templates.MouseMove = [this](const Mouse& mouse) { Templates_MouseMove(mouse); };
  connections_.push_back(Templates.ListIndex.Changed.Connect([this] {
    if (Templates.ListIndex >= 0) Templates_Click();
  }));
  Templates.MouseUp = [this](const Mouse&) {
    if (Templates.ListIndex >= 0) MakeTemplateCurrent(Templates.ListIndex);
  };
  TemplatesPreview.Locked = true;
  TemplatesPreview.ToolTipText = "Double click here to insert into your file";
  TemplatesPreview.DblClick = [this] { TemplatesPreview_DblClick(); };
  TemplatesPreview.MouseDown = [this](const Mouse& mouse) {
    if (mouse.button == button::kRight) PopUp("mnuTemplates");
  };
}

void InsertOptions::FillTemplates() {
  std::vector<std::string> names;
  for (const char* const ending : {".rtf", ".txt"}) {
    for (std::string& name : bench_.platform.files.FilesIn(TemplatePath.Get(), ending)) {
      names.push_back(std::move(name));
    }
  }
  Templates.FillInOrder(std::move(names));
  if (Templates.ListCount() > 0) {
    MakeTemplateCurrent(0);
  } else {
    TemplatesPreview.Text = std::string();
  }
}

/// Reads the template anew, even if it was current before: its file may have been edited.
void InsertOptions::MakeTemplateCurrent(int item) {
  if (Templates.ListIndex == item) return Templates_Click();
  Templates.ListIndex = item;
}

void InsertOptions::Templates_Click() {
  const Trap trap{bench_.errors, "PLUGIN Templates_Click"};
  TemplatesPreview.Text = std::string();
  trap(TemplatesPreview.LoadFile(TemplatePath.Get() + Templates.Current()));
  LastTemplateIndex = Templates.ListIndex;
}

/// Dragging down the list shows one template after the other.
void InsertOptions::Templates_MouseMove(const Mouse& mouse) {
  if (Templates.ListCount() > 0 && mouse.button != 0 && Templates.ListIndex != LastTemplateIndex) {
    Templates_Click();
  }
}

/// Replaces what is selected in the file by the template with its colours, as one step of undo. The caret
/// goes behind it.
void InsertOptions::InsertTemplate(Document& document) {
  if (TemplatesPreview.Characters().empty()) return;
  document.Undo.BeginCommand(bench_.settings.UndoMax);
  document.text.ReplaceSelection(TemplatesPreview.Content());
  document.Caret = document.text.SelStart;
}

void InsertOptions::Command11_Click(int index) {
  if (index == 2) return FillTemplates();
  if (TemplatesPreview.Characters().empty()) return;
  Document& document = index == 0 ? bench_.documents.joystick : bench_.documents.macro;
  bench_.documents.Select(document);
  InsertTemplate(document);
}

/// Inserts into the macro file, also while the joystick file is on top, which stays there.
void InsertOptions::mnuMacrofile_Click() { InsertTemplate(bench_.documents.macro); }

void InsertOptions::mnuQuickie_Click() {
  bench_.platform.dialogs.Show({kQuickieTitle, kQuickie, BoxIcon::Information});
}

// Logic.

void InsertOptions::MakeLogicPage() {
  const auto caption = [](CommandButton& button, std::string_view text, std::function<void()> click) {
    button.Caption = std::string(text);
    button.Click = std::move(click);
  };
  for (int i = 0; i < CMDCompare.Count(); ++i) {
    caption(CMDCompare(i), tables::kCompares[i], [this, i] { AddToLogicLine(tables::kCompares[i]); });
  }
  for (int i = 0; i < CMDFlagSlash.Count(); ++i) {
    caption(CMDFlagSlash(i), tables::kFlagSlashes[i], [this, i] { AddToLogicLine(tables::kFlagSlashes[i]); });
  }
  for (int i = 0; i < CMDFlagInsert.Count(); ++i) {
    caption(CMDFlagInsert(i), "Insert", [this, i] { CMDFlagInsert_Click(i); });
  }
  CMDFlagInsert(CMDFlagInsert.Count() - 1).Caption = "View An0002a.txt";
  for (int i = 0; i < TxtFlag.Count(); ++i) {
    TxtFlag(i).Text = std::string(tables::kFlagBoxes[i].initial);
    TxtFlag(i).GotFocus = [this, i] { TxtFlag(i).SelectAll(); };
  }
  for (int i = 0; i < RichTexFlag.Count(); ++i) {
    OptionFlag.Load(i).Caption = std::to_string(i + 1);
    OptionFlag(i).Click = [this, i] { OptionFlag_Click(i); };
    const auto makeCurrent = [this, i] { OptionFlag(i).Value = true; };
    RichTexFlag(i).GotFocus = makeCurrent;
    RichTexFlag(i).MouseDown = [makeCurrent](const Mouse&) { makeCurrent(); };
    connections_.push_back(RichTexFlag(i).Text.Changed.Connect([this] { LogicLinesChanged(); }));
  }
  OptionFlag(0).Value = true;
  connections_.push_back(bench_.recovery.Returns.Connect(
      [this](const UnsavedText& unsaved, bool& taken) { taken = taken || TakeBack(unsaved); }));
}

void InsertOptions::FillLogicLists() {
  for (int i = 0; i < FlagList.Count(); ++i) {
    FlagList(i).FillInOrder(ItemsOf(tables::kFlagLists[i]));
    FlagList(i).ListIndex = 0;
  }
}

/// Takes the option's line for the current one, and brings its page to the front.
void InsertOptions::WhichLogicText() {
  for (int i = 0; i < OptionFlag.Count(); ++i) {
    if (OptionFlag(i).Value) CurrentLogicLine = i;
  }
  SSTabFlags.Tab = CurrentLogicLine * SSTabFlags.Count() / OptionFlag.Count();
}

void InsertOptions::ColourFlagTextBack() {
  for (int i = 0; i < RichTexFlag.Count(); ++i) RichTexFlag(i).BackColor = kWhite;
}

void InsertOptions::OptionFlag_Click(int index) {
  ColourFlagTextBack();
  RichTexFlag(index).BackColor = kCurrentLine;
}

/// Writes the token at the caret of the current line, in place of what is selected there.
void InsertOptions::AddToLogicLine(std::string_view token) {
  WhichLogicText();
  TextBox& line = RichTexFlag(CurrentLogicLine);
  line.SelText = SpacedToken(token, line.Text.Get(), line.SelStart);
  line.SetFocus();
}

void InsertOptions::CMDFlagInsert_Click(int index) {
  const Trap trap{bench_.errors, "COMPOSER CMDFlagInsert_Click"};
  if (index == static_cast<int>(std::size(tables::kFlagInserts))) {
    trap(bench_.platform.desktop.Open(bench_.platform.folder + "\\An0002a.txt"));
    return;
  }
  BoxTexts texts;
  AddTexts(
      FlagList, [](const ComboBox& list) { return list.Text(); }, texts);
  AddTexts(
      TxtFlag, [](const TextBox& box) { return box.Text.Get(); }, texts);
  AddToLogicLine(TokenOf(tables::kFlagInserts[index], texts));
}

Outcome<std::string> InsertOptions::LogicLine(int index) {
  constexpr int kNoSuchControl = 340;
  if (index < RichTexFlag.Count()) return RichTexFlag(index).Text.Get();
  return Failure{kNoSuchControl, "Control array element '" + std::to_string(index) + "' doesn't exist", 0};
}

/// Writes all lines or the current one, or fetches the lines of the joystick file back into the boxes.
void InsertOptions::Command13_Click(int index) {
  if (index == 2) return FindLogicStatements();
  if (index == 1) {
    WhichLogicText();
    const TextBox& line = RichTexFlag(CurrentLogicLine);
    if (!line.Empty()) writer_.Write(LogicStatement(line.Text));
    return;
  }
  const Trap trap{bench_.errors, "COMPOSER Command13_Click"};
  ColouredInsertion& insertion = bench_.insertion;
  insertion.BeginColInsert();
  bench_.edit.CheckAtLineBeginning();
  for (int i = 0; i <= static_cast<int>(tables::kLogicLines); ++i) {  // the last pass finds no box
    const auto line = trap(LogicLine(i));
    if (!line || line->empty()) continue;
    bench_.values.InsertionText = *line;
    insertion.InsertBlackText();
    insertion.InsertCarriageReturn();
  }
  insertion.EndColInsert();
  if (bench_.journals.Write()) logicJournal_.Remove();  // they are in the file's journal
}

std::string InsertOptions::LogicLinesOnShow() const {
  std::string lines;
  for (int i = 0; i < RichTexFlag.Count(); ++i) lines += RichTexFlag(i).Text.Get() + "\r\n";
  return lines.substr(0, lines.find_last_not_of("\r\n") + 1);
}

void InsertOptions::LogicLinesChanged() {
  if (LogicLinesOnShow().empty()) return logicJournal_.Remove();
  logicJournal_.Begin();
  logicJournal_.NoteWhole();
}

/// Into boxes that are empty: what the user has typed since stays.
bool InsertOptions::TakeBack(const UnsavedText& unsaved) {
  if (unsaved.head.kind != TextKind::Logic) return false;
  std::vector<std::string> lines;
  std::istringstream text(unsaved.text.text);
  for (std::string line; std::getline(text, line);) lines.push_back(line.substr(0, line.find('\r')));
  if (!LogicLinesOnShow().empty()) std::erase(lines, "");
  std::vector<TextBox*> boxes;
  for (int i = 0; i < RichTexFlag.Count(); ++i) {
    if (RichTexFlag(i).Empty()) boxes.push_back(&RichTexFlag(i));
  }
  if (boxes.size() < lines.size()) {
    Say("The logic page has no room for these lines");
    return false;
  }
  SSTab1.Tab = kLogic;
  SSTabFlags.Tab = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) boxes[i]->Text = lines[i];
  return true;
}

void InsertOptions::FindLogicStatements() {
  const std::string_view text = bench_.documents.joystick.text.Characters();
  if (text.empty()) return;
  for (int i = 0; i < RichTexFlag.Count(); ++i) RichTexFlag(i).Text = std::string();
  const std::vector<std::string> lines = LogicLinesOf(text);
  if (lines.empty()) {
    bench_.platform.dialogs.Show({kNoLogicTitle, kNoLogic, BoxIcon::Information});
    return;
  }
  for (std::size_t i = 0; i < lines.size(); ++i) RichTexFlag(static_cast<int>(i)).Text = lines[i];
  SSTabFlags.Tab = 0;
  logicJournal_.Remove();
  OptionFlag(0).Value = true;
}

}  // namespace tarvik
