#include "play/Program.h"

#include <algorithm>
#include <charconv>
#include <set>

#include "language/Abilities.h"
#include "language/ComposerTables.h"
#include "language/Names.h"
#include "play/Writer.h"
#include "text/CodePage.h"

namespace tarvik::play {
namespace {

using model::ConditionKind;
using model::In;
using model::JoystickStatement;
using model::SameWord;

bool IsFlag(std::string_view word) { return model::IsFlag(model::FlagNumber(word).value_or(0)); }

class Compiler {
 public:
  Compiler(const model::FilePair& pair, Program& program)
      : pair_(pair), program_(program), writer_(pair, program) {}

  void Run() {
    for (const model::Ability& each : model::AllAbilities()) {
      if (each.kind == model::AbilityKind::Control) Control(each.name);
    }
    for (const std::string_view name : {"S3", "MT", "TG1", "TG2", "T7", "T8"}) Control(name);
    for (std::size_t i = 0; i < pair_.joystick.size(); ++i) Take(i);
    TellCircles();
  }

 private:
  struct Statement {
    std::string_view lines;
    std::size_t start;
    std::size_t index;

    [[nodiscard]] std::string_view Words(Range range) const { return In(lines, range); }
    [[nodiscard]] Text AsText() const {
      return {lines, start, {.statement = static_cast<std::uint32_t>(index)}};
    }
  };

  std::uint32_t Control(std::string_view name) {
    if (const auto known = program_.FindControl(name)) return *known;
    program_.controls.push_back(model::NameOfControl(name));
    return static_cast<std::uint32_t>(program_.controls.size() - 1);
  }

  void Take(std::size_t index) {
    const JoystickStatement& each = pair_.joystick[index];
    if (each.row == nullptr) return;
    const Statement at{pair_.joystick.LinesOf(index, pair_.joystickText), pair_.joystick.RangeOf(index).start,
                       index};
    if (const auto* button = std::get_if<model::Button>(&each.body)) return TakeButton(*button, at);
    if (const auto* axis = std::get_if<model::Axis>(&each.body)) return TakeAxis(*axis, at.AsText());
    if (const auto* definition = std::get_if<model::Definition>(&each.body)) {
      if (!IsFlag(at.Words(definition->flag))) return;
      const std::uint32_t flag = Control(at.Words(definition->flag));
      program_.flags.push_back({flag, TestOf(definition->condition, at)});
    } else if (const auto* port = std::get_if<model::Port>(&each.body)) {
      TakePort(each, *port, at);
    } else if (const auto* setting = std::get_if<model::Setting>(&each.body)) {
      if (each.row->word == "USE") TakeUse(*setting, at);
    } else if (SameWord(each.row->word, "@digitalthrottle")) {
      TakeDigitalThrottle(at);
    } else if (SameWord(each.row->word, "SWAPTG")) {
      program_.swapsTrigger = true;
    }
  }

  void TakeButton(const model::Button& button, const Statement& at) {
    if (button.control.length == 0) return;
    ButtonProgram made{.control = Control(model::NameOfControl(at.Words(button.control)))};
    for (std::size_t layer = 0; layer < kLayers; ++layer) {
      made.press[layer] = writer_.Write(at.AsText(), button.sends, layer, true);
      made.release[layer] = writer_.Write(at.AsText(), button.sends, layer, false);
    }
    program_.buttons.push_back(made);
  }

  void TakePort(const JoystickStatement& statement, const model::Port& port, const Statement& at) {
    if (port.control.length == 0) return;
    const auto number = static_cast<std::uint8_t>(statement.row->word.back() - '0');
    program_.links.push_back({LinkKind::Port, number, Control(at.Words(port.control)),
                              writer_.AddSource(at.AsText(), statement.word)});
  }

