#include "tools/preferences/StickForm.h"

#include <algorithm>

#include "language/PicturedControls.h"
#include "text/CodePage.h"
#include "workbench/HelpTopics.h"

namespace tarvik {
namespace {

using play::StickInput;
using play::StickMap;
using play::StickPart;
using play::StickWay;

constexpr const char* kHint =
    "Press a button of the stick or move an axis, then click the control in the drawing, or choose it from "
    "the list.";
constexpr const char* kNoStick =
    "No stick is plugged in. Plug one in: it stands here at once, and one of its buttons that is pressed is "
    "chosen below.";
constexpr int kMeant = 20000;  // how far an axis goes when its user means it

struct WayRow {
  StickWay way;
  const char* words;
};

constexpr WayRow kButtonWays[] = {{StickWay::Whole, "pressed"}};
constexpr WayRow kHatWays[] = {{StickWay::Whole, "all of it"},
                               {StickWay::Up, "up"},
                               {StickWay::Right, "right"},
                               {StickWay::Down, "down"},
                               {StickWay::Left, "left"}};
constexpr WayRow kAxisWays[] = {{StickWay::Whole, "all of it"},
                                {StickWay::Turned, "turned round"},
                                {StickWay::Low, "low end"},
                                {StickWay::High, "high end"}};

std::span<const WayRow> WaysOf(StickPart part) {
  if (part == StickPart::Button) return kButtonWays;
  if (part == StickPart::Hat) return kHatWays;
  return kAxisWays;
}

std::string FullNameOf(const tables::HardwareRow& row) {
  std::string name(row.array);
  if (row.index >= 0) name.append("(").append(std::to_string(row.index)).append(")");
  return name;
}

bool CanBePressed(const tables::HardwareRow& row) {
  return row.array != "ROTARY" || (row.index != tables::kPortLatch && row.index != tables::kSwapTriggers);
}

/// All that a label stands for, a hat as a whole first.
std::vector<std::string> NamesOf(const tables::HardwareRow& row, const std::string& caption) {
  std::vector<std::string> names;
  if (row.array == "HAT") names.emplace_back(tables::kHats[row.index]);
  for (std::string& each : ControlsOf(row, caption)) names.push_back(std::move(each));
  return names;
}

char LetterOf(StickWay way) {
  constexpr std::string_view kLetters = "--URDL--";
  return kLetters[static_cast<std::size_t>(way)];
}

}  // namespace

StickForm::StickForm(Workbench& bench, Shell& shell) : ToolForm("StickForm", bench, shell) {
  Caption = "Stick";
  Label1.BackColor = ToggleLabel::kOff;
  Assign.ToolTipText = "Let the input in hand stand for the control that is chosen";
  Remove.ToolTipText = "Let the input in hand stand for nothing";
  ClearAll.ToolTipText = "Let all of the stick stand for nothing";
  Done.MakeDefault();
  Done.Cancel = true;
  HelpButton.Click = [this] { ShowHelp(bench_.platform, topic::kSticks); };
  connections_.push_back(Sticks.ListIndex.Changed.Connect([this] { Sticks_Click(); }));
  connections_.push_back(Inputs.ListIndex.Changed.Connect([this] { Inputs_Click(); }));
  connections_.push_back(Way.ListIndex.Changed.Connect([this] { Way_Click(); }));
  connections_.push_back(bench.sticks.Moved.Connect([this](const StickChange& change) { Hear(change); }));
  connections_.push_back(bench.sticks.PresentChanged.Connect([this] { ShowSticks(); }));
  MakeHardware();
  Load = [this] { Form_Load(); };
}

Label& StickForm::LabelOf(const tables::HardwareRow& row) const { return hardware(FullNameOf(row)); }

void StickForm::MakeHardware() {
  const bool plain = IsPlain(bench_.settings.JoyName);
  for (const tables::HardwareRow& row : tables::kHardware) {
    Label& label = hardware.Load(FullNameOf(row));
    label.Caption = std::string(row.caption);
    label.ToolTipText = "What was pressed stands for this control";
    label.Visible = CanBePressed(row);
    label.Click = [this, &row] { Hardware_Click(row); };
  }
  for (const tables::WcsRow& row : tables::kWcsButtons) {
    Label& label = hardware(FullNameOf({"BTN", row.button, tables::Picture::Wcs, "", "", ""}));
    label.Caption = std::string(plain ? row.plain : row.numbered);
    label.Visible = !label.Caption.Get().empty();
  }
}

void StickForm::Form_Load() {
  Topmost = true;
  SSTabHardware.Tab = IsPlain(bench_.settings.JoyName) ? 1 : 0;
  listening_ = bench_.sticks.Listen();
  ShowSticks();
  Inputs.SetFocus();
}

// The sticks.

const StickForm::Stick* StickForm::InHand() const {
  const int row = Sticks.ListIndex;
  return row >= 0 && row < static_cast<int>(sticks_.size()) ? &sticks_[static_cast<std::size_t>(row)]
                                                            : nullptr;
}

void StickForm::ShowSticks() {
  const play::StickId before = InHand() ? InHand()->id : play::StickId();
  sticks_.clear();
  std::vector<std::string> names;
  for (const StickInfo& each : bench_.sticks.Present()) {
    sticks_.push_back({StickFeed::IdOf(each), {each.axes, each.buttons, each.hats}, each.number});
    names.push_back(FromUtf8(each.name));
  }
  for (const StickMap::Stick& each : bench_.sticks.Map().Sticks()) {
    if (std::ranges::find(sticks_, each.id, &Stick::id) != sticks_.end()) continue;
    sticks_.push_back({each.id, {}, std::nullopt});
    names.push_back(FromUtf8(each.id.name).append("  (not plugged in)"));
  }
  Label1.Caption = bench_.sticks.Present().empty() ? kNoStick : kHint;
  const auto same = std::ranges::find(sticks_, before, &Stick::id);
  Sticks.FillInOrder(std::move(names));
  const int row = same == sticks_.end() ? 0 : static_cast<int>(same - sticks_.begin());
  Sticks.ListIndex = sticks_.empty() ? -1 : row;
  Sticks_Click();
}

void StickForm::Sticks_Click() {
  const Stick* const stick = InHand();
  ClearAll.Enabled = stick != nullptr;
  Ready.Enabled = stick != nullptr && stick->number.has_value();
  Ready.ToolTipText =
      stick == nullptr
          ? std::string()
          : std::string("The map that comes with me for a ").append(play::ReadyMapFor(stick->id.name));
  rows_.clear();
  ShowInputs();
}

// What they have.

void StickForm::ShowInputs() {
  const int before = Inputs.ListIndex;
  rows_.clear();
  std::vector<std::string> words;
  if (const Stick* const stick = InHand()) {
    const StickMap::Stick* const mapped = bench_.sticks.Map().StickOf(stick->id);
    const auto add = [&](StickPart part, int count) {
      for (int i = 0; i < count; ++i) rows_.push_back({{part, static_cast<std::uint8_t>(i)}, {}});
    };
    add(StickPart::Button, stick->shape.buttons);
    add(StickPart::Hat, stick->shape.hats);
    add(StickPart::Axis, stick->shape.axes);
    if (mapped) {
      for (const StickMap::Row& row : mapped->rows) {
        const auto isPart = [&row](const InputRow& each) {
          return each.input.part == row.input.part && each.input.number == row.input.number;
        };
        const auto part = std::ranges::find_if(rows_, isPart);
        if (part != rows_.end() && part->control.empty()) {
          *part = {row.input, row.control};
        } else {
          const auto behind = std::ranges::find_if(rows_.rbegin(), rows_.rend(), isPart).base();
          rows_.insert(part == rows_.end() ? part : behind, {row.input, row.control});
        }
      }
    }
  }
  for (const InputRow& each : rows_) {
    words.push_back(InWords(each.input));
    if (!each.control.empty()) words.back().append(":  ").append(each.control);
  }
  Inputs.FillInOrder(std::move(words));
  Inputs.ListIndex = std::min(before, static_cast<int>(rows_.size()) - 1);
  Inputs_Click();
  MapChanged();
}

void StickForm::Inputs_Click() {
  const int row = Inputs.ListIndex;
  const bool any = row >= 0 && row < static_cast<int>(rows_.size());
  Remove.Enabled = any && !rows_[static_cast<std::size_t>(row)].control.empty();
  filling_ = true;
  ways_.clear();
  std::vector<std::string> words;
  int chosen = -1;
  if (any) {
    const StickInput& input = rows_[static_cast<std::size_t>(row)].input;
    for (const WayRow& each : WaysOf(input.part)) {
      if (each.way == input.way) chosen = static_cast<int>(ways_.size());
      ways_.push_back(each.way);
      words.emplace_back(each.words);
    }
  }
  Way.FillInOrder(std::move(words));
  Way.ListIndex = chosen;
  Way.Enabled = ways_.size() > 1;
  filling_ = false;
  ShowTargets();
}

void StickForm::Way_Click() {
  if (!filling_) ShowTargets();
}

std::optional<StickInput> StickForm::InputInHand() const {
  const int row = Inputs.ListIndex;
  const int way = Way.ListIndex;
  if (row < 0 || row >= static_cast<int>(rows_.size()) || way < 0 || way >= static_cast<int>(ways_.size())) {
    return std::nullopt;
  }
  StickInput input = rows_[static_cast<std::size_t>(row)].input;
  input.way = ways_[static_cast<std::size_t>(way)];
  return input;
}

void StickForm::ShowTargets() {
  std::vector<std::string> names;
  int chosen = -1;
  const auto input = InputInHand();
  if (input && InHand()) {
    const std::string_view now = bench_.sticks.Map().Find(InHand()->id, *input);
    for (const std::string& each : play::AllTargets()) {
      if (!play::Fits(*input, *play::TargetNamed(each))) continue;
      if (each == now) chosen = static_cast<int>(names.size());
      names.push_back(each);
    }
  }
  Assign.Enabled = !names.empty();
  Control.Enabled = !names.empty();
  Control.FillInOrder(std::move(names));
  Control.ListIndex = chosen;
}

// The stick speaks.

std::optional<StickInput> StickForm::InputOf(const StickChange& change) {
  const auto number = static_cast<std::uint8_t>(change.number);
  if (change.kind == StickChangeKind::Axis) {
    const auto [rest, isNew] = rests_.try_emplace({change.stick, change.number}, change.value);
    if (isNew || change.atStart) return rest->second = change.value, std::nullopt;
    if (std::abs(change.value - rest->second) < kMeant) return std::nullopt;
    rest->second = change.value;
    return StickInput{StickPart::Axis, number};
  }
  if (change.value == 0 || change.atStart) return std::nullopt;
  if (change.kind == StickChangeKind::Button) return StickInput{StickPart::Button, number};
  constexpr std::pair<int, StickWay> kWays[] = {{play::kHatUp, StickWay::Up},
                                                {play::kHatRight, StickWay::Right},
                                                {play::kHatDown, StickWay::Down},
                                                {play::kHatLeft, StickWay::Left}};
  for (const auto& [bit, way] : kWays) {
    if (change.value == bit) heard_ = way;
  }
  return StickInput{StickPart::Hat, number};
}

void StickForm::Hear(const StickChange& change) {
  const auto input = InputOf(change);
  const auto stick = std::ranges::find(sticks_, change.stick, &Stick::number);
  if (!input || stick == sticks_.end()) return;
  Sticks.ListIndex = static_cast<int>(stick - sticks_.begin());
  Pick(*input);
}

/// The row of what was pressed; of a hat that of its direction, where that one stands for something.
void StickForm::Pick(const StickInput& input) {
  int found = -1;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const StickInput& each = rows_[i].input;
    if (each.part != input.part || each.number != input.number) continue;
    if (found < 0 || (input.part == StickPart::Hat && each.way == heard_)) found = static_cast<int>(i);
  }
  Inputs.ListIndex = found;
}

