#include "language/Rules.h"

#include <algorithm>

namespace tarvik::model {
namespace {

std::vector<Rule> Gathered() {
  std::vector<Rule> rules;
  for (const auto rows : {MacroRules(), ControlRules(), SlashRules(), ItemRules(), CodeRules(), AxisRules(),
                          FlagRules(), SettingRules(), LineRules()}) {
    rules.insert(rules.end(), rows.begin(), rows.end());
  }
  return rules;
}

}  // namespace

std::span<const Rule> AllRules() {
  static const std::vector<Rule> kRules = Gathered();
  return kRules;
}

const Rule* FindRule(std::string_view id) {
  const std::span<const Rule> rules = AllRules();
  const auto row = std::ranges::find(rules, id, &Rule::id);
  return row == rules.end() ? nullptr : &*row;
}

std::string_view NameOf(Severity severity) {
  constexpr std::string_view kNames[] = {"error", "warning", "hint"};
  return kNames[static_cast<std::size_t>(severity)];
}

}  // namespace tarvik::model
