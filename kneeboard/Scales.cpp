#include "kneeboard/Scales.h"

#include <algorithm>

#include "language/Checking.h"

namespace tarvik::kneeboard {
namespace {

using model::Axis;
using model::Item;
using model::ItemKind;

constexpr double kWhole = 100;
constexpr std::string_view kThrottle = "THR";

/// The keys of an axis one by one, each with what is held with it.
std::vector<Deed> KeysOf(const DeedWriter& writer, std::string_view lines, const Axis& axis) {
  std::vector<Deed> keys;
  const std::span<const Item> items = axis.keys.items;
  std::size_t first = 0;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i].kind == ItemKind::Prefix) continue;
    keys.push_back(writer.DeedOf(lines, items.subspan(first, i + 1 - first)));
    first = i + 1;
  }
  return keys;
}

Deed At(const std::vector<Deed>& keys, std::size_t index) {
  return index < keys.size() ? keys[index] : Deed{};
}

std::uint32_t StepsAt(const Axis& axis, std::size_t index) {
  return index < axis.steps.size() ? axis.steps[index].value.value_or(0) : 0;
}

std::string Counted(std::uint32_t count, std::string_view what) {
  return model::Said({std::to_string(count), " ", what, count == 1 ? "" : "s"});
}

/// Steps up and down below the afterburner and in it, and what is sent between the two.
void FillSteps(Scale& scale, const Axis& axis, const std::vector<Deed>& keys) {
  const std::uint32_t below = StepsAt(axis, 0);
  const std::uint32_t burner = StepsAt(axis, 1);
  const bool isThrottle = axis.shape->word == kThrottle;
  const double gate = isThrottle && burner > 0 ? kWhole * below / (below + burner) : kWhole;
  scale.kind = Counted(below, "step");
  if (isThrottle && burner > 0)
    scale.kind.append(model::Said({" below the afterburner, ", std::to_string(burner), " in it"}));
  scale.steps.push_back({0, gate, At(keys, 0), At(keys, 1)});
  if (isThrottle) {
    if (burner == 0) return;
    scale.steps.push_back({gate, gate, At(keys, 2), At(keys, 3), true});
    scale.steps.push_back({gate, kWhole, At(keys, 4), At(keys, 5), true});
  } else if (const Deed centre = At(keys, 2); !centre.words.empty()) {
    scale.steps.push_back({kWhole / 2, kWhole / 2, centre, centre});
  }
}

/// A key for each stretch. The rotaries name the one at the upper end first.
void FillPositions(Scale& scale, const Axis& axis, std::vector<Deed> keys) {
  const bool isRotary = axis.shape->word == "RNG" || axis.shape->word == "ANT";
  if (isRotary) std::ranges::reverse(keys);
  const std::size_t below = axis.shape->word == kThrottle ? StepsAt(axis, 0) : keys.size();
  scale.kind = Counted(static_cast<std::uint32_t>(keys.size()), "position");
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const double from = kWhole * static_cast<double>(i) / static_cast<double>(keys.size());
    const double to = kWhole * static_cast<double>(i + 1) / static_cast<double>(keys.size());
    if (keys[i].words.empty()) continue;
    scale.steps.push_back({from, to, keys[i], keys[i], i >= below && below > 0});
  }
}

Scale ScaleOf(const DeedWriter& writer, std::string_view lines, const Axis& axis) {
  Scale scale;
  const std::vector<Deed> keys = KeysOf(writer, lines, axis);
  if (axis.type.value == 1U) {
    FillSteps(scale, axis, keys);
  } else {
    FillPositions(scale, axis, keys);
  }
  return scale;
}

/// What the macro file has for the throttle, where the joystick file has its name alone.
void AddDigitalThrottle(const DeedWriter& writer, std::vector<Scale>& scales) {
  const model::FilePair& pair = writer.speaker().Pair();
  const model::MacroNames* const macro = writer.speaker().Names().FindMacro("@digitalthrottle");
  if (macro == nullptr || macro->definitions.empty() || macro->uses.empty()) return;
  const model::Mention& definition = macro->definitions.front();
  const auto* body = std::get_if<model::MacroDefinition>(&pair.macros[definition.statement].body);
  const auto* axis = body == nullptr ? nullptr : std::get_if<Axis>(&body->sends);
  if (axis == nullptr) return;
  scales.push_back(ScaleOf(writer, pair.macros.LinesOf(definition.statement, pair.macroText), *axis));
  scales.back().source = definition;
}

}  // namespace

std::vector<Scale> ScalesOf(const DeedWriter& writer, std::string_view axis) {
  const model::FilePair& pair = writer.speaker().Pair();
  std::vector<Scale> scales;
  if (const model::ControlNames* const names = writer.speaker().Names().FindControl(axis)) {
    for (const model::Mention& mention : names->assignments) {
      const auto* body = std::get_if<Axis>(&pair.joystick[mention.statement].body);
      if (body == nullptr) continue;
      scales.push_back(ScaleOf(writer, pair.joystick.LinesOf(mention.statement, pair.joystickText), *body));
      scales.back().source = mention;
    }
  }
  if (axis == kThrottle) AddDigitalThrottle(writer, scales);
  return scales;
}

}  // namespace tarvik::kneeboard
