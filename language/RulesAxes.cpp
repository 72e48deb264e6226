// Rules about the fields of an axis statement, which the Composer's tabs have.
#include <algorithm>

#include "language/Checking.h"
#include "language/ComposerTables.h"

namespace tarvik::model {
namespace {

constexpr std::string_view kThrottle = "THR";
/// The type with keys for what lies between the ends: how many is nowhere written.
constexpr std::uint32_t kByPosition = 2;

/// The row of the tab that writes such a statement; null for a type that there is none of.
const tables::TabRow* RowOf(const Axis& axis) {
  if (!axis.type.value) return nullptr;
  const std::string type = std::to_string(*axis.type.value);
  const bool isLit =
      std::ranges::find(tables::kAxes, axis.shape->word, &tables::AxisRow::token) != std::end(tables::kAxes);
  const auto* row = std::ranges::find_if(tables::kTabStatements, [&](const tables::TabRow& each) {
    return each.type == type && (each.keyword.empty() ? isLit : each.keyword == axis.shape->word);
  });
  return row == std::end(tables::kTabStatements) ? nullptr : row;
}

bool IsByPosition(const Axis& axis) { return axis.type.value == kByPosition; }

/// How many keys the tab that writes such a statement has room for.
std::size_t FieldsFor(const Axis& axis, const tables::TabRow& row) {
  const auto fields = static_cast<std::size_t>(
      std::ranges::count_if(row.fields, [](const tables::FieldRow& each) { return !each.box.empty(); }));
  return fields - axis.steps.size();
}

/// How many keys stand there. Nothing where delays, repetitions or modifiers make that unclear.
std::optional<std::size_t> KeysIn(const Sequence& keys) {
  if (!keys.branches.empty()) return std::nullopt;
  std::size_t count = 0;
  for (const Item& item : keys.items) {
    const bool unclear = item.kind == ItemKind::Delay || item.kind == ItemKind::Repeat || !item.closed;
    if (unclear) return std::nullopt;
    if (item.kind != ItemKind::Prefix) ++count;
  }
  return count;
}

bool LacksSteps(const Axis& axis) {
  return std::ranges::any_of(axis.steps, [](const Number& each) { return !each.value; });
}

void FindNoType(const Checked&, const Place& place, const Axis& axis, Report& report) {
  if (RowOf(axis) != nullptr) return;
  const std::string_view type = place.Words(axis.type.range);
  report.Add(place, axis.type.range.length == 0 ? axis.word : axis.type.range,
             type.empty() ? Said({"The type is missing behind ", axis.shape->word, "."})
                          : Said({axis.shape->word, " has no type ", Shown(type), "."}));
}

void FindNoSteps(const Checked&, const Place& place, const Axis& axis, Report& report) {
  if (RowOf(axis) == nullptr || !LacksSteps(axis)) return;
  report.Add(place, axis.word,
             Said({axis.shape->word,
                   axis.steps.size() > 1 ? " wants two numbers of steps" : " wants a number of steps",
                   " behind its type."}));
}

void FindFieldCount(const Checked&, const Place& place, const Axis& axis, Report& report) {
  const tables::TabRow* row = RowOf(axis);
  const auto keys = KeysIn(axis.keys);
  if (row == nullptr || LacksSteps(axis) || IsByPosition(axis) || !keys) return;
  const std::size_t wanted = FieldsFor(axis, *row);
  if (*keys == wanted) return;
  report.Add(place, axis.word,
             Said({axis.shape->word, " of type ", row->type, " wants ", std::to_string(wanted),
                   " keys, and has ", std::to_string(*keys), "."}));
}

/// The throttle wants a key for each position; the others have one for each too, or what their tab has room
/// for.
void FindPositions(const Checked&, const Place& place, const Axis& axis, Report& report) {
  const tables::TabRow* row = RowOf(axis);
  const auto keys = KeysIn(axis.keys);
  if (row == nullptr || !IsByPosition(axis) || LacksSteps(axis) || !keys) return;
  std::uint64_t positions = 0;
  for (const Number& steps : axis.steps) positions += *steps.value;
  const bool isOfTab = axis.shape->word != kThrottle && *keys == FieldsFor(axis, *row);
  if (*keys == positions || isOfTab) return;
  report.Add(place, axis.word,
             Said({axis.shape->word, " has ", std::to_string(positions), " positions here and ",
                   std::to_string(*keys), " keys. What the loader makes of that is not known."}));
}

constexpr Rule kRules[] = {
    {"axis-type-unknown",
     Severity::Error,
     "An axis statement has no type, or one that there is not.",
     "Write the type behind the word: 1 or 2, and for JSX, JSY and RDDR 3 as well.",
     {"RNG 3 a b c\n"},
     {"RNG 2 6 a b c\n"},
     FindNoType},
    {"axis-steps-missing",
     Severity::Error,
     "An axis statement does not say how many steps it has.",
     "Write the number of steps behind the type.",
     {"RNG 1 a b\n"},
     {"RNG 1 8 a b\n"},
     FindNoSteps},
    {"axis-field-count",
     Severity::Warning,
     "An axis statement has too many or too few keys for its type.",
     "Write one key for each field that the Composer has for it. The sign for no key stands for nothing.",
     {"ANT 1 12 a b\n"},
     {"ANT 1 12 a b ^\n"},
     FindFieldCount},
    {"axis-key-count",
     Severity::Hint,
     "An axis statement of type 2 has another number of keys than of positions.",
     "Write one key for each position.",
     {"THR 2 4 2 a b c\n"},
     {"THR 2 2 1 a b c\n"},
     FindPositions},
};

}  // namespace

std::span<const Rule> AxisRules() { return kRules; }

}  // namespace tarvik::model
