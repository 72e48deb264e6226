#include <algorithm>
#include <filesystem>
#include <fstream>

#include "session/Grammar.h"
#include "session/RunnerParts.h"
#include "text/Blanks.h"

namespace tarvik::session {
namespace {

/// What a user reads of a caption: no mnemonic, and no blanks around it.
std::string Legible(const std::string& caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    text += caption[i];
  }
  return std::string(WithoutBlanks(text));
}

bool IsVisible(Component& component) {
  const PropertyBase* const visible = component.FindProperty("Visible");
  return !visible || visible->ToText() == "True";
}

bool IsClickable(Component& component) {
  return dynamic_cast<Control*>(&component) || dynamic_cast<MenuItem*>(&component);
}

/// The controls and menu entries below `parent` that have the caption.
std::vector<Component*> WithCaption(Component& parent, const std::string& caption) {
  std::vector<Component*> found;
  for (Component* const child : parent.Children()) {
    const PropertyBase* const own = child->FindProperty("Caption");
    if (own && IsClickable(*child) && Legible(own->ToText()) == caption) found.push_back(child);
    const std::vector<Component*> below = WithCaption(*child, caption);
    found.insert(found.end(), below.begin(), below.end());
  }
  return found;
}

}  // namespace

Runner::Runner(MakeDriver makeDriver, const std::string& dataFolder) : makeDriver_(std::move(makeDriver)) {
  namespace fs = std::filesystem;
  files_.PutFolder(kFolder);
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(dataFolder)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream in(entry.path(), std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(in), {}};
    std::string name = fs::relative(entry.path(), dataFolder).string();
    std::replace(name.begin(), name.end(), '/', '\\');
    files_.Put(std::string(kFolder) + "\\" + name, content);
  }
}

Runner::~Runner() {
  driver_.reset();
  application_.reset();
}

std::vector<std::string> Runner::Check(std::string_view script) {
  lines_ = ParseScript(script);
  if (lines_.empty()) return {"1: the session is empty"};
  HoldAgainstShapes();
  return failures_;
}

std::vector<std::string> Runner::Run(std::string_view script) {
  const std::vector<std::string> mistakes = Check(script);
  if (!mistakes.empty()) return mistakes;
  outside_.dialogs.next = [this] { return Next(); };
  while (Next()) {
    if (application_ && application_->Ended()) Killed(*line_);
  }
  TellWhatIsLeft();
  return failures_;
}

/// Tells what the session did not expect, by its last line, and what it prepared and nothing took, by the
/// line that prepared it.
void Runner::TellWhatIsLeft() {
  if (application_) {
    for (const Form* form : application_->Forms()) {
      if (form->Modal && form->Visible) Fail("the session ends in a modal form");
    }
  }
  const ScriptedDialogs& dialogs = outside_.dialogs;
  const ScriptedPrograms& programs = outside_.programs;
  for (const MessageBox& box : dialogs.boxes)
    Fail("an unexpected box: \"" + box.title + "\" \"" + box.text + "\"");
  for (const ProgramStart& run : programs.started) Fail("an unexpected program: " + run.commandLine);
  for (const std::string& path : outside_.desktop.opened) Fail("unexpectedly opened: " + path);
  if (programs.alive) Fail("a program that is waited for outlives the session");
  const auto failLast = [this](const Prepared& prepared, std::size_t count, const std::string& what) {
    for (std::size_t i = prepared.size() - std::min(count, prepared.size()); i < prepared.size(); ++i) {
      line_ = prepared[i];
      Fail(what);
    }
  };
  failLast(answered_, dialogs.answers.size(), "an answer that no box took");
  failLast(chosen_, dialogs.choices.size(), "a choice that no dialog took");
  failLast(heldBoxes_, dialogs.holdBox ? 1 : 0, "no box came");
  failLast(heldDialogs_, dialogs.holdDialog ? 1 : 0, "no dialog came");
  const bool isSet = programs.fails != 0 || programs.state != ProgramState::Ended;
  failLast(programs_, isSet && !programs.alive ? 1 : 0, "no such program was started");
}

/// Walks one line, and the lines that follow while a modal form or a box is open.
bool Runner::Next() {
  if (nextLine_ == lines_.size()) return false;
  const Line& line = lines_[nextLine_++];
  line_ = &line;
  ++depth_;
  try {
    Step(line);
  } catch (const Stop& stop) {
    Fail(stop.text);
  } catch (const std::exception& error) {
    Fail(error.what());  // a number too large, say
  }
  --depth_;
  return true;
}