// What it stands for.

std::vector<std::string> StickForm::TargetsOf(const tables::HardwareRow& row, const StickInput& input) const {
  std::vector<std::string> names = NamesOf(row, LabelOf(row).Caption);
  std::erase_if(names, [&input](const std::string& name) {
    const auto target = play::TargetNamed(name);
    return !target || !play::Fits(input, *target);
  });
  return names;
}

/// Of several positions it is the one in the hat's own direction, else the first that nothing stands for.
void StickForm::Hardware_Click(const tables::HardwareRow& row) {
  auto input = InputInHand();
  if (!input || !InHand()) return Say("Press a button of the stick first");
  std::vector<std::string> names = TargetsOf(row, *input);
  if (names.empty() && input->part == StickPart::Hat) {
    input->way = heard_;
    names = TargetsOf(row, *input);
  }
  const std::string caption = LabelOf(row).Caption;
  if (names.empty()) return Say(InWords(*input).append(" can't stand for ").append(caption));
  const StickMap::Stick* const mapped = bench_.sticks.Map().StickOf(InHand()->id);
  const auto isFree = [mapped](const std::string& name) {
    return mapped == nullptr ||
           std::ranges::find(mapped->rows, name, &StickMap::Row::control) == mapped->rows.end();
  };
  const auto isSameWay = [&input](const std::string& name) { return name.back() == LetterOf(input->way); };
  auto chosen = std::ranges::find_if(names, isSameWay);
  if (row.array != "HAT" || chosen == names.end()) chosen = std::ranges::find_if(names, isFree);
  Give(*input, chosen == names.end() ? names.front() : *chosen);
}

