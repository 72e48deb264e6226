#include <algorithm>

#include "language/Checking.h"
#include "language/Spoken.h"

namespace tarvik::model {
namespace {

/// What each key of an axis statement is for, where its type has so many.
struct AxisRoles {
  std::string_view word;
  std::uint32_t type;
  std::vector<std::string_view> roles;
};

const std::vector<AxisRoles>& Roles() {
  static const std::vector<AxisRoles> kRoles = [] {
    const std::vector<std::string_view> upDown = {"for a step up", "for a step down"};
    const std::vector<std::string_view> sides = {"for a step to one side", "for a step to the other",
                                                 "in the centre"};
    const std::vector<std::string_view> three = {"on one side", "in the centre", "on the other side"};
    return std::vector<AxisRoles>{
        {"THR",
         1,
         {"for a step up", "for a step down", "on entering the afterburner", "on leaving it",
          "for a step up in it", "for a step down in it"}},
        {"RNG", 1, upDown},
        {"ANT", 1, {"for a step up", "for a step down", "in the centre"}},
        {"JSX", 1, sides},
        {"JSY", 1, sides},
        {"RDDR", 1, sides},
        {"JSX", 3, three},
        {"JSY", 3, three},
        {"RDDR", 3, three},
    };
  }();
  return kRoles;
}

/// What the keys of type 2 are in the order of.
std::string_view OrderOf(std::string_view word) {
  if (word == "THR") return ", one for each position";
  const bool isRotary = word == "RNG" || word == "ANT";
  return isRotary ? ", from the upper end to the lower one" : ", from one end to the other";
}

std::string StepsInWords(std::string_view lines, const Axis& axis) {
  const auto number = [&](const Number& each) {
    if (each.range.length == 0) return std::string("a missing number of");
    return each.value ? std::to_string(*each.value) : Shown(In(lines, each.range));
  };
  if (axis.steps.empty()) return {};
  std::string words = Said({" in ", number(axis.steps[0]), axis.steps[0].value == 1 ? " step" : " steps"});
  if (axis.steps.size() > 1) words.append(Said({" and ", number(axis.steps[1]), " in the afterburner"}));
  return words;
}

bool IsLogic(const Condition& condition) {
  return condition.kind == ConditionKind::And || condition.kind == ConditionKind::Or;
}

std::string Arguments(std::string_view lines, const Condition& condition) {
  return Shown(In(lines, condition.range));
}

/// A call with as many numbers as it takes; as it stands for any other.
std::string CallInWords(std::string_view lines, const Condition& condition) {
  std::vector<std::string> words;
  for (const Range& each : condition.arguments) words.emplace_back(In(lines, each));
  const bool closed = condition.closed;
  const auto isNumber = [&](std::size_t at) { return at < words.size() && NumberIn(words[at]).has_value(); };
  if (condition.kind == ConditionKind::Pulse && closed && words.size() == 2 && isNumber(0) && isNumber(1)) {
    return Said({"a pulse of ", words[0], " ms on and ", words[1], " ms off is on"});
  }
  if (condition.kind == ConditionKind::Delay && closed && words.size() == 1 && isNumber(0)) {
    return Said({words[0], " ms have passed"});
  }
  const bool compares = condition.kind == ConditionKind::Below || condition.kind == ConditionKind::Above;
  if (!compares || !closed || words.size() != 2 || FindAxis(words[0]) == nullptr || !isNumber(1)) {
    return Arguments(lines, condition);
  }
  const std::string_view side = condition.kind == ConditionKind::Below ? " stands below " : " stands above ";
  return Said({ControlInWords(words[0]), side, words[1], " per cent"});
}

enum class State { On, Off };

std::string ControlState(std::string_view word, State state) {
  const bool isFlag = FlagNumber(word).has_value();
  const bool isOn = state == State::On;
  const std::string_view said = isFlag ? (isOn ? " is on" : " is off")
                                : isOn ? " is pressed"
                                       : " is not pressed";
  return Said({ControlInWords(word), said});
}

}  // namespace

std::string Speaker::InWords(std::string_view lines, const Condition& condition) const {
  switch (condition.kind) {
    case ConditionKind::Control:
      return ControlState(In(lines, condition.range), State::On);
    case ConditionKind::Not: {
      const Condition& negated = condition.operands.front();
      if (negated.kind == ConditionKind::Control) return ControlState(In(lines, negated.range), State::Off);
      return Said({"not (", InWords(lines, negated), ")"});
    }
    case ConditionKind::And:
    case ConditionKind::Or: {
      std::string said;
      for (const Condition& operand : condition.operands) {
        if (!said.empty()) said.append(condition.kind == ConditionKind::And ? " and " : " or ");
        const std::string words = InWords(lines, operand);
        said.append(IsLogic(operand) ? Said({"(", words, ")"}) : words);
      }
      return said;
    }
    case ConditionKind::Missing:
      return "something that is missing";
    default:
      return CallInWords(lines, condition);
  }
}

std::string AxisInWords(const Speaker& speaker, std::string_view lines, const Axis& axis) {
  const std::string name = AsSentence(ControlInWords(axis.shape->word));
  const bool typed = axis.type.value && *axis.type.value >= 1 && *axis.type.value <= 3;
  const bool isKnown = typed && (*axis.type.value < 3 || axis.shape->steps[2] == 0);
  if (axis.type.range.length == 0) return Said({name, " sends keys, but its type is missing"});
  if (!isKnown)
    return Said({name, " sends keys by ", Shown(In(lines, axis.type.range)), ", which is no type"});
  const std::vector<std::string> keys = speaker.Keys(lines, axis.keys);
  const std::string steps = StepsInWords(lines, axis);
  if (keys.empty()) return speaker.Sentence(Said({name, steps}), lines, axis.keys);
  const auto& all = Roles();
  const auto row = std::ranges::find_if(all, [&](const AxisRoles& each) {
    return each.word == axis.shape->word && each.type == *axis.type.value && each.roles.size() == keys.size();
  });
  if (row == all.end()) {
    const std::string_view order = *axis.type.value == 2 ? OrderOf(axis.shape->word) : std::string_view{};
    return Said({name, " sends keys", steps, order, ": ", AllOf(keys)});
  }
  std::vector<std::string> said;
  for (std::size_t i = 0; i < keys.size(); ++i) said.push_back(Said({keys[i], " ", row->roles[i]}));
  return Said({name, " sends keys", steps, ": ", AllOf(said)});
}

}  // namespace tarvik::model
