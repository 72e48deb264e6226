#include "tools/testing/TryOut.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "text/LineEnds.h"

namespace tarvik {
namespace {

using play::EventKind;
using play::OutputKind;

struct SpeedRow {
  const char* name;
  double factor;  ///< 0 for time that stands still
};

constexpr SpeedRow kSpeeds[] = {
    {"Step by step", 0}, {"1/10", 0.1}, {"1/4", 0.25}, {"1/2", 0.5},
    {"Real time", 1},    {"2 x", 2},    {"10 x", 10},
};
constexpr int kRealTime = 4;
/// The longest that time is made up for, in milliseconds.
constexpr int kLongestPause = 1000;
constexpr int kPerCent = 100;
constexpr const char* kRunFilter = "Run (*.txt)|*.txt|All files (*.*)|*.*";
constexpr std::string_view kDrawings[] = {"stick-flcs", "stick-fcs", "throttle-tqs", "throttle-wcs"};
constexpr std::string_view kMouseButtons[] = {"left", "middle", "right"};

/// The name by which the drawings know a label: "HAT-0".
std::string IdOf(const tables::HardwareRow& row) {
  std::string id(row.array);
  if (row.index >= 0) id.append("-").append(std::to_string(row.index));
  return id;
}

std::string NameOf(const tables::HardwareRow& row) {
  std::string name(row.array);
  if (row.index >= 0) name.append("(").append(std::to_string(row.index)).append(")");
  return name;
}

/// Neither is pressed or moved.
bool IsSetting(const tables::HardwareRow& row) {
  return row.array == "ROTARY" && (row.caption == "PORT" || row.caption == "SWAPTG");
}

/// The way in which a hat is pressed there; 0 in its middle.
char DirectionOf(double x, double y) {
  constexpr double kMiddle = 0.15;
  if (std::hypot(x, y) < kMiddle) return 0;
  if (std::abs(x) > std::abs(y)) return x > 0 ? 'R' : 'L';
  return y > 0 ? 'D' : 'U';
}

/// The corner of a hat that is pressed there; empty on the straight ways and in the middle.
std::string_view CornerOf(double x, double y) {
  constexpr double kSteep = 2.414;  // the tangent of 67.5 degrees
  const double across = std::abs(x);
  const double along = std::abs(y);
  const bool isStraight = DirectionOf(x, y) == 0 || across > kSteep * along || along > kSteep * across;
  if (isStraight) return {};
  if (y < 0) return x < 0 ? "UL" : "UR";
  return x < 0 ? "DL" : "DR";
}

/// Where an axis is shown that nobody has moved: the throttle is idle, and the others are in the middle.
double RestOf(int axis) { return axis == 0 ? 0 : 0.5; }

void AddWord(std::string& words, std::string_view word) {
  if (!words.empty()) words.append("  ");
  words.append(word);
}

/// The control with what it does in each layer.
std::string InWords(const kneeboard::Control& control) {
  std::vector<std::string> deeds;
  for (const kneeboard::Action& action : control.actions) {
    const std::string& words = action.deed.words;
    if (std::ranges::find(deeds, words) == deeds.end()) deeds.push_back(words);
  }
  std::string line = control.name;
  line.append("  ");
  for (std::size_t i = 0; i < deeds.size(); ++i) line.append(i == 0 ? "" : ", ").append(deeds[i]);
  return FromUtf8(deeds.empty() ? line.append("-") : line);
}

}  // namespace

TryOut::TryOut(Workbench& bench, Shell& shell)
    : ToolForm("TryOut", bench, shell),
      run_(play::Compile(bench.models.Pair()), [this](const play::Output& output) { Sent(output); }) {
  Caption = "Try it out";
  for (const tables::HardwareRow& row : tables::kHardware) {
    Label& label = hardware.Load(NameOf(row));
    label.Caption = std::string(row.caption);
    label.Visible = !IsSetting(row);
  }
  std::vector<std::string> speeds;
  for (const SpeedRow& row : kSpeeds) speeds.emplace_back(row.name);
  Speed.FillInOrder(std::move(speeds));
  Speed.ListIndex = kRealTime;
  Speed.ToolTipText = "How fast time passes";
  StepOn.ToolTipText = "Goes on to the next thing that happens";
  LetGo.ToolTipText = "Lets go of every key and control";
  Begin.ToolTipText = "Forgets the run, and begins a new one";
  OpenRun.ToolTipText = "Plays a run that was saved, and tells whether the same comes of it";
  SaveRun.ToolTipText = "Saves what was pressed and moved, with what came of it";
  PlayAgain.ToolTipText = "Plays the run that was opened, or the one so far, once more";
  FlyButton.ToolTipText = "Plays the files for real, with a stick, in other programs";
  Controls.ToolTipText = "Space presses the control; Enter or a double click holds it down";
  Log.ToolTipText = "What was sent; a click goes to the line of the file";
  for (Label* const label : {&KeysDown, &ButtonsDown, &Told}) label->BackColor = ToggleLabel::kOff;
  Dogfight(play::kSwitchInMiddle).Value = true;
  TimerTryOut.Interval = kTick;
  TimerTryOut.Enabled = true;
  Done.Cancel = true;
  AttachHandlers();
  connections_.push_back(bench.models.Changed.Connect([this] { pause.Begin(); }));
  TakeFiles();
  connections_.push_back(
      bench.sticks.Happened.Connect([this](const play::ControlEvent& event) { Take(event); }));
  listening_ = bench.sticks.Listen();
}

void TryOut::AttachHandlers() {
  KeyDown = [this](Key& key) { Form_KeyDown(key); };
  KeyUp = [this](Key& key) { Form_KeyUp(key); };
  TimerTryOut.Elapsed = [this] { TimerTryOut_Timer(); };
  Controls.DblClick = [this] {
    const int index = Controls.ListIndex;
    if (index >= 0) Latch(shown_[static_cast<std::size_t>(index)].name);
  };
  Log.MouseDown = [this](const Mouse&) { GoToLine(Log.ListIndex); };
  Log.DblClick = [this] { GoToLine(Log.ListIndex); };
  S3.Click = [this] {
    if (!isShowing_) Put("S3", S3.Value == 1 ? EventKind::Down : EventKind::Up);
  };
  for (int i = 0; i < Dogfight.Count(); ++i) Dogfight(i).Click = [this, i] { TurnDogfight(i); };
  for (int i = 0; i < Axes.Count(); ++i) {
    connections_.push_back(Axes(i).Value.Changed.Connect([this, i] { MoveAxis(i); }));
  }
}

// The files.

void TryOut::TakeFiles() {
  // Where a line led to before, something else may stand now.
  for (Line& line : lines_) line.place.reset();
  std::vector<std::string> held;
  if (S3.Value == 1) held.emplace_back("S3");
  pressed_.clear();
  latched_.clear();
  const model::FilePair pair = bench_.models.Pair();
  const kneeboard::Contents contents = kneeboard::ContentsOf(pair, bench_.models.Names());
  run_.Exchange(play::Compile(pair), held);
  ShowDevices(contents.devices);
  ShowControls(contents.devices);
  ShowAxes(contents.devices);
  hasNews_ = true;
  ShowNews();
}

void TryOut::ShowDevices(const std::vector<kneeboard::DevicePage>& pages) {
  int first = -1;
  for (int i = Devices.Count() - 1; i >= 0; --i) {
    const auto* const name = &kDrawings[i];
    const auto page = std::ranges::find(pages, *name, &kneeboard::DevicePage::drawing);
    if (page == pages.end()) continue;
    first = i;
    Devices.Pages(i).Visible = true;
    Devices.Pages(i).Caption = FromUtf8(page->title);
  }
  const auto isThere = [&](int i) {
    return std::ranges::find(pages, kDrawings[i], &kneeboard::DevicePage::drawing) != pages.end();
  };
  if (first >= 0 && !isThere(Devices.Tab)) Devices.Tab = first;
  for (int i = 0; i < Devices.Count(); ++i) Devices.Pages(i).Visible = isThere(i);
}

void TryOut::ShowControls(const std::vector<kneeboard::DevicePage>& pages) {
  shown_.clear();
  std::vector<std::string> items;
  std::map<Label*, std::string> tips;
  for (const kneeboard::DevicePage& page : pages) {
    for (const kneeboard::Control& control : page.controls) {
      const auto number = run_.program().FindControl(control.name);
      if (!number) continue;
      Shown shown{control.name, nullptr, control.position, *number};
      for (const tables::HardwareRow& row : tables::kHardware) {
        if (IdOf(row) != control.label) continue;
        shown.label = &LabelOf(row);
        if (row.caption.empty()) shown.label->Caption = control.name;
        if (row.array == "HAT" && control.position == 0)
          shown.corner = control.name.substr(control.name.size() - 2);
      }
      items.push_back(InWords(control));
      std::string& tip = tips[shown.label];
      tip.append(tip.empty() ? "" : "\n").append(items.back());
      shown_.push_back(std::move(shown));
    }
  }
  for (const auto& [label, tip] : tips) {
    if (label != nullptr) label->ToolTipText = tip;
  }
  if (items != Controls.List()) Controls.FillInOrder(std::move(items));
}

void TryOut::ShowAxes(const std::vector<kneeboard::DevicePage>& pages) {
  for (int i = 0; i < Axes.Count(); ++i) {
    const auto has = [&](const kneeboard::DevicePage& page) {
      return std::ranges::find(page.scales, play::kAxisNames[static_cast<std::size_t>(i)],
                               &kneeboard::Scale::name) != page.scales.end();
    };
    Axes(i).Visible = std::ranges::any_of(pages, has);
  }
  const bool hasSwitch =
      run_.program().switchOnButtons ? std::ranges::find(shown_, "T7", &Shown::name) != shown_.end() : true;
  for (int i = 0; i < Dogfight.Count(); ++i) Dogfight(i).Enabled = hasSwitch;
  S3.Enabled = std::ranges::find(shown_, "S3", &Shown::name) != shown_.end();
}

play::PlayedFiles TryOut::Files() const {
  const model::FilePair pair = bench_.models.Pair();
  const auto named = [](std::string_view name, const char* otherwise) {
    return name.empty() ? std::string(otherwise) : std::string(name);
  };
  return {named(pair.names.joystick, "joystick"), pair.joystickText, named(pair.names.macros, "macro"),
          pair.macroText};
}

// The controls.

Label& TryOut::LabelOf(const tables::HardwareRow& row) const { return hardware(NameOf(row)); }

std::vector<std::string> TryOut::NamesAt(const Label& label, double x, double y) const {
  std::vector<std::string> names;
  const std::string_view corner = CornerOf(x, y);
  const auto isCorner = [&](const Shown& each) { return each.label == &label && each.corner == corner; };
  const bool isInCorner = !corner.empty() && std::ranges::any_of(shown_, isCorner);
  const char direction = isInCorner ? '\0' : DirectionOf(x, y);
  for (const Shown& shown : shown_) {
    if (shown.label != &label) continue;
    if (shown.position != 0 && shown.position != direction) continue;
    if (!shown.corner.empty() && shown.corner != corner) continue;
    const bool isSecondStage = shown.name == "TG2";
    if (isSecondStage && x <= 0) continue;
    names.push_back(shown.name);
  }
  return names;
}

void TryOut::Press(const Label& label, double x, double y) {
  Release();
  pressed_ = NamesAt(label, x, y);
  const auto middle = std::ranges::find_if(
      shown_, [&](const Shown& each) { return each.label == &label && each.position == 'M'; });
  // A hat that is pressed leaves its middle, and comes back to it.
  if (!pressed_.empty() && middle != shown_.end()) Put(middle_ = middle->name, EventKind::Up);
  for (const std::string& name : pressed_) Put(name, EventKind::Down);
}

void TryOut::Release() {
  const std::vector<std::string> names = std::exchange(pressed_, {});
  for (const std::string& name : names) Put(name, EventKind::Up);
  if (const std::string middle = std::exchange(middle_, {}); !middle.empty()) Put(middle, EventKind::Down);
}

void TryOut::Latch(const std::string& name) {
  const bool isHeld = std::erase(latched_, name) > 0;
  if (!isHeld) latched_.push_back(name);
  Put(name, isHeld ? EventKind::Up : EventKind::Down);
}

void TryOut::Put(const std::string& name, EventKind kind) {
  const auto control = run_.program().FindControl(name);
  if (control) run_.Do({kind, *control, 0});
  hasNews_ = true;
  ShowNews();
}

void TryOut::MoveAxis(int axis) {
  if (isShowing_) return;
  const double position = static_cast<double>(Axes(axis).Value.Get()) / kPerCent;
  run_.Do({EventKind::Move, static_cast<std::uint32_t>(axis), position});
  hasNews_ = true;
  ShowNews();
}

void TryOut::Take(const play::ControlEvent& event) {
  const auto known = play::EventFor(event, run_.program());
  if (known) run_.Do(*known);
  hasNews_ = true;
  ShowNews();
}

void TryOut::TurnDogfight(int place) {
  if (isShowing_) return;
  run_.Do({EventKind::Switch, static_cast<std::uint32_t>(place), 0});
  hasNews_ = true;
  ShowNews();
}

void TryOut::Form_KeyDown(Key& key) {
  if (key.code != key::kSpace || ActiveControl() != &Controls) return;
  key.code = 0;
  const int index = Controls.ListIndex;
  if (index < 0 || !pressed_.empty()) return;
  pressed_ = {shown_[static_cast<std::size_t>(index)].name};
  Put(pressed_[0], EventKind::Down);
}

void TryOut::Form_KeyUp(Key& key) {
  if (key.code == key::kSpace && ActiveControl() == &Controls) Release();
}

// Time.

void TryOut::TimerTryOut_Timer() {
  const int index = std::clamp(Speed.ListIndex.Get(), 0, static_cast<int>(std::size(kSpeeds)) - 1);
  const double milliseconds = std::min(TimerTryOut.Passed(), kLongestPause) * kSpeeds[index].factor;
  run_.Pass(play::Time(std::llround(milliseconds * 1000)));
  ShowNews();
}

void TryOut::StepOn_Click() {
  if (!run_.PassToNext()) Tell("Nothing more happens by itself.");
  hasNews_ = true;
  ShowNews();
}

void TryOut::LetGo_Click() {
  pressed_.clear();
  latched_.clear();
  run_.LetGo();
  hasNews_ = true;
  ShowNews();
}

void TryOut::Begin_Click() {
  LetGo_Click();
  lines_.clear();
  run_.Begin();
  Tell({});
  hasNews_ = true;
  ShowNews();
}

// Runs.

void TryOut::OpenRun_Click() {
  const Trap trap{bench_.errors, "TryOut OpenRun_Click"};
  const auto path = Ignore(bench_.platform.dialogs.AskForFile(
      {FileDialogKind::Open, "Open a run", kRunFilter, bench_.settings.ProgramFilesPath, "", "txt"}));
  if (!path) return;
  auto text = trap(bench_.platform.files.Read(*path));
  if (!text) return Tell(*path + " can't be read");
  PlayText(std::move(*text));
}

void TryOut::PlayAgain_Click() {
  if (!opened_.empty()) return PlayText(opened_);
  std::string text;
  for (const std::string& line : run_.Lines()) text.append(line).push_back('\n');
  if (!text.empty()) PlayText(std::move(text));
}

void TryOut::PlayText(std::string text) {
  const auto read = play::ReadTrace(text, run_.program());
  if (const auto* const wrong = std::get_if<play::TraceError>(&read)) {
    return Tell("Line " + std::to_string(wrong->line) + ": " + wrong->text);
  }
  opened_ = std::move(text);
  const auto& trace = std::get<play::Trace>(read);
  Begin_Click();
  const auto other = play::DifferenceOf(trace, play::Play(trace, run_.program(), Files()));
  if (other) {
    Tell("Line " + std::to_string(other->line) + ": expected " + other->expected + ", comes " + other->came);
  } else if (!trace.expected.empty()) {
    Tell("The same comes of it as when the run was saved.");
  }
  run_.Play(trace);
}

void TryOut::SaveRun_Click() {
  const Trap trap{bench_.errors, "TryOut SaveRun_Click"};
  std::string text;
  for (const std::string& line : run_.Lines()) text.append(line).push_back('\n');
  const auto read = play::ReadTrace(text, run_.program());
  if (const auto* const trace = std::get_if<play::Trace>(&read)) {
    text = play::Printed(*trace, play::Play(*trace, run_.program(), Files()));
  }
  const auto path =
      Ignore(bench_.platform.dialogs.AskForFile({FileDialogKind::Save, "Save the run", kRunFilter,
                                                 bench_.settings.ProgramFilesPath, "run.txt", "txt"}));
  if (!path) return;
  const bool saved = trap(bench_.platform.files.Write(*path, WithDosEnds(text))).has_value();
  Tell(saved ? "The run is saved as " + *path : *path + " can't be written");
}

// What is seen.

void TryOut::Sent(const play::Output& output) {
  hasNews_ = true;
  const play::Program& program = run_.program();
  Line line{play::Printed(output, program, Files()), std::nullopt};
  if (output.source != 0) {
    const play::Source& source = program.sources[output.source];
    line.place = Place{source.file, source.range};
  }
  lines_.push_front(std::move(line));
  if (lines_.size() > kMostLines) lines_.pop_back();
}

void TryOut::ShowNews() {
  if (!std::exchange(hasNews_, false)) return;
  isShowing_ = true;
  std::vector<std::string> items;
  items.reserve(lines_.size());
  for (const Line& line : lines_) items.push_back(line.text);
  if (items != Log.List()) Log.FillInOrder(std::move(items));
  ShowButtons();
  ShowFlags();
  ShowSwitches();
  isShowing_ = false;
}

void TryOut::ShowButtons() {
  std::string keys;
  for (std::size_t key = 0; key < play::kKeyCount; ++key) {
    if (IsDown(static_cast<play::Key>(key))) AddWord(keys, play::NameOf(static_cast<play::Key>(key)));
  }
  KeysDown.Caption = keys;
  std::string buttons;
  std::uint16_t button = 0;
  for (const std::string_view name : kMouseButtons) {
    if (run_.IsDown(OutputKind::Mouse, ++button)) AddWord(buttons, std::string("mouse ").append(name));
  }
  constexpr std::uint16_t kPorts = 4;
  for (std::uint16_t number = 1; number <= kPorts; ++number) {
    if (run_.IsDown(OutputKind::Port, number)) AddWord(buttons, "port " + std::to_string(number));
  }
  ButtonsDown.Caption = buttons;
}

void TryOut::ShowFlags() {
  std::vector<std::string> items;
  for (const play::FlagProgram& flag : run_.program().flags) {
    const bool isOn = run_.engine().IsControlDown(flag.control);
    items.push_back(run_.program().controls[flag.control] + (isOn ? "  on" : "  off"));
  }
  if (items != Flags.List()) Flags.FillInOrder(std::move(items));
}

/// A run moves them as well.
void TryOut::ShowSwitches() {
  const auto isDown = [this](std::uint32_t control) { return run_.engine().IsControlDown(control); };
  std::map<Label*, bool> labels;
  for (const Shown& shown : shown_) {
    if (shown.label != nullptr) labels[shown.label] |= isDown(shown.control);
  }
  for (const auto& [label, down] : labels) label->BorderStyle = down ? 1 : 0;
  if (const auto s3 = run_.program().FindControl("S3")) S3.Value = isDown(*s3) ? 1 : 0;
  Dogfight(static_cast<int>(run_.SwitchPlace())).Value = true;
  for (int i = 0; i < Axes.Count(); ++i) {
    const auto position = run_.PositionOf(static_cast<std::uint32_t>(i));
    Axes(i).Value = static_cast<int>(std::lround(position.value_or(RestOf(i)) * kPerCent));
  }
}

void TryOut::GoToLine(int line) {
  if (line < 0 || static_cast<std::size_t>(line) >= lines_.size()) return;
  const auto& place = lines_[static_cast<std::size_t>(line)].place;
  if (place) bench_.documents.GoTo(DocumentOf(bench_.documents, place->file), place->range);
}

}  // namespace tarvik