/// Each kind of line with what it does. A shape's first words tell the kinds apart.
const std::vector<Runner::Sentence>& Runner::Sentences() {
  static const std::vector<Sentence> sentences = {
      {"file TEXT [open] [:]", &Runner::File},
      {"repeat TEXT COUNT [open] :", &Runner::Repeat},
      {"bytes TEXT HEX...", &Runner::Bytes},
      {"folder TEXT", &Runner::Folder},
      {"readonly TEXT", &Runner::ReadOnly},
      {"unreadable TEXT", &Runner::Unreadable},
      {"remove TEXT", &Runner::Remove},
      {"ini TEXT TEXT TEXT", &Runner::Ini},
      {"room enough|COUNT", &Runner::DiskRoom},
      {"printer none", &Runner::SetPrinter},
      {"printer gone|lines COUNT", &Runner::SetPrinter},
      {"printer chosen TEXT", &Runner::SetPrinter},
      {"printer preview printed|closed", &Runner::SetPrinter},
      {"joystick none|plugged|unplugged", &Runner::SetJoystick},
      {"joystick axes zr|z|r|none", &Runner::SetJoystickAxes},
      {"joystick x|y|z|r|buttons|error NUMBER ...", &Runner::MoveJoystick},
      {"stick plug TEXT COUNT COUNT COUNT", &Runner::PlugStick},
      {"stick unplug TEXT", &Runner::UnplugStick},
      {"stick button TEXT COUNT down|up", &Runner::MoveStick},
      {"stick hat TEXT COUNT middle|up|right|down|left", &Runner::MoveStick},
      {"stick axis TEXT COUNT COUNT", &Runner::MoveStick},
      {"keys uinput|xtest|none [TEXT] [TEXT]", &Runner::SetKeys},
      {"keys stop", &Runner::StopKeys},
      {"keys break TEXT", &Runner::BreakKeys},
      {"user leaves|returns", &Runner::TurnUser},
      {"user gone TEXT", &Runner::LoseUser},
      {"lock caps|num NUMBER|unknown", &Runner::SetLock},
      {"program runs|ends|abandoned", &Runner::SetProgram},
      {"program fails NUMBER", &Runner::SetProgram},
      {"desktop dark", &Runner::DarkenDesktop},
      {"sysinfo none", &Runner::SetSystemInformation},
      {"hostfolder TEXT", &Runner::HostFolder},
      {"without FirstTimeUsed|ShowTips", &Runner::LeaveOut},
      {"start [TEXT]", &Runner::Start},
      {"close FORM", &Runner::Close, Needs::Program},
      {"killed", &Runner::Killed, Needs::Start},
      {"wait TIME", &Runner::Wait, Needs::Start},
      {"click CONTROL", &Runner::Click, Needs::Program},
      {"click TEXT in FORM", &Runner::Click, Needs::Program},
      {"dblclick CONTROL [TEXT]", &Runner::DoubleClick, Needs::Program},
      {"rightclick CONTROL [TEXT]", &Runner::RightClick, Needs::Program},
      {"point CONTROL", &Runner::Point, Needs::Program},
      {"focus CONTROL", &Runner::Focus, Needs::Program},
      {"pick CONTROL TEXT", &Runner::Pick, Needs::Program},
      {"type CONTROL TEXT", &Runner::Type, Needs::Program},
      {"key CONTROL KEY [COUNT]", &Runner::PressKey, Needs::Program},
      {"keydown CONTROL KEY", &Runner::KeyDown, Needs::Program},
      {"keyup CONTROL KEY", &Runner::KeyUp, Needs::Program},
      {"resize FORM NUMBER NUMBER", &Runner::Resize, Needs::Program},
      {"drag CONTROL TEXT CONTROL COUNT", &Runner::Drag, Needs::Program},
      {"mouse down|move|up CONTROL COUNT NUMBER NUMBER [COUNT]", &Runner::Mouse, Needs::Program},
      {"set value TEXT TEXT|:", &Runner::SetValue, Needs::Program},
      {"set PROPERTY TEXT|:", &Runner::Set, Needs::Program},
      {"call Editor.ExtractButtonDefinition TEXT", &Runner::Call, Needs::Program},
      {"call Editor.Form_Activate|Editor.HardwareHasChanged|Editor.DamnFontWasChanged|"
       "Editor.DeleteUndosFromMemory|Editor.EmergencySaveFiles|Editor.CheckAtLineBeginning|Mum.Activated|"
       "Mum.MakeFlat|"
       "Mum.ColoursSortOut|Mum.ReleaseGradientInEmergency|Settings.SaveOptions|KeyTestForm.TurnOffCapsLOCK",
       &Runner::Call, Needs::Program},
      {"choose TEXT", &Runner::Choose},
      {"answer OK|Yes|No|Cancel|later", &Runner::AnswerBox},
      {"clipboard empty", &Runner::FillClipboard},
      {"clipboard text|rtf TEXT|:", &Runner::FillClipboard},
      {"expect value TEXT TEXT|:", &Runner::ExpectValue, Needs::Program},
      {"expect box TEXT [none|information|question|exclamation] [No] :", &Runner::ExpectBox, Needs::Start},
      {"expect box TEXT [TEXT] [none|information|question|exclamation] [No]", &Runner::ExpectBox,
       Needs::Start},
      {"expect dialog title|filter|folder|fileName TEXT", &Runner::ExpectDialog, Needs::Start},
      {"expect file TEXT [empty]", &Runner::ExpectFile, Needs::Start},
      {"expect file TEXT [open] :", &Runner::ExpectFile, Needs::Start},
      {"expect bytes TEXT HEX...", &Runner::ExpectBytes, Needs::Start},
      {"expect same TEXT TEXT", &Runner::ExpectSame, Needs::Start},
      {"expect no file TEXT", &Runner::ExpectNoFile, Needs::Start},
      {"expect no form FORM", &Runner::ExpectNoForm, Needs::Program},
      {"expect no list NAME", &Runner::ExpectNoList, Needs::Program},
      {"expect no box", &Runner::ExpectNoBox, Needs::Start},
      {"expect no dialog", &Runner::ExpectNoDialog, Needs::Start},
      {"expect no printing", &Runner::ExpectNoPrinting, Needs::Start},
      {"expect folder TEXT", &Runner::ExpectFolder, Needs::Start},
      {"expect ini TEXT TEXT TEXT", &Runner::ExpectIni, Needs::Start},
      {"expect colour CONTROL COUNT COUNT COUNT", &Runner::ExpectColour, Needs::Program},
      {"expect colours CONTROL :", &Runner::ExpectColours, Needs::Program},
      {"expect ended", &Runner::ExpectEnded, Needs::Start},
      {"expect running", &Runner::ExpectRunning, Needs::Start},
      {"expect printed :", &Runner::ExpectPrinted, Needs::Start},
      {"expect clipboard TEXT|:", &Runner::ExpectClipboard, Needs::Start},
      {"expect help TEXT", &Runner::ExpectHelp, Needs::Start},
      {"expect opened TEXT", &Runner::ExpectOpened, Needs::Start},
      {"expect popup TEXT", &Runner::ExpectPopUp, Needs::Start},
      {"expect focus CONTROL", &Runner::ExpectFocus, Needs::Program},
      {"expect form FORM", &Runner::ExpectForm, Needs::Program},
      {"expect point CONTROL NUMBER NUMBER COUNT", &Runner::ExpectPoint, Needs::Program},
      {"expect sent TEXT", &Runner::ExpectSent, Needs::Start},
      {"expect nothing sent", &Runner::ExpectNothingSent, Needs::Start},
      {"expect lock caps|num NUMBER", &Runner::ExpectLock, Needs::Start},
      {"expect run TEXT [TEXT] [waited|normal|maximised]", &Runner::ExpectRun, Needs::Start},
      {"expect PROPERTY TEXT|:", &Runner::ExpectProperty, Needs::Program},
      {"expect TEXT in FORM NAME TEXT|:", &Runner::ExpectPropertyOf, Needs::Program},
  };
  return sentences;
}

