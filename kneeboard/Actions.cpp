#include "kneeboard/Actions.h"

#include <algorithm>
#include <array>

namespace tarvik::kneeboard {
namespace {

using model::Branch;
using model::JoystickStatement;
using model::Sequence;

class ActionWalk {
 public:
  ActionWalk(const DeedWriter& writer, std::string_view lines, std::vector<Action>& actions)
      : writer_(writer), lines_(lines), actions_(actions) {}

  void Walk(const Sequence& sequence, const Action& so) {
    Tell(sequence, so);
    std::uint8_t turn = 0;
    for (const Branch& branch : sequence.branches) {
      Action inner = so;
      if (branch.slash != nullptr) Enter(inner, branch.slash->letter, turn);
      Walk(branch.sequence, inner);
    }
  }

 private:
  /// Nothing is told of what sends nothing.
  void Tell(const Sequence& sequence, Action so) const {
    so.deed = writer_.DeedOf(lines_, sequence.items);
    if (so.deed.words.empty()) return;
    actions_.push_back(std::move(so));
  }

  static void Enter(Action& action, char letter, std::uint8_t& turn) {
    switch (letter) {
      case 'U':
        action.layer.dogfight = Dogfight::Up;
        return;
      case 'M':
        action.layer.dogfight = Dogfight::Middle;
        return;
      case 'D':
        action.layer.dogfight = Dogfight::Down;
        return;
      case 'I':
        action.layer.shift = Shift::In;
        return;
      case 'O':
        action.layer.shift = Shift::Out;
        return;
      case 'P':
        action.moment = Moment::Press;
        return;
      case 'R':
        action.moment = Moment::Release;
        return;
      case 'T':
        action.turn = ++turn;
        return;
      default:
        action.manner.push_back(letter);
    }
  }

  const DeedWriter& writer_;
  std::string_view lines_;
  std::vector<Action>& actions_;
};

/// Whether two actions say the same, but for where they stand and for one part of them.
template <class Part>
bool AreAlike(Action one, const Action& other, Part Layer::*part) {
  one.source = other.source;
  one.layer.*part = other.layer.*part;
  return one == other;
}

/// Makes one of the actions that are alike but for `part`, where there is one for each of its states.
template <class Part, std::size_t N>
bool MergeOver(std::vector<Action>& actions, Part Layer::*part, const std::array<Part, N>& states) {
  for (std::size_t first = 0; first < actions.size(); ++first) {
    std::vector<std::size_t> alike;
    for (const Part state : states) {
      const auto found = std::ranges::find_if(actions, [&](const Action& each) {
        return each.layer.*part == state && AreAlike(each, actions[first], part);
      });
      if (found == actions.end()) break;
      alike.push_back(static_cast<std::size_t>(found - actions.begin()));
    }
    if (alike.size() < N) continue;
    std::ranges::sort(alike);
    actions[alike.front()].layer.*part = Part::Any;
    for (std::size_t i = N - 1; i > 0; --i)
      actions.erase(actions.begin() + static_cast<std::ptrdiff_t>(alike[i]));
    return true;
  }
  return false;
}

}  // namespace

void Merge(std::vector<Action>& actions) {
  constexpr std::array kShifts = {Shift::In, Shift::Out};
  constexpr std::array kPlaces = {Dogfight::Up, Dogfight::Middle, Dogfight::Down};
  while (MergeOver(actions, &Layer::shift, kShifts) || MergeOver(actions, &Layer::dogfight, kPlaces)) {
  }
}

std::vector<Action> ActionsOf(const DeedWriter& writer, const std::vector<model::Mention>& buttons) {
  const model::FilePair& pair = writer.speaker().Pair();
  std::vector<Action> actions;
  for (const model::Mention& mention : buttons) {
    const JoystickStatement& statement = pair.joystick[mention.statement];
    const auto* button = std::get_if<model::Button>(&statement.body);
    if (button == nullptr) continue;
    Action so;
    so.source = mention;
    ActionWalk(writer, pair.joystick.LinesOf(mention.statement, pair.joystickText), actions)
        .Walk(button->sends, so);
  }
  Merge(actions);
  return actions;
}

std::vector<Action> ActionsOf(const DeedWriter& writer, const model::ControlNames& control) {
  return ActionsOf(writer, control.assignments);
}

}  // namespace tarvik::kneeboard
