#include "tools/blocks/TextBlocks.h"

#include "language/Controllers.h"
#include "language/MacroHeadings.h"

namespace tarvik {
namespace {

constexpr const char* kEmptyLine = "Rem";
constexpr std::size_t kRuleSigns = 48;
constexpr std::size_t kLineWidth = 52;      // of a title
constexpr std::size_t kWidestCentred = 50;  // "Rem " and the text stay below it

/// The words of a row in the title; empty for a number that no row has.
template <class Rows>
std::string InTitle(const Rows& rows, int number) {
  const auto* const row = RowOf(rows, number);
  return row ? std::string(row->inTitle) : std::string();
}

std::string Centred(const std::string& text) {
  const bool centred = text.size() + 4 < kWidestCentred;
  return "Rem " + std::string(centred ? (kLineWidth - text.size()) / 2 : 0, ' ') + text;
}

Colour RemarkColour(const Settings& settings) {
  return settings.InsertWithColour == 1 ? settings.RemStatements.Get() : kBlack;
}

void WriteLines(Workbench& bench, const std::vector<std::string>& lines) {
  ColouredInsertion& insertion = bench.insertion;
  bench.values.InsertionColour = RemarkColour(bench.settings);
  for (const std::string& line : lines) {
    insertion.InsertColouredStringNoSpace(line, bench.values.InsertionColour);
    insertion.InsertCarriageReturn();
  }
}

}  // namespace

std::string GetHardwareNames(const Settings& settings) {
  return InTitle(kJoysticks, settings.JoyName) + InTitle(kThrottles, settings.ThrottleName) +
         InTitle(kRudders, settings.RudderName);
}

// The title.

Title::Title(Workbench& bench, Shell& shell)
    : ToolForm("Title", bench, shell), RichTextBox1(*this, "RichTextBox1", bench.platform.files) {
  Caption = "Insert title";
  Topmost = true;
  Command1.MakeDefault();
  Command2.Cancel = true;
  Activate = [this] { Form_Activate(); };
  Unload = [this] { Form_Unload(); };
}

void Title::Form_Activate() {
  const std::string hardware = GetHardwareNames(bench_.settings);
  Text1.Text = bench_.documents.Active().Name.Get().Text();
  if (Text2.Empty()) Text2.Text = std::string("eg. F22 ADF");
  Text3.Text = GetPersonsName();
  Text4.Text = bench_.platform.calendar.LongDate();
  Text5.Text = hardware.empty() ? "eg. F22 Pro and TQS" : hardware;
  Text2.SelectAll();
  Text2.SetFocus();
}

void Title::Form_Unload() {
  if (!Text3.Empty()) SaveThePersonsName();
}

void Title::SaveThePersonsName() {
  bench_.settings.ValidUser = Text3.Text.Get();
  const Trap trap{bench_.errors, "TITLE SaveThePersonsName"};
  trap(bench_.profile.Write(section::kMiscellaneous, "ValidUser", bench_.settings.ValidUser.Get()));
}

std::vector<std::string> Title::Lines() const {
  const std::string rule = "Rem " + std::string(kRuleSigns, '#');
  std::vector<std::string> lines = {rule, kEmptyLine};
  for (const std::string& text :
       {Text1.Text.Get() + " for " + Text2.Text.Get(), "by " + Text3.Text.Get(),
        "last modified: " + Text4.Text.Get(), "For: " + Text5.Text.Get() + " combination"}) {
    lines.insert(lines.end(), {Centred(text), kEmptyLine});
  }
  std::string_view comment = RichTextBox1.Characters();
  if (comment.empty()) {
    lines.insert(lines.end(), {rule, ""});
    return lines;
  }
  lines.emplace_back(kEmptyLine);
  for (std::size_t end = 0; end != std::string_view::npos;) {
    end = comment.find("\r\n");
    lines.push_back(Centred(std::string(comment.substr(0, end))));
    if (end != std::string_view::npos) comment.remove_prefix(end + 2);
  }
  lines.insert(lines.end(), {kEmptyLine, rule});
  return lines;
}

void Title::Command1_Click() {
  ColouredInsertion& insertion = bench_.insertion;
  insertion.BeginColInsert();
  WriteLines(bench_, Lines());
  insertion.EndColInsert();
  Close();
}

void InsertTitle(Workbench& /*bench*/, Shell& shell) { shell.ShowModal(shell.Tool<Title>()); }

// The heading.

Heading::Heading(Workbench& bench, Shell& shell) : ToolForm("Heading", bench, shell) {
  Caption = " Insert heading";
  Topmost = true;
  Command1(0).MakeDefault();
  Command1(1).Cancel = true;
  for (const char* const heading : MacroHeadings()) Combo1.AddItem(heading);
}

void Heading::Command1_Click(int index) {
  bench_.values.REMText = index == 0 ? Combo1.Text.Get() : "";
  Close();
}

void InsertHeading(Workbench& bench, Shell& shell) {
  bench.values.REMText = std::string();
  auto& form = shell.Tool<Heading>();
  form.Combo1.SetFocus();
  shell.ShowModal(form);
  const std::string text = bench.values.REMText;
  if (text.empty()) return;
  ColouredInsertion& insertion = bench.insertion;
  insertion.BeginColInsert();
  bench.edit.CheckAtLineBeginning();
  WriteLines(bench, HeadingBlock(text));
  insertion.EndColInsert();
}

// The remark.

SingleTextForm::SingleTextForm(Workbench& bench, Shell& shell) : ToolForm("SingleTextForm", bench, shell) {
  Caption = "  Enter your text ... today ...";
  RichTextBox1.GotFocus = [this] { RichTextBox1.SelectAll(); };
  Command1.MakeDefault();
  Command2.Cancel = true;
  Load = [this] { Form_Load(); };
}

void SingleTextForm::Form_Load() {
  Topmost = true;
  CheckAddCR.Value = bench_.settings.AddCRtoREM.Get();
}

void SingleTextForm::Close(const std::string& text) {
  bench_.values.REMText = text;
  SaveCRthang();
  ToolForm::Close();
}

void SingleTextForm::SaveCRthang() {
  bench_.settings.AddCRtoREM = CheckAddCR.Value;
  const Trap trap{bench_.errors, "TITLE SaveCRthang"};
  trap(bench_.profile.Write(section::kMiscellaneous, "AddCRtoREM", TextOf(CheckAddCR.Value.Get())));
}

void AskForRemark(Workbench& bench, Shell& shell) {
  bench.values.REMText = std::string();
  auto& form = shell.Tool<SingleTextForm>();
  form.RichTextBox1.SetFocus();
  shell.ShowModal(form);
}

void InsertRemStatement(Workbench& bench, Shell& shell) {
  SharedValues& values = bench.values;
  AskForRemark(bench, shell);
  const std::string remark = values.REMText;
  if (remark.empty()) return;
  values.InsertionText = "Rem " + remark;
  values.InsertionColour = bench.settings.RemStatements;
  ColouredInsertion& insertion = bench.insertion;
  insertion.BeginColInsert();
  if (bench.settings.InsertWithColour == 1) {
    insertion.AddSpaceToColouredText();
    insertion.InsertColouredStringNoSpace(values.InsertionText, values.InsertionColour);
  } else {
    insertion.InsertBlackText();
  }
  if (bench.settings.AddCRtoREM == 1) insertion.InsertCarriageReturn();
  insertion.EndColInsert();
}

}  // namespace tarvik