std::vector<std::string_view> Runner::Shapes() {
  std::vector<std::string_view> shapes;
  for (const Sentence& sentence : Sentences()) shapes.emplace_back(sentence.shape);
  return shapes;
}

const Runner::Sentence* Runner::SentenceOf(const Line& line) {
  const auto fits = [&line](const Sentence& sentence) { return Fits(line, sentence.shape); };
  const auto found = std::find_if(Sentences().begin(), Sentences().end(), fits);
  return found == Sentences().end() ? nullptr : &*found;
}

/// Holds every line against the shapes, and tells those that fit none.
void Runner::HoldAgainstShapes() {
  for (const Line& line : lines_) {
    line_ = &line;
    if (line.isOpen) Fail("a quotation mark has no other");
    if (SentenceOf(line)) continue;
    std::string shapes;
    for (const Sentence& sentence : Sentences()) {
      if (Verb(sentence.shape) == line.words[0]) shapes += "\n      " + std::string(sentence.shape);
    }
    Fail(shapes.empty() ? "no line begins so" : "it reads otherwise:" + shapes);
  }
}

void Runner::Step(const Line& line) {
  const Sentence& sentence = *SentenceOf(line);
  if (!platform_ && sentence.needs != Needs::Nothing) {
    --nextLine_;  // it comes next, which may be inside a modal form that the start shows
    return StartProgram("");
  }
  if (!application_ && sentence.needs == Needs::Program) throw Stop{"no program runs"};
  if (IsBlocked(line, sentence)) throw Stop{"a modal form is in front"};
  (this->*sentence.command)(line);
  if (driver_) driver_->Settle();
}