  void TakeUse(const model::Setting& setting, const Statement& at) {
    if (setting.values.empty()) return;
    const std::string_view word = at.Words(setting.values[0]);
    if (SameWord(word, "WCS")) program_.switchOnButtons = false;
    if (SameWord(word, "NOMOUSE"))
      std::erase_if(program_.links, [](const Link& each) { return each.kind == LinkKind::Mouse; });
    if (!SameWord(word, "MTYPE") || setting.values.size() < 2) return;
    const std::string type = UpperCase(at.Words(setting.values[1]));
    for (const tables::MouseListRow& list : tables::kMouseLists) {
      const auto number = model::NumberIn(std::string_view(type).substr(1));
      if (type.front() != list.letter || !number || *number < 1 || *number > list.types.size()) continue;
      const std::uint32_t source = writer_.AddSource(at.AsText(), setting.values[1]);
      const tables::MouseRow& row = list.types[*number - 1];
      std::uint8_t button = 0;
      for (const std::string_view control : {row.left, row.middle, row.right}) {
        ++button;
        if (control != "n/a") program_.links.push_back({LinkKind::Mouse, button, Control(control), source});
      }
    }
  }

  void TakeDigitalThrottle(const Statement& at) {
    for (std::size_t i = 0; i < pair_.macros.size(); ++i) {
      const auto* definition = std::get_if<model::MacroDefinition>(&pair_.macros[i].body);
      if (definition == nullptr) continue;
      const std::string_view lines = pair_.macros.LinesOf(i, pair_.macroText);
      const auto* axis = std::get_if<model::Axis>(&definition->sends);
      if (axis == nullptr || !SameWord(In(lines, definition->name), "@digitalthrottle")) continue;
      return TakeAxis(*axis, {lines,
                              pair_.macros.RangeOf(i).start,
                              {.file = model::FileKind::Macros,
                               .statement = static_cast<std::uint32_t>(at.index),
                               .macro = static_cast<std::int32_t>(i)}});
    }
  }

  /// What each key of an axis sends: a name or a key with what is held with it.
  std::vector<Entry> KeysOf(const model::Sequence& sequence, const Text& text) {
    std::vector<Entry> entries;
    const std::span<const model::Item> items = sequence.items;
    std::size_t from = 0;
    for (std::size_t i = 0; i < items.size(); ++i) {
      const auto kind = items[i].kind;
      if (kind == model::ItemKind::Prefix || kind == model::ItemKind::Repeat ||
          kind == model::ItemKind::Delay)
        continue;
      entries.push_back(writer_.WriteKeys(text, items.subspan(from, i + 1 - from)));
      from = i + 1;
    }
    return entries;
  }

  void TakeAxis(const model::Axis& axis, const Text& text) {
    const auto number = FindAxis(In(text.lines, axis.word));
    if (!number || !axis.type.value || *axis.type.value < 1 || *axis.type.value > 3) return;
    AxisProgram made{.axis = *number};
    constexpr std::uint32_t kMostSteps = 255;
    const auto steps = [&](std::size_t i) {
      const auto value = i < axis.steps.size() ? axis.steps[i].value : std::nullopt;
      return static_cast<int>(std::min(value.value_or(0), kMostSteps));
    };
    const bool isThrottle = *number == 0;
    made.upwards = isThrottle || *number > 2;
    made.below = steps(0);
    made.above = isThrottle ? steps(1) : 0;
    made.mode =
        *axis.type.value == 1 ? (isThrottle ? AxisMode::Throttle : AxisMode::Steps) : AxisMode::Places;
    if (*axis.type.value == 3) made.below = 3;
    if (*axis.type.value == 3) made.upwards = true;
    if (made.below + made.above == 0) return;
    made.keys = KeysOf(axis.keys, text);
    if (!made.keys.empty()) program_.axes.push_back(made);
  }

  std::uint32_t TestOf(const model::Condition& condition, const Statement& at) {
    Test test;
    for (const model::Condition& each : condition.operands) test.operands.push_back(TestOf(each, at));
    test.timed =
        std::ranges::any_of(test.operands, [&](std::uint32_t each) { return program_.tests[each].timed; });
    FillTest(condition, at, test);
    program_.tests.push_back(test);
    return static_cast<std::uint32_t>(program_.tests.size() - 1);
  }

  static std::optional<std::uint32_t> ArgumentOf(const model::Condition& call, const Statement& at,
                                                 std::size_t i) {
    if (i >= call.arguments.size()) return std::nullopt;
    return model::NumberIn(at.Words(call.arguments[i]));
  }

