#include "session/Runner.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/Editor.h"
#include "session/Grammar.h"
#include "text/CodePage.h"
#include "tools/help/HelpFile.h"
#include "tools/testing/KeyTestForm.h"

namespace tarvik::session {
namespace {

constexpr const char* kFolder = "c:\\tarvik";

/// Thrown out of a command that cannot go on; its text is the failure.
struct Stop {
  std::string text;
};

std::string FromHex(const std::vector<std::string>& words, std::size_t first) {
  std::string bytes;
  for (std::size_t i = first; i < words.size(); ++i)
    bytes += static_cast<char>(std::stoi(words[i], nullptr, 16));
  return bytes;
}

std::string ToHex(std::string_view bytes) {
  std::ostringstream text;
  text << std::hex << std::uppercase;
  for (const char c : bytes) text << (static_cast<unsigned char>(c) < 16 ? "0" : "") << (c & 0xFF) << ' ';
  std::string result = text.str();
  if (!result.empty()) result.pop_back();
  return result;
}

std::string FileContent(const Line& line) {
  const bool open = line.words.back() == "open";  // the last line has no line end
  return line.block.empty() ? "" : Joined(line.block) + (open ? "" : "\r\n");
}

/// "click TEXT in FORM": the place of the form.
constexpr std::size_t kFormOfCaption = 3;

bool IsByCaption(const Line& line) { return line.words.size() > kFormOfCaption && line.words[2] == "in"; }

/// What a user reads of a caption: no mnemonic, and no blanks around it.
std::string Legible(const std::string& caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    text += caption[i];
  }
  const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
  return text.substr(first, text.find_last_not_of(' ') + 1 - first);
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
      {"joystick none|plugged|unplugged", &Runner::SetJoystick},
      {"joystick axes zr|z|r|none", &Runner::SetJoystickAxes},
      {"joystick x|y|z|r|buttons|error NUMBER ...", &Runner::MoveJoystick},
      {"lock caps|num NUMBER|unknown", &Runner::SetLock},
      {"program runs|ends|abandoned", &Runner::SetProgram},
      {"program fails NUMBER", &Runner::SetProgram},
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

template <class T>
T* Runner::FindAs(const std::string& path) {
  auto* found = dynamic_cast<T*>(Find(path));
  if (!found) throw Stop{path + " is of another kind"};
  return found;
}

Runner::Found Runner::FindProperty(const std::string& path) {
  const std::size_t dot = path.rfind('.');
  if (dot == std::string::npos) throw Stop{"a property is missing"};
  Component& component = *Find(path.substr(0, dot));
  PropertyBase* const property = component.FindProperty(path.substr(dot + 1));
  if (!property) throw Stop{"there is no property " + path};
  return {component, *property};
}

// Before the start.

void Runner::File(const Line& line) { files_.Put(Word(line, 1), FileContent(line)); }

/// repeat PATH COUNT [open]: the indented lines that many times over, each % in them the number of the time;
/// where the file is open all in one line.
void Runner::Repeat(const Line& line) {
  const bool open = line.words.back() == "open";
  std::string content;
  for (int time = 1; time <= Number(line, 2); ++time) {
    for (const std::string& text : line.block) {
      for (const char c : text) content += c == '%' ? TextOf(time) : std::string(1, c);
      if (!open) content += "\r\n";
    }
  }
  files_.Put(Word(line, 1), content);
}

void Runner::Bytes(const Line& line) { files_.Put(Word(line, 1), FromHex(line.words, 2)); }
void Runner::Folder(const Line& line) { files_.PutFolder(Word(line, 1)); }
void Runner::ReadOnly(const Line& line) { files_.SetReadOnly(Word(line, 1)); }
void Runner::Unreadable(const Line& line) { files_.SetUnreadable(Word(line, 1)); }
void Runner::Remove(const Line& line) { files_.Remove(Word(line, 1)); }

void Runner::Ini(const Line& line) {
  ProfileFile profile(files_, std::string(kFolder) + "\\tarvik.ini");
  if (!profile.Write(Word(line, 1), Word(line, 2), Word(line, 3)))
    throw Stop{"the settings file can't be written"};
}

/// without FirstTimeUsed|ShowTips: the settings file says nothing of it.
void Runner::LeaveOut(const Line& line) { defaults_.erase(Word(line, 1)); }

void Runner::DiskRoom(const Line& line) {
  if (Word(line, 1) == "enough") return files_.StopFailing();
  files_.FailAfter(static_cast<std::size_t>(std::stoul(Word(line, 1))));
}

/// The choice in the printer's set-up is a name, "cancel" or "fails".
void Runner::SetPrinter(const Line& line) {
  const std::string& what = Word(line, 1);
  const auto number = [&] { return std::stoul(Word(line, 2)); };
  if (what == "none") {
    outside_.printer.callsLeft = 0;
  } else if (what == "gone") {
    outside_.printer.callsLeft = number();
  } else if (what == "lines") {
    outside_.printer.linesPerPage = number();
  } else {
    outside_.printer.choice = Word(line, 2);
  }
}

/// A stick that is named in any way but "none" is there.
void Runner::SetJoystick(const Line& line) {
  ScriptedJoystick& stick = outside_.joystick;
  const std::string& what = Word(line, 1);
  stick.isThere = what != "none";
  if (what == "unplugged") stick.error = joystick::kUnplugged;
  if (what == "plugged") stick.error = 0;
}

/// What it has beside x and y.
void Runner::SetJoystickAxes(const Line& line) {
  const std::string& axes = Word(line, 2);
  outside_.joystick.isThere = true;
  outside_.joystick.caps = {axes.find('z') != std::string::npos, axes == "r" || axes == "zr"};
}

/// Where its axes are, which buttons are down as a mask, and what reading it gives.
void Runner::MoveJoystick(const Line& line) {
  ScriptedJoystick& stick = outside_.joystick;
  stick.isThere = true;
  const std::map<std::string, std::function<void(int)>> parts = {
      {"error", [&](int number) { stick.error = number; }},
      {"x", [&](int number) { stick.info.x = number; }},
      {"y", [&](int number) { stick.info.y = number; }},
      {"z", [&](int number) { stick.info.z = number; }},
      {"r", [&](int number) { stick.info.r = number; }},
      {"buttons", [&](int mask) { stick.info.buttons = static_cast<unsigned>(mask); }},
  };
  for (std::size_t i = 1; i + 1 < line.words.size(); i += 2) parts.at(line.words[i])(Number(line, i + 1));
}

/// lock caps|num NUMBER|unknown
void Runner::SetLock(const Line& line) {
  const int code = Word(line, 1) == "caps" ? kCapsLock : kNumLock;
  outside_.keyboard.locks.erase(code);
  if (Word(line, 2) != "unknown") outside_.keyboard.locks[code] = Number(line, 2);
}

/// program runs: the next one that is waited for does not end by itself; ends|abandoned: what becomes of it;
/// fails NUMBER: the next one does not start.
void Runner::SetProgram(const Line& line) {
  const std::map<std::string, ProgramState> states = {
      {"runs", ProgramState::Running}, {"ends", ProgramState::Ended}, {"abandoned", ProgramState::Abandoned}};
  ScriptedPrograms& programs = outside_.programs;
  programs_.push_back(&line);
  const auto state = states.find(Word(line, 1));
  if (state != states.end()) {
    programs.state = state->second;
  } else {
    programs.fails = Number(line, 2);
  }
}

/// sysinfo none
void Runner::SetSystemInformation(const Line& line) {
  outside_.desktop.tellsAboutTheMachine = Word(line, 1) != "none";
}

/// hostfolder PATH: a folder of the host, which a drive can stand for
void Runner::HostFolder(const Line& line) { outside_.drives.there.insert(ToUtf8(Word(line, 1))); }

// The process.

void Runner::Start(const Line& line) {
  const std::string commandLine = line.words.size() > 1 ? line.words[1] : "";
  if (application_) {
    // A second process beside the first.
    Platform second = outside_.Process(files_, commandLine);
    Application(second).Start();
    return;
  }
  StartProgram(commandLine);
}

/// The settings file says what the runner has for it, unless it says something of its own.
void Runner::StartProgram(const std::string& commandLine) {
  ProfileFile profile(files_, std::string(kFolder) + "\\tarvik.ini");
  for (const auto& [key, value] : defaults_) {
    if (profile.GetString("FileLocations", key, "", 2).empty())
      Ignore(profile.Write("FileLocations", key, value));
  }
  platform_ = std::make_unique<Platform>(outside_.Process(files_, commandLine));
  application_ = std::make_unique<Application>(*platform_);
  driver_ = makeDriver_(*application_);
  formLoaded_ = application_->Loaded.Connect([this](Form& form) {
    poppedUp_.push_back(form.PopUp.Connect([this](std::string_view name) { popUp_ = name; }));
  });
  application_->Start();
}

void Runner::Close(const Line& line) { driver_->Close(*FindAs<Form>(Word(line, 1))); }

/// Nothing can die in the middle of one of its own handlers, which go on when this returns.
void Runner::Killed(const Line&) {
  if (depth_ > 1) throw Stop{"it can't be killed while a modal form, a box or a dialog is open"};
  elapsed_.clear();
  driver_.reset();
  application_.reset();
  outside_.instance.held = false;
}

void Runner::Wait(const Line& line) {
  const std::string& time = Word(line, 1);
  int left = std::stoi(time) * (time.ends_with("ms") ? 1 : 1000);
  while (application_) {
    std::vector<Timer*> running;
    int next = left;
    for (const Form* form : application_->Forms()) {
      for (Component* child : form->Children()) {
        auto* timer = dynamic_cast<Timer*>(child);
        if (!timer || !timer->Enabled || timer->Interval <= 0) continue;
        running.push_back(timer);
        next = std::min(next, timer->Interval - elapsed_[timer]);
      }
    }
    std::erase_if(elapsed_, [&](const auto& each) {
      return std::find(running.begin(), running.end(), each.first) == running.end();
    });
    left -= next;
    for (Timer* timer : running) elapsed_[timer] += next;
    for (Timer* timer : running) {
      if (elapsed_[timer] < timer->Interval) continue;
      elapsed_[timer] = 0;
      timer->Elapsed();
    }
    if (left == 0) return;
  }
}

// The user.

void Runner::Click(const Line& line) {
  Component* const control =
      IsByCaption(line) ? FindByCaption(Word(line, kFormOfCaption), Word(line, 1)) : Find(Word(line, 1));
  if (!driver_->Click(*control)) throw Stop{"it is disabled or hidden"};
}
void Runner::DoubleClick(const Line& line) {
  Component* control = Find(Word(line, 1));
  if (line.words.size() > 2) driver_->Pick(*control, ItemIndex(*control, line.words[2]));
  if (!driver_->DoubleClick(*control)) throw Stop{"it can't be double clicked"};
}
void Runner::RightClick(const Line& line) {
  Component* control = Find(Word(line, 1));
  if (line.words.size() > 2) driver_->Pick(*control, ItemIndex(*control, line.words[2]));
  if (!driver_->RightClick(*control)) throw Stop{"it can't be clicked"};
}
void Runner::Focus(const Line& line) { FindAs<Control>(Word(line, 1))->SetFocus(); }

int Runner::ItemIndex(Component& control, const std::string& item) {
  std::vector<std::string> items;
  if (auto* list = dynamic_cast<ListBox*>(&control)) items = list->List();
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) items = combo->List();
  if (auto* entry = dynamic_cast<EntryBox*>(&control)) items = entry->List();
  if (auto* pages = dynamic_cast<TabPages*>(&control)) {
    for (int i = 0; i < pages->Count(); ++i) items.push_back(pages->Pages(i).Caption);
  }
  if (auto* strip = dynamic_cast<TabStrip*>(&control)) {
    for (int i = 1; i <= strip->Count(); ++i) items.push_back(strip->Tabs(i).Caption);
  }
  int index = 0;
  const bool isIndex = item.starts_with('#') && ParseText(std::string_view(item).substr(1), index);
  if (isIndex && index >= 0 && index < static_cast<int>(items.size())) return index;
  const auto found = std::find(items.begin(), items.end(), item);
  if (isIndex || found == items.end()) throw Stop{"there is no item " + item};
  return static_cast<int>(found - items.begin());
}

void Runner::Pick(const Line& line) {
  Component* control = Find(Word(line, 1));
  if (!driver_->Pick(*control, ItemIndex(*control, Word(line, 2)))) throw Stop{"it can't be picked"};
}

void Runner::Type(const Line& line) {
  if (!driver_->Type(*FindAs<Control>(Word(line, 1)), Word(line, 2))) throw Stop{"it isn't on show"};
}
/// key CONTROL CHORD [COUNT]
void Runner::PressKey(const Line& line) {
  const int count = line.words.size() > 3 ? Number(line, 3) : 1;
  for (int i = 0; i < count; ++i) {
    if (!driver_->PressKey(*Find(Word(line, 1)), Word(line, 2))) throw Stop{"nothing takes the key"};
  }
}

void Runner::KeyDown(const Line& line) {
  if (!driver_->KeyDown(*Find(Word(line, 1)), Word(line, 2))) throw Stop{"nothing takes the key"};
}
void Runner::KeyUp(const Line& line) {
  if (!driver_->KeyUp(*Find(Word(line, 1)), Word(line, 2))) throw Stop{"nothing takes the key"};
}

/// resize FORM WIDTH HEIGHT: inside, in twips
void Runner::Resize(const Line& line) {
  driver_->Resize(*FindAs<Form>(Word(line, 1)), std::stof(Word(line, 2)), std::stof(Word(line, 3)));
}

void Runner::Drag(const Line& line) {
  auto* list = FindAs<ListBox>(Word(line, 1));
  driver_->Pick(*list, ItemIndex(*list, Word(line, 2)));
  driver_->Drop(*list, *FindAs<Pane>(Word(line, 3)), std::stoul(Word(line, 4)));
}

/// The button's number, the place in twips, and the shift state.
void Runner::Mouse(const Line& line) {
  const std::map<std::string_view, Pointer> acts = {
      {"down", Pointer::Down}, {"move", Pointer::Move}, {"up", Pointer::Up}};
  const int shift = line.words.size() > 6 ? Number(line, 6) : 0;
  driver_->Mouse(acts.at(Word(line, 1)), *FindAs<Control>(Word(line, 2)),
                 {Number(line, 3), shift, {std::stof(Word(line, 4))}, {std::stof(Word(line, 5))}});
}

void Runner::Set(const Line& line) {
  if (!FindProperty(Word(line, 1)).property.FromText(Wanted(line, 2))) throw Stop{"it can't be set to that"};
}

void Runner::SetValue(const Line& line) {
  PropertyBase* const property = application_->FindValue(Word(line, 2));
  if (!property) throw Stop{"there is no such value"};
  if (!property->FromText(Wanted(line, 3))) throw Stop{"it can't be set to that"};
}

/// The named operations that no control reaches.
void Runner::Call(const Line& line) {
  const auto editor = [this] { return FindAs<Editor>("Editor"); };
  const std::map<std::string, std::function<void()>> operations = {
      {"Editor.ExtractButtonDefinition", [&] { editor()->ExtractButtonDefinition(Word(line, 2)); }},
      {"KeyTestForm.TurnOffCapsLOCK", [&] { FindAs<KeyTestForm>("KeyTestForm")->TurnOffCapsLOCK(); }},
      {"Editor.HardwareHasChanged", [&] { editor()->HardwareHasChanged(); }},
      {"Editor.DamnFontWasChanged", [&] { editor()->DamnFontWasChanged(); }},
      {"Editor.DeleteUndosFromMemory", [&] { editor()->DeleteUndosFromMemory(); }},
      {"Editor.Form_Activate", [&] { editor()->Form_Activate(); }},
      {"Editor.EmergencySaveFiles", [&] { editor()->EmergencySaveFiles(); }},
      {"Editor.CheckAtLineBeginning", [&] { editor()->CheckAtLineBeginning(); }},
      {"Mum.ReleaseGradientInEmergency", [&] { application_->mum().ReleaseGradientInEmergency(); }},
      {"Mum.Activated", [&] { application_->Activated(application_->mum()); }},
      {"Mum.MakeFlat", [&] { application_->mum().MakeFlat(); }},
      {"Mum.ColoursSortOut", [&] { application_->mum().ColoursSortOut(); }},
      {"Settings.SaveOptions", [&] { application_->workbench.settings.SaveOptions(); }},
  };
  operations.at(Word(line, 1))();
}

/// choose PATH | cancel | later: the next file dialog stays open until a choice comes.
void Runner::Choose(const Line& line) {
  if (Word(line, 1) == "later") return Hold(outside_.dialogs.holdDialog, heldDialogs_, line);
  chosen_.push_back(&line);
  outside_.dialogs.choices.push_back(line.words[1]);
}

void Runner::Hold(bool& hold, Prepared& held, const Line& line) {
  if (hold) throw Stop{"what was held before has not come yet"};
  hold = true;
  held.push_back(&line);
}

/// answer OK | Yes | No | Cancel | later: the next box stays open until an answer comes.
void Runner::AnswerBox(const Line& line) {
  if (Word(line, 1) == "later") return Hold(outside_.dialogs.holdBox, heldBoxes_, line);
  answered_.push_back(&line);
  const std::map<std::string, Answer> answers = {
      {"OK", Answer::Ok}, {"Yes", Answer::Yes}, {"No", Answer::No}, {"Cancel", Answer::Cancel}};
  outside_.dialogs.answers.push_back(answers.at(Word(line, 1)));
}

/// clipboard text|rtf "TEXT": what another program puts there; clipboard empty.
void Runner::FillClipboard(const Line& line) {
  const std::string& kind = Word(line, 1);
  const std::string content = kind == "empty" ? "" : Wanted(line, 2);
  outside_.clipboard.PutFromOutside(kind == "text" ? content : "", kind == "rtf" ? content : "");
}

// What is seen.

void Runner::ExpectClipboard(const Line& line) { Compare(Wanted(line, 2), outside_.clipboard.Text().text); }

/// expect help "FILE TOPIC", in the order they were asked for
void Runner::ExpectHelp(const Line& line) {
  if (outside_.help.shown.empty()) throw Stop{"no help was asked for"};
  const std::string shown = outside_.help.shown.front();
  Compare(Word(line, 2), shown);
  outside_.help.shown.pop_front();
  const std::string asked = shown.substr(shown.find(' ') + 1);
  const HelpFile file(files_.Content(std::string(kFolder) + "\\tarvik.hlp").value_or(""));
  const bool number = asked.find_first_not_of("0123456789") == std::string::npos;
  if (number ? !file.WithContext(std::stoi(asked)) : !file.WithKeyword(asked))
    throw Stop{"no topic is about that"};
}

/// expect opened PATH, in the order in which the desktop was asked to open them
void Runner::ExpectOpened(const Line& line) {
  if (outside_.desktop.opened.empty()) throw Stop{"nothing was opened"};
  Compare(Word(line, 2), outside_.desktop.opened.front());
  outside_.desktop.opened.pop_front();
}

/// expect run "COMMAND LINE" [FOLDER [waited|normal|maximised]], in the order in which they were started
void Runner::ExpectRun(const Line& line) {
  if (outside_.programs.started.empty()) throw Stop{"nothing was started"};
  const ProgramStart run = outside_.programs.started.front();
  outside_.programs.started.pop_front();
  const std::string how = run.style == WindowStyle::Maximised ? "maximised"
                          : run.waited                        ? "waited"
                                                              : "normal";
  Compare(Word(line, 2), run.commandLine);
  if (line.words.size() > 3) Compare(line.words[3], run.folder);
  if (line.words.size() > 4) Compare(line.words[4], how);
}

/// expect popup NAME: the pop-up menu that came last
void Runner::ExpectPopUp(const Line& line) { Compare(Word(line, 2), popUp_); }

/// expect point PICTURE X Y COLOUR: what is drawn there, in the picture's units
void Runner::ExpectPoint(const Line& line) {
  auto* const picture = FindAs<PlotBox>(Word(line, 2));
  Compare(Word(line, 5),
          TextOf(driver_->ColourAt(*picture, std::stof(Word(line, 3)), std::stof(Word(line, 4)))));
}

/// expect lock caps|num NUMBER
void Runner::ExpectLock(const Line& line) {
  const int code = Word(line, 2) == "caps" ? kCapsLock : kNumLock;
  Compare(Word(line, 3), TextOf(outside_.keyboard.GetKeyState(code).value_or(-1)));
}

void Runner::ExpectFocus(const Line& line) {
  if (!driver_->HasFocus(*FindAs<Control>(Word(line, 2)))) Fail("it hasn't the focus");
}

/// expect form NAME: it is loaded and on show
void Runner::ExpectForm(const Line& line) {
  const Form* const form = application_->FindForm(Word(line, 2));
  if (!form || !form->Visible) Fail("it isn't on show");
}

void Runner::ExpectProperty(const Line& line) {
  const Found found = FindProperty(line.words[1]);
  Compare(Wanted(line, 2), driver_->Read(found.component, found.property));
}

/// expect CAPTION in FORM PROPERTY TEXT
void Runner::ExpectPropertyOf(const Line& line) {
  const Component& component = *FindByCaption(Word(line, kFormOfCaption), Word(line, 1));
  const PropertyBase* const property = component.FindProperty(Word(line, kFormOfCaption + 1));
  if (!property) throw Stop{"it has no property " + Word(line, kFormOfCaption + 1)};
  Compare(Wanted(line, kFormOfCaption + 2), driver_->Read(component, *property));
}

void Runner::ExpectValue(const Line& line) {
  const PropertyBase* const property = application_->FindValue(Word(line, 2));
  if (!property) throw Stop{"there is no such value"};
  Compare(Wanted(line, 3), property->ToText());
}

/// expect box TITLE [TEXT [none|information|question|exclamation [No]]], the text also as a block below: No
/// is the button that Enter presses
void Runner::ExpectBox(const Line& line) {
  constexpr const char* kIcons[] = {"none", "information", "question", "exclamation"};
  if (outside_.dialogs.boxes.empty()) throw Stop{"there was no box"};
  const MessageBox box = outside_.dialogs.boxes.front();
  outside_.dialogs.boxes.pop_front();
  Compare(Word(line, 2), box.title);
  const std::size_t icon = line.hasBlock ? 3 : 4;
  if (line.hasBlock || line.words.size() > 3) Compare(Wanted(line, 3), box.text);
  if (line.words.size() > icon) Compare(line.words[icon], kIcons[static_cast<int>(box.icon)]);
  if (line.words.size() > icon + 1) Compare(line.words[icon + 1], box.preset == Answer::No ? "No" : "");
}

/// expect dialog title|filter|folder|fileName TEXT, of the last file dialog
void Runner::ExpectDialog(const Line& line) {
  if (outside_.dialogs.requests.empty()) throw Stop{"there was no dialog"};
  const FileRequest& request = outside_.dialogs.requests.back();
  const std::map<std::string, std::string> parts = {{"title", request.title},
                                                    {"filter", request.filter},
                                                    {"folder", request.folder},
                                                    {"fileName", request.fileName}};
  Compare(Word(line, 3), parts.at(Word(line, 2)));
}

void Runner::ExpectFile(const Line& line) {
  const auto content = files_.Content(Word(line, 2));
  if (!content) throw Stop{"there is no such file"};
  if (line.hasBlock || line.words.back() == "empty") Compare(FileContent(line), *content);
}

void Runner::ExpectBytes(const Line& line) {
  const auto content = files_.Content(Word(line, 2));
  if (!content) throw Stop{"there is no such file"};
  Compare(ToHex(FromHex(line.words, 3)), ToHex(*content));
}

/// expect same PATH PATH: two files of the same bytes
void Runner::ExpectSame(const Line& line) {
  const auto wanted = files_.Content(Word(line, 3));
  const auto found = files_.Content(Word(line, 2));
  if (!wanted || !found) throw Stop{"there is no such file"};
  Compare(*wanted, *found);
}

void Runner::ExpectNoFile(const Line& line) {
  if (files_.FileExists(Word(line, 3))) Fail("it is there");
}
void Runner::ExpectNoForm(const Line& line) {
  if (application_->FindForm(Word(line, 3))) Fail("it is loaded");
}
/// A member of one of the editor's arrays of controls or menus, of which the first is always there.
void Runner::ExpectNoList(const Line& line) {
  const std::string& name = Word(line, 3);
  if (Find("Editor")->Resolve(name)) Fail("it is there");
  if (!Find("Editor")->Resolve(name.substr(0, name.find('(')) + "(0)")) throw Stop{"there is no such list"};
}
/// All boxes that came have been expected.
void Runner::ExpectNoBox(const Line&) {
  if (!outside_.dialogs.boxes.empty()) Fail("there is \"" + outside_.dialogs.boxes.front().title + "\"");
}
void Runner::ExpectNoDialog(const Line&) {
  if (!outside_.dialogs.requests.empty()) Fail("there was one");
}
void Runner::ExpectNoPrinting(const Line&) {
  if (!outside_.printer.record.empty()) Fail(Joined(outside_.printer.record));
}

/// What was printed since the last time that this was asked.
void Runner::ExpectPrinted(const Line& line) {
  Compare(Joined(line.block), Joined(std::exchange(outside_.printer.record, {})));
}

void Runner::ExpectFolder(const Line& line) {
  if (!files_.FolderExists(Word(line, 2))) Fail("it isn't there");
}

void Runner::ExpectIni(const Line& line) {
  const ProfileFile profile(files_, std::string(kFolder) + "\\tarvik.ini");
  Compare(Word(line, 4), profile.GetString(Word(line, 2), Word(line, 3), "(missing)", 1000));
}

void Runner::ExpectColour(const Line& line) {
  const auto* pane = FindAs<Pane>(Word(line, 2));
  const std::size_t start = std::stoul(Word(line, 3));
  const std::size_t length = std::stoul(Word(line, 4));
  if (start + length > pane->Characters().size()) throw Stop{"the text ends before that"};
  for (std::size_t i = start; i < start + length; ++i) {
    const std::string found = TextOf(pane->Content().colours.At(i));
    if (found != Word(line, 5)) return Fail("position " + TextOf(i) + " has the colour " + found);
  }
}

std::string Runner::ColourLetters(const Pane& pane, std::size_t start, std::size_t length) const {
  const Settings& settings = application_->workbench.settings;
  const std::map<Colour, char> letters = {{settings.BTNColour, 'B'},     {settings.SlashColour, 'S'},
                                          {settings.RAWColour, 'R'},     {settings.MiscellaneousColour, 'M'},
                                          {settings.RemStatements, 'C'}, {kBlack, '.'}};
  std::string result;
  for (std::size_t i = start; i < start + length; ++i) {
    const auto letter = letters.find(pane.Content().colours.At(i));
    result += letter == letters.end() ? '?' : letter->second;
  }
  return result;
}

/// Pairs of lines: a line of the text, which is looked for from the place of the last one on, and its
/// letters.
void Runner::ExpectColours(const Line& line) {
  const auto* pane = FindAs<Pane>(Word(line, 2));
  const std::string_view text = pane->Characters();
  std::size_t from = 0;
  if (line.block.size() % 2 != 0) throw Stop{"a line has no letters below it"};
  for (std::size_t i = 0; i + 1 < line.block.size(); i += 2) {
    const std::string& wanted = line.block[i];
    std::size_t at = text.find(wanted, from);
    while (at != std::string_view::npos && at > 0 && text[at - 1] != '\n') at = text.find(wanted, at + 1);
    if (at == std::string_view::npos) throw Stop{"there is no line " + wanted};
    Compare(wanted + "\n              " + line.block[i + 1],
            wanted + "\n              " + ColourLetters(*pane, at, line.block[i + 1].size()));
    from = at + wanted.size();
  }
}

void Runner::ExpectEnded(const Line&) {
  if (application_) Fail("the program still runs");
}
void Runner::ExpectRunning(const Line&) {
  if (!application_) Fail("the program has ended");
}

}  // namespace tarvik::session
