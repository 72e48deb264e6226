#include "tools/blocks/TextBlocks.h"

#include "app/Editor.h"

namespace tarvik {
namespace {

constexpr const char* kHeadings[] = {
    "Game control",
    "Communications",
    "Avionics",
    "Aircraft Control",
    "Head Up Display",
    "Cockpit Views",
    "External views",
    "Smart Views",
    "Options",
    "Mission Planning",
    "Multiplayer",
    "Movement",
    "Weapons",
    "Navigation",
    "Engines",
    "Autopilot",
    "Damage",
    "ASE Controls",
    "IHADS",
    "TADS",
    "MFDs",
    "Targeting",
    "FCR",
    "Systems",
    "Virtual cockpit",
    "Throttle",
    "Flight controls",
    "Combat controls",
    "Lantirn",
    "Countermeasures",
    "Engagement",
    "Formation",
    "Refuel",
    "Airfield",
    "AWACS",
    "Wingmen",
    "Defence",
    "Cameras",
    "Display",
    "Modes",
    "Nozzles",
    "Panning controls",
    "Steering",
    "Sonar",
};

constexpr const char* kJoysticks[] = {"F22 Pro", "F-16 FLCS", "P FCS", "Top Gun", "FCS"};
constexpr const char* kThrottles[] = {", no throttle", ", TQS", ", WCS MkII", ", WCS"};
constexpr const char* kRudders[] = {", no rudders.", ", Elite rudders.", ", RCS."};

constexpr const char* kEmptyLine = "Rem";
constexpr std::size_t kRuleSigns = 48;
constexpr std::size_t kLineWidth = 52;      // of a title
constexpr std::size_t kWidestCentred = 50;  // "Rem " and the text stay below it
constexpr std::size_t kHeadingIndent = 10;
constexpr std::size_t kHeadingOverhang = 20;

/// Nothing for a number that is no row's.
template <std::size_t N>
std::string Row(const char* const (&rows)[N], int index) {
  return index >= 0 && index < static_cast<int>(N) ? rows[index] : "";
}

std::string Centred(const std::string& text) {
  const bool centred = text.size() + 4 < kWidestCentred;
  return "Rem " + std::string(centred ? (kLineWidth - text.size()) / 2 : 0, ' ') + text;
}

Colour RemarkColour(const Settings& settings) {
  return settings.InsertWithColour == 1 ? settings.RemStatements.Get() : kBlack;
}

void WriteLines(Application& application, const std::vector<std::string>& lines) {
  ColouredInsertion& insertion = application.editor().insertion();
  application.values.InsertionColour = RemarkColour(application.settings);
  for (const std::string& line : lines) {
    insertion.InsertColouredStringNoSpace(line, application.values.InsertionColour);
    insertion.InsertCarriageReturn();
  }
}

}  // namespace

std::string GetHardwareNames(const Settings& settings) {
  return Row(kJoysticks, settings.JoyName) + Row(kThrottles, settings.ThrottleName) +
         Row(kRudders, settings.RudderName);
}

std::span<const char* const> MacroHeadings() { return kHeadings; }

std::vector<std::string> HeadingBlock(const std::string& text) {
  const std::string rule = "Rem " + std::string(text.size() + kHeadingOverhang, '-');
  return {rule, "Rem " + std::string(kHeadingIndent, ' ') + text, rule};
}

// The title.

Title::Title(Application& application)
    : Form("Title"),
      RichTextBox1(*this, "RichTextBox1", application.platform.files),
      application_(application) {
  Caption = "Insert title";
  Topmost = true;
  Command1.MakeDefault();
  Command1.Click = [this] { Command1_Click(); };
  Command2.Cancel = true;
  Command2.Click = [this] { application_.Unload(*this); };
  Activate = [this] { Form_Activate(); };
  Unload = [this] { Form_Unload(); };
}

void Title::Form_Activate() {
  const std::string hardware = GetHardwareNames(application_.settings);
  Text1.Text = application_.editor().ActiveDocument().Name.Get().Text();
  if (Text2.Empty()) Text2.Text = std::string("eg. F22 ADF");
  Text3.Text = GetPersonsName();
  Text4.Text = application_.platform.calendar.LongDate();
  Text5.Text = hardware.empty() ? "eg. F22 Pro and TQS" : hardware;
  Text2.SelectAll();
  Text2.SetFocus();
}

void Title::Form_Unload() {
  if (!Text3.Empty()) SaveThePersonsName();
}

void Title::SaveThePersonsName() {
  application_.settings.ValidUser = Text3.Text.Get();
  const Trap trap{application_.errors, "TITLE SaveThePersonsName"};
  trap(application_.profile.Write("Miscellaneous", "ValidUser", application_.settings.ValidUser.Get()));
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
  ColouredInsertion& insertion = application_.editor().insertion();
  insertion.BeginColInsert();
  WriteLines(application_, Lines());
  insertion.EndColInsert();
  application_.Unload(*this);
}

void InsertTitle(Application& application) { application.ShowModal(application.Tool<Title>()); }

// The heading.

Heading::Heading(Application& application) : Form("Heading"), application_(application) {
  Caption = " Insert heading";
  Topmost = true;
  Command1(0).Caption = "OK";
  Command1(0).MakeDefault();
  Command1(1).Caption = "Cancel";
  Command1(1).Cancel = true;
  for (const int i : {0, 1}) {
    Command1(i).Click = [this, i] { Command1_Click(i); };
  }
  for (const char* const heading : MacroHeadings()) Combo1.AddItem(heading);
}

void Heading::Command1_Click(int index) {
  application_.values.REMText = index == 0 ? Combo1.Text.Get() : "";
  application_.Unload(*this);
}

void InsertHeading(Application& application) {
  application.values.REMText = std::string();
  auto& form = application.Tool<Heading>();
  form.Combo1.SetFocus();
  application.ShowModal(form);
  const std::string text = application.values.REMText;
  if (text.empty()) return;
  ColouredInsertion& insertion = application.editor().insertion();
  insertion.BeginColInsert();
  application.editor().CheckAtLineBeginning();
  WriteLines(application, HeadingBlock(text));
  insertion.EndColInsert();
}

// The remark.

SingleTextForm::SingleTextForm(Application& application) : Form("SingleTextForm"), application_(application) {
  Caption = "  Enter your text ... today ...";
  RichTextBox1.GotFocus = [this] { RichTextBox1.SelectAll(); };
  Command1.MakeDefault();
  Command1.Click = [this] { Command1_Click(); };
  Command2.Cancel = true;
  Command2.Click = [this] { Command2_Click(); };
  Load = [this] { Form_Load(); };
}

void SingleTextForm::Form_Load() {
  Topmost = true;
  CheckAddCR.Value = application_.settings.AddCRtoREM.Get();
}

void SingleTextForm::Close(const std::string& text) {
  application_.values.REMText = text;
  SaveCRthang();
  application_.Unload(*this);
}

void SingleTextForm::SaveCRthang() {
  application_.settings.AddCRtoREM = CheckAddCR.Value;
  const Trap trap{application_.errors, "TITLE SaveCRthang"};
  trap(application_.profile.Write("Miscellaneous", "AddCRtoREM", TextOf(CheckAddCR.Value.Get())));
}

std::string AskForRemark(Application& application) {
  application.values.REMText = std::string();
  auto& form = application.Tool<SingleTextForm>();
  form.RichTextBox1.SetFocus();
  application.ShowModal(form);
  return application.values.REMText;
}

void InsertRemStatement(Application& application) {
  Values& values = application.values;
  const std::string remark = AskForRemark(application);
  if (remark.empty()) return;
  values.InsertionText = "Rem " + remark;
  values.InsertionColour = application.settings.RemStatements;
  ColouredInsertion& insertion = application.editor().insertion();
  insertion.BeginColInsert();
  if (application.settings.InsertWithColour == 1) {
    insertion.AddSpaceToColouredText();
    insertion.InsertColouredStringNoSpace(values.InsertionText, values.InsertionColour);
  } else {
    insertion.InsertBlackText();
  }
  if (application.settings.AddCRtoREM == 1) insertion.InsertCarriageReturn();
  insertion.EndColInsert();
}

}  // namespace tarvik
