// What the engine makes of conditions and axes.
#include <algorithm>
#include <cmath>

#include "play/Engine.h"

namespace tarvik::play {
namespace {

/// Flags that look at flags are asked so often; those in a circle would never settle.
constexpr int kMostRounds = 49;

}  // namespace

void Engine::AskFlags() {
  flagDeadline_.reset();
  if (program_.flags.empty()) return;
  std::ranges::copy(down_, wasDown_.begin());
  bool changed = true;
  for (int round = 0; changed && round < kMostRounds; ++round) {
    changed = false;
    for (const FlagProgram& flag : program_.flags) {
      const std::uint8_t on = Ask(flag.test, true) ? 1 : 0;
      changed |= down_[flag.control] != on;
      down_[flag.control] = on;
    }
  }
  for (std::uint32_t control = 0; control < down_.size(); ++control) {
    if (isFlag_[control] != 0 && down_[control] != wasDown_[control]) Put(control, down_[control] != 0);
  }
}

bool Engine::Ask(std::uint32_t index, bool enabled) {
  const Test& test = program_.tests[index];
  switch (test.kind) {
    case TestKind::Control:
      return down_[test.subject] != 0;
    case TestKind::And:
      return AskAll(test, enabled);
    case TestKind::Or: {
      bool any = false;
      for (const std::uint32_t each : test.operands) any |= Ask(each, enabled);
      return any;
    }
    case TestKind::Not:
      return !test.operands.empty() && !Ask(test.operands[0], enabled);
    case TestKind::Pulse:
    case TestKind::Delay:
      return AskTimer(test, enabled);
    case TestKind::Below:
      return positions_[test.subject] && *positions_[test.subject] < test.limit;
    case TestKind::Above:
      return positions_[test.subject] && *positions_[test.subject] > test.limit;
    case TestKind::Never:
      return false;
  }
  return false;
}

bool Engine::AskAll(const Test& test, bool enabled) {
  // The time begins when all that is no time holds.
  bool all = true;
  for (const std::uint32_t each : test.operands) {
    if (!program_.tests[each].timed) all &= Ask(each, enabled);
  }
  const bool begins = enabled && all;
  for (const std::uint32_t each : test.operands) {
    if (program_.tests[each].timed) all &= Ask(each, begins);
  }
  return all;
}

bool Engine::AskTimer(const Test& test, bool enabled) {
  std::optional<Time>& began = timers_[test.subject];
  if (!enabled) began.reset();
  if (!enabled) return false;
  if (!began) began = now_;
  const Time passed = now_ - *began;
  const bool isDelay = test.kind == TestKind::Delay;
  const Time period = test.on + test.off;
  if (isDelay ? passed >= test.on : test.on == Time{} || test.off == Time{})
    return isDelay || test.on > Time{};
  const bool on = !isDelay && passed % period < test.on;
  const Time next = isDelay ? *began + test.on : now_ - passed % period + (on ? test.on : period);
  if (!flagDeadline_ || next < *flagDeadline_) flagDeadline_ = next;
  return on;
}

void Engine::Move(std::uint32_t axis, double position) {
  positions_[axis] = position;
  if (axis == 0) Put(mt_, position <= program_.timing.backStop);
  for (std::size_t i = 0; i < axes_.size(); ++i) {
    if (program_.axes[i].axis == axis) MoveAxis(i, position);
  }
}

void Engine::MoveAxis(std::size_t index, double position) {
  const AxisProgram& axis = program_.axes[index];
  AxisState& state = axes_[index];
  const double slack = program_.timing.hysteresis;
  int step = StepAt(axis, position, state.step);
  // Just beyond the end of a step it is still in it, but at the ends of its way.
  if (state.known && step > state.step && position < 1)
    step = std::max(state.step, StepAt(axis, position - slack, 0));
  if (state.known && step < state.step && position > 0)
    step = std::min(state.step, StepAt(axis, position + slack, 0));
  // Where it stands at the beginning nobody has moved it.
  if (!state.known) state.step = step;
  state.known = true;
  StepTo(index, step);
}

int Engine::StepAt(const AxisProgram& axis, double position, int) const {
  const double limit = axis.above == 0 ? 1.0 : program_.timing.afterburner;
  const bool burns = axis.above > 0 && position >= limit;
  const double part = std::clamp(burns ? (position - limit) / (1 - limit) : position / limit, 0.0, 1.0);
  const int steps = burns ? axis.above : axis.below;
  if (axis.mode == AxisMode::Places) {
    return std::clamp(static_cast<int>(part * steps), 0, std::max(steps - 1, 0)) + (burns ? axis.below : 0);
  }
  return static_cast<int>(std::lround(part * steps)) + (burns ? axis.below + 1 : 0);
}

void Engine::StepTo(std::size_t index, int step) {
  const AxisProgram& axis = program_.axes[index];
  AxisState& state = axes_[index];
  Slot& slot = slots_[program_.buttons.size() + index];
  const int keys = static_cast<int>(axis.keys.size());
  const auto send = [&](int key) {
    if (key < keys && axis.keys[static_cast<std::size_t>(key)] != 0) {
      Queue(slot, axis.keys[static_cast<std::size_t>(key)], true);
    }
  };
  if (axis.mode == AxisMode::Places) {
    const int last = axis.below + axis.above - 1;
    const int place = axis.upwards ? step : last - step;
    const bool inBetween = keys != last + 1 && place > 0 && place < last && keys > 2 && last > 2;
    const int key = inBetween ? 1 + (place - 1) * (keys - 2) / (last - 1) : place == last ? keys - 1 : place;
    if (step != state.step) send(key);
    state.step = step;
    return;
  }
  while (state.step != step) {
    const bool up = step > state.step;
    const int edge = up ? state.step : state.step - 1;  // the step below the border that is crossed
    state.step += up ? 1 : -1;
    if (axis.mode == AxisMode::Throttle) {
      const int pair = edge < axis.below ? 0 : edge == axis.below ? 2 : 4;
      send(pair + (up ? 0 : 1));
      continue;
    }
    send(up == axis.upwards ? 1 : 0);
    if (state.step == axis.below / 2) send(2);
  }
}

}  // namespace tarvik::play