void StickForm::Assign_Click() {
  const auto input = InputInHand();
  if (!input || !InHand() || Control.Text().empty()) return;
  Give(*input, Control.Text());
}

void StickForm::Give(const StickInput& input, const std::string& control) {
  StickMap map = bench_.sticks.Map();
  if (!map.Set(InHand()->id, input, control)) return;
  Keep(map, InWords(input).append(" is ").append(control).append(" from now on"));
}

void StickForm::Remove_Click() {
  const int row = Inputs.ListIndex;
  if (!InHand() || row < 0) return;
  const StickInput input = rows_[static_cast<std::size_t>(row)].input;
  StickMap map = bench_.sticks.Map();
  map.Remove(InHand()->id, input);
  Keep(map, InWords(input).append(" stands for nothing"));
}

void StickForm::ClearAll_Click() {
  if (!InHand()) return;
  StickMap map = bench_.sticks.Map();
  map.Clear(InHand()->id);
  Keep(map, FromUtf8(InHand()->id.name).append(" stands for nothing"));
}

void StickForm::Ready_Click() {
  if (!InHand()) return;
  StickMap map = bench_.sticks.Map();
  const bool plain = IsPlain(bench_.settings.JoyName);
  play::UseReadyMap(map, InHand()->id, InHand()->shape, plain ? Dialect::Plain : Dialect::Numbered);
  Keep(map,
       FromUtf8(InHand()->id.name).append(" is mapped as a ").append(play::ReadyMapFor(InHand()->id.name)));
}

void StickForm::Keep(const StickMap& map, const std::string& say) {
  bench_.sticks.Use(map);
  ShowInputs();
  Say(say);
}

std::vector<std::string> StickForm::InputsFor(const tables::HardwareRow& row) const {
  std::vector<std::string> words;
  const std::vector<std::string> names = NamesOf(row, LabelOf(row).Caption);
  for (const InputRow& each : rows_) {
    if (!each.control.empty() && std::ranges::find(names, each.control) != names.end()) {
      words.push_back(InWords(each.input));
    }
  }
  return words;
}

}  // namespace tarvik
