#include "play/StickReader.h"

#include <algorithm>

#include "language/ComposerTables.h"

namespace tarvik::play {
namespace {

constexpr std::string_view kSwitch = "DOGFIGHT";

// The places of a hat: the middle, then clockwise from above.
constexpr std::string_view kHatEndings[] = {"M", "U", "UR", "R", "DR", "D", "DL", "L", "UL"};
// The plain stick's hat has no corners: it is up or down there.
constexpr std::string_view kHatWithoutCorners[] = {"M", "U", "U", "R", "D", "D", "D", "L", "U"};
constexpr std::string_view kPlainHat = tables::kHats[4];
constexpr std::string_view kRockerEndings[] = {"UP", "MD", "DN"};

int PlaceOfHat(int bits) {
  constexpr int kClockwise[] = {kHatMiddle,           kHatUp,   kHatUp | kHatRight,  kHatRight,
                                kHatDown | kHatRight, kHatDown, kHatDown | kHatLeft, kHatLeft,
                                kHatUp | kHatLeft};
  const int* const found = std::ranges::find(kClockwise, bits);
  return found == std::end(kClockwise) ? 0 : static_cast<int>(found - kClockwise);
}

int BitOf(StickWay way) {
  constexpr int kBits[] = {kHatUp, kHatRight, kHatDown, kHatLeft};
  return kBits[static_cast<int>(way) - static_cast<int>(StickWay::Up)];
}

/// Where an axis changes from one place to the next, and how far beyond that it must go for it.
struct Borders {
  std::span<const double> at;
  double margin;
};

constexpr double kHalf[] = {0.5};
constexpr double kThirds[] = {1.0 / 3, 2.0 / 3};
constexpr double kLowEnd[] = {0.25};
constexpr double kHighEnd[] = {0.75};

Borders BordersOf(StickWay way, TargetKind kind) {
  if (way == StickWay::Low) return {kLowEnd, 0.05};
  if (way == StickWay::High) return {kHighEnd, 0.05};
  if (kind == TargetKind::Control) return {kHalf, 0.1};
  return {kThirds, 0.05};
}

/// How many borders lie below; one that was crossed counts until it is clearly crossed back.
int Zone(const Borders& borders, double position, int before) {
  int zone = 0;
  for (std::size_t i = 0; i < borders.at.size(); ++i) {
    const int above = static_cast<int>(i) + 1;
    const double margin = before < 0 ? 0 : before >= above ? -borders.margin : borders.margin;
    if (position > borders.at[i] + margin) zone = above;
  }
  return zone;
}

double PositionOf(int value, StickWay way) {
  const double least = kAxisLeast;
  const double position = (std::clamp(value, kAxisLeast, kAxisMost) - least) / (kAxisMost - least);
  return way == StickWay::Turned ? 1 - position : position;
}

}  // namespace

std::optional<Event> EventFor(const ControlEvent& event, const Program& program) {
  switch (event.kind) {
    case EventKind::Down:
    case EventKind::Up:
      if (const auto control = program.FindControl(event.control)) return Event{event.kind, *control, 0};
      return std::nullopt;
    case EventKind::Move:
      if (const auto axis = FindAxis(event.control)) return Event{event.kind, *axis, event.position};
      return std::nullopt;
    case EventKind::Switch:
      return Event{event.kind, event.place, 0};
    default:
      return std::nullopt;
  }
}

// What is there.

void StickReader::Use(const StickMap& map) {
  LetGo();
  map_ = map;
  controls_.clear();
  for (auto& [number, stick] : sticks_) Bind(stick);
}

void StickReader::Plug(int stick, const StickId& id) {
  Unplug(stick);
  Plugged& plugged = sticks_[stick];
  plugged.id = id;
  Bind(plugged);
}

void StickReader::Unplug(int stick) {
  const auto found = sticks_.find(stick);
  if (found == sticks_.end()) return;
  for (Binding& each : found->second.bindings) Release(each);
  sticks_.erase(found);
}

void StickReader::LetGo() {
  for (auto& [number, stick] : sticks_) {
    for (Binding& each : stick.bindings) Release(each);
  }
}

/// What the stick does already is where it starts.
void StickReader::Bind(Plugged& stick) {
  stick.bindings.clear();
  if (const StickMap::Stick* const mapped = map_.StickOf(stick.id)) {
    for (const StickMap::Row& row : mapped->rows) {
      stick.bindings.push_back(BindingOf(row.input, row.control));
    }
  }
  for (Binding& each : stick.bindings) {
    const auto seen = stick.seen.find({each.input.part, each.input.number});
    if (seen != stick.seen.end()) Take(each, seen->second, Moment::Start);
  }
}

std::size_t StickReader::ControlNamed(std::string_view name) {
  const auto found = std::ranges::find(controls_, name, &Control::name);
  if (found != controls_.end()) return static_cast<std::size_t>(found - controls_.begin());
  controls_.push_back({std::string(name), 0});
  return controls_.size() - 1;
}

StickReader::Binding StickReader::BindingOf(const StickInput& input, const std::string& control) {
  Binding made{.input = input, .kind = TargetNamed(control).value_or(TargetKind::Control)};
  made.at.fill(kNone);
  // Of a button or a hat nothing is heard before it moves.
  if (input.part != StickPart::Axis) made.place = 0;
  switch (made.kind) {
    case TargetKind::Axis:
      made.axis = FindAxis(control).value_or(0);
      break;
    case TargetKind::Hat:
      for (std::size_t i = 0; i < kPlaces; ++i) {
        std::string name(control);
        name.append(control == kPlainHat ? kHatWithoutCorners[i] : kHatEndings[i]);
        made.at[i] = ControlNamed(name);
      }
      break;
    case TargetKind::Rocker:
      for (std::size_t i = 0; i < std::size(kRockerEndings); ++i) {
        std::string name(control);
        made.at[i] = ControlNamed(name.append(" ").append(kRockerEndings[i]));
      }
      break;
    case TargetKind::SwitchPlace:
      made.at[1] = control.ends_with("UP") ? kSwitchUp : kSwitchDown;
      break;
    case TargetKind::Switch:
      break;
    default:
      made.at[1] = ControlNamed(control);
  }
  return made;
}

// What it does.

void StickReader::Change(int stick, StickPart part, int number, int value, Moment moment) {
  const auto found = sticks_.find(stick);
  if (found == sticks_.end()) return;
  found->second.seen[{part, number}] = value;
  const auto each = [&](const auto& take) {
    for (Binding& binding : found->second.bindings) {
      if (binding.input.part == part && binding.input.number == number) take(binding);
    }
  };
  // From one direction of a hat to the next: the first goes up before the other goes down.
  if (moment == Moment::Now) {
    each([&](Binding& binding) {
      if (binding.kind != TargetKind::Axis && binding.holds && PlaceIn(binding, value) != binding.place &&
          PlaceIn(binding, value) == 0) {
        Take(binding, value, moment);
      }
    });
  }
  each([&](Binding& binding) { Take(binding, value, moment); });
}

void StickReader::Take(Binding& binding, int value, Moment moment) {
  if (binding.kind == TargetKind::Axis) return TakeAxis(binding, PositionOf(value, binding.input.way));
  GoTo(binding, PlaceIn(binding, value), moment);
}

void StickReader::TakeAxis(Binding& binding, double position) {
  if (binding.position == position) return;
  binding.position = position;
  hear_({.kind = EventKind::Move, .control = kAxisNames[binding.axis], .position = position});
}

int StickReader::PlaceIn(const Binding& binding, int value) {
  switch (binding.input.part) {
    case StickPart::Button:
      return value == 0 ? 0 : 1;
    case StickPart::Hat:
      if (binding.input.way == StickWay::Whole) return PlaceOfHat(value);
      return (value & BitOf(binding.input.way)) == 0 ? 0 : 1;
    default:
      break;
  }
  const bool isLow = binding.input.way == StickWay::Low;
  const int before = isLow && binding.place >= 0 ? 1 - binding.place : binding.place;
  const int zone =
      Zone(BordersOf(binding.input.way, binding.kind), PositionOf(value, binding.input.way), before);
  return isLow ? 1 - zone : zone;
}

void StickReader::GoTo(Binding& binding, int place, Moment moment) {
  if (place == binding.place) return;
  const bool starts = moment == Moment::Start || binding.place == kUnknown;
  const int before = binding.place;
  binding.place = place;
  const auto target = binding.at[static_cast<std::size_t>(place)];
  // A switch stays where it is, so that its place counts from the start as that of an axis does.
  if (binding.kind == TargetKind::Switch) {
    binding.holds = true;
    return TurnSwitch(static_cast<std::uint32_t>(place));
  }
  if (binding.kind == TargetKind::SwitchPlace) {
    binding.holds = place != 0;
    return TurnSwitch(binding.holds ? static_cast<std::uint32_t>(target) : kSwitchInMiddle);
  }
  if (before != kUnknown && target == binding.at[static_cast<std::size_t>(before)]) return;
  if (binding.holds) LetGoOf(binding.at[static_cast<std::size_t>(before)]);
  binding.holds = !starts && target != kNone;
  if (binding.holds) Press(target);
}

void StickReader::Release(Binding& binding) {
  if (!std::exchange(binding.holds, false)) return;
  if (binding.kind == TargetKind::Switch || binding.kind == TargetKind::SwitchPlace) {
    return TurnSwitch(kSwitchInMiddle);
  }
  LetGoOf(binding.at[static_cast<std::size_t>(binding.place)]);
}

/// A control that two inputs stand for is down as long as one of them is.
void StickReader::Press(std::size_t control) {
  if (++controls_[control].holders > 1) return;
  hear_({.kind = EventKind::Down, .control = controls_[control].name});
}

void StickReader::LetGoOf(std::size_t control) {
  if (--controls_[control].holders > 0) return;
  hear_({.kind = EventKind::Up, .control = controls_[control].name});
}

void StickReader::TurnSwitch(std::uint32_t place) {
  if (std::exchange(switch_, place) == place) return;
  hear_({.kind = EventKind::Switch, .control = kSwitch, .place = place});
}

}  // namespace tarvik::play
