#include "language/Problems.h"

#include <algorithm>

#include "language/Checking.h"

namespace tarvik::model {
namespace {

/// The rules that look at the same kind of thing.
template <class Find>
struct Finding {
  const Rule* rule;
  Find find;
};

struct RulesByKind {
  std::vector<Finding<PairFinder>> pairs;
  std::vector<Finding<JoystickFinder>> joystick;
  std::vector<Finding<MacroFinder>> macros;
  std::vector<Finding<AxisFinder>> axes;
  std::vector<Finding<SequenceFinder>> sequences;
  std::vector<Finding<ItemFinder>> items;

  RulesByKind() {
    for (const Rule& rule : AllRules()) {
      std::visit([&](auto find) { Add(rule, find); }, rule.find);
    }
  }

 private:
  void Add(const Rule& rule, PairFinder find) { pairs.push_back({&rule, find}); }
  void Add(const Rule& rule, JoystickFinder find) { joystick.push_back({&rule, find}); }
  void Add(const Rule& rule, MacroFinder find) { macros.push_back({&rule, find}); }
  void Add(const Rule& rule, AxisFinder find) { axes.push_back({&rule, find}); }
  void Add(const Rule& rule, SequenceFinder find) { sequences.push_back({&rule, find}); }
  void Add(const Rule& rule, ItemFinder find) { items.push_back({&rule, find}); }
};

const RulesByKind& Sorted() {
  static const RulesByKind kRules;
  return kRules;
}

/// One walk over the statements of both files.
class Walk {
 public:
  Walk(const Checked& checked, Report& report) : checked_(checked), report_(report) {}

  void Run() {
    const FilePair& pair = checked_.pair;
    Ask(rules_.pairs);
    for (std::size_t i = 0; i < pair.joystick.size(); ++i) Visit(pair.joystick, i);
    for (std::size_t i = 0; i < pair.macros.size(); ++i) Visit(pair.macros, i);
  }

 private:
  template <class Find, class... Looked>
  void Ask(const std::vector<Finding<Find>>& rules, const Looked&... looked) {
    for (const Finding<Find>& each : rules) {
      report_.Begin(*each.rule);
      each.find(checked_, looked..., report_);
    }
  }

  void Visit(const JoystickFile& file, std::size_t index) {
    const JoystickStatement& statement = file[index];
    if (std::holds_alternative<Blank>(statement.body) || std::holds_alternative<Remark>(statement.body))
      return;
    const Place place = checked_.PlaceOf({FileKind::Joystick, index, {}});
    Ask(rules_.joystick, place, statement);
    if (const auto* button = std::get_if<Button>(&statement.body)) Visit(place, button->sends);
    if (const auto* axis = std::get_if<Axis>(&statement.body)) Visit(place, *axis);
  }

  void Visit(const MacroFile& file, std::size_t index) {
    const MacroStatement& statement = file[index];
    if (std::holds_alternative<Blank>(statement.body) || std::holds_alternative<Remark>(statement.body))
      return;
    const Place place = checked_.PlaceOf({FileKind::Macros, index, {}});
    Ask(rules_.macros, place, statement);
    const auto* definition = std::get_if<MacroDefinition>(&statement.body);
    if (definition == nullptr) return;
    std::visit([&](const auto& sends) { Visit(place, sends); }, definition->sends);
  }

  void Visit(const Place& place, const Axis& axis) {
    Ask(rules_.axes, place, axis);
    Visit(place, axis.keys);
  }

  void Visit(const Place& place, const Sequence& sequence) {
    Ask(rules_.sequences, place, sequence);
    for (const Item& item : sequence.items) {
      // Most words are keys, which are right wherever they stand.
      if (item.kind != ItemKind::Key) Ask(rules_.items, place, item);
    }
    for (const Branch& branch : sequence.branches) Visit(place, branch.sequence);
  }

  const Checked& checked_;
  Report& report_;
  const RulesByKind& rules_ = Sorted();
};

}  // namespace

LineAndColumn LinePositions::Of(std::size_t position) {
  position = std::min(position, text_.size());
  if (position < at_) *this = LinePositions(text_);
  for (; at_ < position; ++at_) {
    if (text_[at_] != '\n') continue;
    ++line_;
    lineStart_ = at_ + 1;
  }
  return {line_, position - lineStart_ + 1};
}

std::vector<Problem> ProblemsIn(const FilePair& pair) {
  const Checked checked(pair);
  Report report(pair);
  Walk(checked, report).Run();
  return report.TakeSorted();
}

}  // namespace tarvik::model