/// Whether the line works on a form while another one is modal.
bool Runner::IsBlocked(const Line& line, const Sentence& sentence) const {
  const std::string& verb = line.words[0];
  if (sentence.needs != Needs::Program || verb == "call" || verb == "expect") return false;
  const std::vector<Form*> forms = application_->Forms();
  const auto modal = std::find_if(forms.rbegin(), forms.rend(),
                                  [](const Form* form) { return form->Modal && form->Visible; });
  if (modal == forms.rend()) return false;
  if (IsByCaption(line)) return line.words[kFormOfCaption] != (*modal)->Name();
  const std::string& control = line.words[line.words[0] == "mouse" ? 2 : 1];
  return control != "value" && control.substr(0, control.find('.')) != (*modal)->Name();
}

void Runner::Fail(const std::string& what) {
  failures_.push_back(std::to_string(line_->number) + ": " + line_->source + "\n    " + ToUtf8(what));
}

/// Of long texts only the lines around the first difference are told.
void Runner::Compare(const std::string& wanted, const std::string& found) {
  if (wanted == found) return;
  constexpr std::size_t kShort = 300;
  const auto differs = std::mismatch(wanted.begin(), wanted.end(), found.begin(), found.end()).first;
  const auto at = static_cast<std::size_t>(differs - wanted.begin());
  const std::size_t from =
      std::max(wanted.size(), found.size()) <= kShort || at < kShort / 3 ? 0 : at - kShort / 3;
  const auto part = [from](const std::string& text) {
    return text.substr(std::min(from, text.size()), kShort);
  };
  Fail("expected: " + part(wanted) + "\n    found:    " + part(found));
}

const std::string& Runner::Word(const Line& line, std::size_t index) {
  if (index >= line.words.size()) throw Stop{"a word is missing"};
  return line.words[index];
}

int Runner::Number(const Line& line, std::size_t index) {
  int number = 0;
  if (!ParseText(Word(line, index), number)) throw Stop{Word(line, index) + " is no whole number"};
  return number;
}

/// The word at `index`, or the indented lines where there are any.
std::string Runner::Wanted(const Line& line, std::size_t index) {
  return line.hasBlock ? Joined(line.block) : Word(line, index);
}

Component* Runner::Find(const std::string& path) {
  if (!application_) throw Stop{"no program runs"};
  const std::size_t dot = std::min(path.find('.'), path.size());
  Form* form = application_->FindForm(path.substr(0, dot));
  if (!form) throw Stop{"no such form is loaded"};
  Component* found = dot < path.size() ? form->Resolve(std::string_view(path).substr(dot + 1)) : form;
  if (!found) throw Stop{"there is no " + path};
  return found;
}

/// The one control with the caption. Of several that one is meant which is not hidden.
Component* Runner::FindByCaption(const std::string& form, const std::string& caption) {
  std::vector<Component*> found = WithCaption(*Find(form), caption);
  const auto hidden =
      std::stable_partition(found.begin(), found.end(), [](Component* each) { return IsVisible(*each); });
  if (hidden != found.begin()) found.erase(hidden, found.end());
  if (found.empty()) throw Stop{"there is no \"" + caption + "\" in " + form};
  if (found.size() == 1) return found.front();
  std::string names;
  for (const Component* const each : found) names += " " + each->FullName();
  throw Stop{"it is not the only one of that name:" + names};
}

Runner::Found Runner::FindProperty(const std::string& path) {
  const std::size_t dot = path.rfind('.');
  if (dot == std::string::npos) throw Stop{"a property is missing"};
  Component& component = *Find(path.substr(0, dot));
  PropertyBase* const property = component.FindProperty(path.substr(dot + 1));
  if (!property) throw Stop{"there is no property " + path};
  return {component, *property};
}

}  // namespace tarvik::session