  void FillTest(const model::Condition& condition, const Statement& at, Test& test) {
    switch (condition.kind) {
      case ConditionKind::Control:
        test.kind = TestKind::Control;
        test.subject = Control(at.Words(condition.range));
        return;
      case ConditionKind::And:
        test.kind = TestKind::And;
        return;
      case ConditionKind::Or:
        test.kind = TestKind::Or;
        return;
      case ConditionKind::Not:
        test.kind = TestKind::Not;
        return;
      case ConditionKind::Pulse:
      case ConditionKind::Delay:
        return FillTimer(condition, at, test);
      case ConditionKind::Below:
      case ConditionKind::Above:
        return FillComparison(condition, at, test);
      case ConditionKind::Missing:
        return;
    }
  }

  void FillTimer(const model::Condition& call, const Statement& at, Test& test) {
    const auto time = [&](std::size_t i) {
      constexpr std::uint32_t kLongest = 3600000;
      return Time(std::chrono::milliseconds(std::min(ArgumentOf(call, at, i).value_or(0), kLongest)));
    };
    test.kind = call.kind == ConditionKind::Pulse ? TestKind::Pulse : TestKind::Delay;
    test.timed = true;
    test.subject = program_.timers++;
    test.on = time(0);
    test.off = time(1);
  }

  static void FillComparison(const model::Condition& call, const Statement& at, Test& test) {
    const auto axis = call.arguments.empty() ? std::nullopt : FindAxis(at.Words(call.arguments[0]));
    const auto limit = ArgumentOf(call, at, 1);
    if (!axis || !limit) return;
    test.kind = call.kind == ConditionKind::Below ? TestKind::Below : TestKind::Above;
    test.subject = *axis;
    test.limit = *limit / kPerCent;
  }

  /// Whether a flag's condition comes back to it.
  [[nodiscard]] bool Reaches(std::uint32_t test, std::uint32_t flag, std::set<std::uint32_t>& seen) const {
    if (!seen.insert(test).second) return false;
    const Test& at = program_.tests[test];
    const auto onwards = [&](std::uint32_t each) { return Reaches(each, flag, seen); };
    if (at.kind != TestKind::Control) return std::ranges::any_of(at.operands, onwards);
    if (at.subject == flag) return true;
    return std::ranges::any_of(program_.flags, [&](const FlagProgram& each) {
      return each.control == at.subject && onwards(each.test);
    });
  }

  void TellCircles() {
    std::size_t flag = 0;
    for (std::size_t i = 0; i < pair_.joystick.size(); ++i) {
      const auto* definition = std::get_if<model::Definition>(&pair_.joystick[i].body);
      if (definition == nullptr) continue;
      if (!IsFlag(In(pair_.joystick.LinesOf(i, pair_.joystickText), definition->flag))) continue;
      const FlagProgram& each = program_.flags[flag++];
      std::set<std::uint32_t> seen;
      if (!Reaches(each.test, each.control, seen)) continue;
      const Range range{pair_.joystick.RangeOf(i).start + definition->flag.start, definition->flag.length};
      program_.cuts.push_back(
          {model::FileKind::Joystick, range,
           "The flag is defined by itself, and is asked only a few times at each change"});
    }
  }

  const model::FilePair& pair_;
  Program& program_;
  Writer writer_;
};

}  // namespace

std::optional<std::uint32_t> Program::FindControl(std::string_view name) const {
  const auto found =
      std::ranges::find_if(controls, [&](const std::string& each) { return SameWord(each, name); });
  if (found == controls.end()) return std::nullopt;
  return static_cast<std::uint32_t>(found - controls.begin());
}

std::optional<std::uint32_t> FindAxis(std::string_view name) {
  for (std::size_t i = 0; i < kAxisNames.size(); ++i) {
    if (SameWord(kAxisNames[i], name)) return static_cast<std::uint32_t>(i);
  }
  return std::nullopt;
}

Program Compile(const model::FilePair& pair, const Timing& timing) {
  Program program;
  program.timing = timing;
  program.sources.emplace_back();
  program.ops.emplace_back();
  Compiler(pair, program).Run();
  return program;
}

}  // namespace tarvik::play
