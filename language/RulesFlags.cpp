// Rules about logical flags and the conditions that define them.
#include <algorithm>

#include "language/Checking.h"
#include "language/Lines.h"
#include "language/LogicLines.h"

namespace tarvik::model {
namespace {

constexpr std::uint32_t kMostPerCent = 100;

// What is wrong with a condition.

struct Flaw {
  Range range;
  std::string text;
};

bool Compares(const Condition& call) {
  return call.kind == ConditionKind::Below || call.kind == ConditionKind::Above;
}

/// The words in the bracket of a function of time or axes: the axis, where it has one, and numbers.
bool HasForm(const Place& place, const Condition& call) {
  const std::size_t wanted = call.kind == ConditionKind::Delay ? 1 : 2;
  const auto isNumber = [&](Range word) { return NumberIn(place.Words(word)).has_value(); };
  return call.arguments.size() == wanted &&
         std::all_of(call.arguments.begin() + (Compares(call) ? 1 : 0), call.arguments.end(), isNumber);
}

std::optional<Flaw> FlawInComparison(const Place& place, const Condition& call) {
  const std::string_view axis = place.Words(call.arguments[0]);
  if (FindAxis(axis) == nullptr) return Flaw{call.arguments[0], Said({Shown(axis), " is no axis."})};
  const std::string_view number = place.Words(call.arguments[1]);
  if (NumberIn(number) <= kMostPerCent) return std::nullopt;
  return Flaw{call.arguments[1], Said({"An axis goes up to 100, and never to ", number, "."})};
}

std::optional<Flaw> FlawInCall(const Place& place, const Condition& call) {
  if (HasForm(place, call)) return Compares(call) ? FlawInComparison(place, call) : std::nullopt;
  constexpr std::string_view kForms[] = {"PULSE(500 250)", "DELAY(1000)", "CMPLT(THR 10)", "CMPGT(THR 90)"};
  const auto form = static_cast<std::size_t>(call.kind) - static_cast<std::size_t>(ConditionKind::Pulse);
  return Flaw{call.range, Said({Shown(place.Words(call.range)), " is not of the form ", kForms[form], "."})};
}

std::optional<Flaw> FlawIn(const Place& place, const Condition& condition) {
  if (condition.kind == ConditionKind::Missing) {
    return Flaw{condition.range, "A control or a flag is missing in the condition."};
  }
  for (const Condition& operand : condition.operands) {
    if (auto flaw = FlawIn(place, operand)) return flaw;
  }
  if (!condition.closed) return Flaw{condition.range, "A bracket does not close."};
  const bool isCall = condition.kind >= ConditionKind::Pulse && condition.kind <= ConditionKind::Above;
  return isCall ? FlawInCall(place, condition) : std::nullopt;
}

/// The first word of a range, where it is one of logic that is not in capital letters.
std::optional<Range> SmallLogic(const Place& place, Range range) {
  const std::string_view word = FirstWord(place.Words(range));
  if (!IsLogicWord(word)) return std::nullopt;
  return Range{range.start, word.size()};
}

std::optional<Range> SmallLogicIn(const Place& place, const Condition& condition) {
  if (condition.kind == ConditionKind::Control) return SmallLogic(place, condition.range);
  for (const Condition& operand : condition.operands) {
    if (const auto range = SmallLogicIn(place, operand)) return range;
  }
  return std::nullopt;
}

std::optional<Range> SmallLogicIn(const Place& place, const JoystickStatement& statement) {
  if (const auto* definition = std::get_if<Definition>(&statement.body)) {
    if (const auto range = SmallLogicIn(place, definition->condition)) return range;
    const std::string_view rest = FirstWord(place.Words(statement.rest));
    // The rest begins with such a word in capital letters only where an operand is missing before it.
    return rest == "AND" || rest == "OR" || rest == "NOT" ? std::nullopt : SmallLogic(place, statement.rest);
  }
  if (!std::holds_alternative<Unknown>(statement.body)) return std::nullopt;
  const std::string_view words = WithoutIndent(place.lines);
  const std::string_view word = FirstWord(words.substr(0, words.find('\n')));
  if (!SameWord(word, "DEF") || word == "DEF") return std::nullopt;
  return Range{place.lines.size() - words.size(), word.size()};
}

void FindSmallLetters(const Checked&, const Place& place, const JoystickStatement& statement,
                      Report& report) {
  if (const auto range = SmallLogicIn(place, statement)) {
    report.Add(place, *range, Said({Shown(place.Words(*range)), " is not in capital letters."}));
  }
}

void FindMalformed(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  const auto* definition = std::get_if<Definition>(&statement.body);
  if (definition == nullptr || !FlagNumber(place.Words(definition->flag)) || SmallLogicIn(place, statement))
    return;
  if (auto flaw = FlawIn(place, definition->condition)) {
    report.Add(place, flaw->range, std::move(flaw->text));
  } else if (statement.rest.length > 0) {
    const std::string_view word = place.Words(statement.rest).substr(0, statement.rest.length);
    report.Add(place, statement.rest,
               Said({"The condition ends before ", Shown(word), ", which nothing joins to it."}));
  }
}

void FindNoFlag(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  const auto* definition = std::get_if<Definition>(&statement.body);
  if (definition == nullptr || FlagNumber(place.Words(definition->flag))) return;
  report.Add(place, definition->flag.length == 0 ? statement.word : definition->flag,
             definition->flag.length == 0 ? std::string("No flag stands behind DEF.")
                                          : Said({Shown(place.Words(definition->flag)), " is no flag."}));
}

/// Calls `tell` with each place where the flag stands.
template <class Tell>
void ForEachMention(const FlagNames& flag, const Tell& tell) {
  for (const auto* mentions : {&flag.definitions, &flag.buttons, &flag.uses}) {
    for (const Mention& mention : *mentions) tell(mention);
  }
}

void FindNoSuchFlag(const Checked& checked, Report& report) {
  for (const FlagNames& flag : checked.names.Flags()) {
    if (IsFlag(flag.number)) continue;
    ForEachMention(flag, [&](const Mention& mention) {
      report.Add(mention, Said({"There is no flag ", Shown(checked.Words(mention)), "."}));
    });
  }
}

void FindUndefined(const Checked& checked, Report& report) {
  for (const FlagNames& flag : checked.names.Flags()) {
    if (!IsFlag(flag.number) || !flag.definitions.empty()) continue;
    ForEachMention(flag, [&](const Mention& mention) {
      report.Add(mention, Said({"No DEF says when ", checked.Words(mention), " is on."}));
    });
  }
}

void FindUnused(const Checked& checked, Report& report) {
  for (const FlagNames& flag : checked.names.Flags()) {
    if (!IsFlag(flag.number) || !flag.buttons.empty() || !flag.uses.empty()) continue;
    report.Add(flag.definitions.front(),
               Said({"Nothing uses the flag ", checked.Words(flag.definitions.front()), "."}));
  }
}

void FindDefinedTwice(const Checked& checked, Report& report) {
  for (const FlagNames& flag : checked.names.Flags()) {
    for (std::size_t i = 1; i < flag.definitions.size(); ++i) {
      const Mention& each = flag.definitions[i];
      report.Add(each, Said({checked.Words(each), " is defined further up already."}));
    }
  }
}

void FindCircles(const Checked& checked, Report& report) {
  constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  const std::vector<FlagNames>& flags = checked.names.Flags();
  std::vector<std::size_t> flagOf(checked.pair.joystick.size(), kNone);
  for (std::size_t i = 0; i < flags.size(); ++i) {
    for (const Mention& definition : flags[i].definitions) flagOf[definition.statement] = i;
  }
  Graph graph(flags.size());
  for (std::size_t i = 0; i < flags.size(); ++i) {
    for (const Mention& use : flags[i].uses) {
      if (flagOf[use.statement] != kNone) graph[flagOf[use.statement]].push_back(i);
    }
  }
  const GraphOrder order = OrderOf(graph);
  for (std::size_t i = 0; i < flags.size(); ++i) {
    if (!order.inCircle[i]) continue;
    const bool direct = std::ranges::find(graph[i], i) != graph[i].end();
    const Mention& definition = flags[i].definitions.front();
    report.Add(definition, Said({checked.Words(definition), " looks at itself",
                                 direct ? "." : " by way of other flags."}));
  }
}

constexpr Rule kRules[] = {
    {"malformed-condition",
     Severity::Error,
     "The condition of a DEF is not well formed.",
     "Join controls and flags with AND, OR, NOT and brackets that close: (S1 OR S2) AND NOT X3.",
     {"DEF X1 S1 AND\nBTN X1 a\n"},
     {"DEF X1 S1 AND S2\nBTN X1 a\n"},
     FindMalformed},
    {"logic-in-small-letters",
     Severity::Error,
     "A word of logic is not in capital letters.",
     "Write DEF, AND, OR, NOT, PULSE, DELAY, CMPLT and CMPGT in capital letters.",
     {"DEF X1 S1 and S2\nBTN X1 a\n"},
     {"DEF X1 S1 AND S2\nBTN X1 a\n"},
     FindSmallLetters},
    {"flag-missing",
     Severity::Error,
     "DEF defines no flag.",
     "Write a flag from X1 to X48 behind DEF.",
     {"DEF S1 AND S2\n"},
     {"DEF X1 S1 AND S2\nBTN X1 a\n"},
     FindNoFlag},
    {"flag-out-of-range",
     Severity::Error,
     "There is no flag of this number.",
     "Use a flag from X1 to X48.",
     {"DEF X49 S1 AND S2\nBTN X49 a\n"},
     {"DEF X48 S1 AND S2\nBTN X48 a\n"},
     FindNoSuchFlag},
    {"undefined-flag",
     Severity::Error,
     "A flag is used that no DEF defines.",
     "Add a DEF that says when the flag is on.",
     {"BTN X1 a\n"},
     {"DEF X1 S1 AND S2\nBTN X1 a\n"},
     FindUndefined},
    {"unused-flag",
     Severity::Hint,
     "A flag is defined and used nowhere.",
     "Say with BTN what it sends, or use it in the condition of another flag.",
     {"DEF X1 S1 AND S2\n"},
     {"DEF X1 S1 AND S2\nBTN X1 a\n"},
     FindUnused},
    {"flag-defined-twice",
     Severity::Warning,
     "A flag is defined a second time.",
     "Keep one DEF for each flag.",
     {"DEF X1 S1\nDEF X1 S2\nBTN X1 a\n"},
     {"DEF X1 S1 OR S2\nBTN X1 a\n"},
     FindDefinedTwice},
    {"flag-in-circle",
     Severity::Warning,
     "A flag is defined by itself.",
     "Build each flag on controls, and on flags that do not lead back to it.",
     {"DEF X1 S1 AND X2\nDEF X2 S2 OR X1\n"},
     {"DEF X1 S1 AND X2\nDEF X2 S2 OR S4\nBTN X1 a\n"},
     FindCircles},
};

}  // namespace

std::span<const Rule> FlagRules() { return kRules; }

}  // namespace tarvik::model
