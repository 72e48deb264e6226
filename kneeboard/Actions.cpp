#include "kneeboard/Actions.h"

#include <algorithm>

namespace tarvik::kneeboard {
namespace {

constexpr std::size_t kMostActions = 200;  // of a statement; no page has room for more
constexpr std::uint8_t kMostTurns = 255;

void TakeModifier(Action& action, char letter) {
  switch (letter) {
    case 'U':
      action.layer.dogfight = Dogfight::Up;
      break;
    case 'M':
      action.layer.dogfight = Dogfight::Middle;
      break;
    case 'D':
      action.layer.dogfight = Dogfight::Down;
      break;
    case 'I':
      action.layer.shift = Shift::In;
      break;
    case 'O':
      action.layer.shift = Shift::Out;
      break;
    case 'P':
      action.moment = Moment::Press;
      break;
    case 'R':
      action.moment = Moment::Release;
      break;
    case 'T':
      break;
    default:
      if (action.manner.find(letter) == std::string::npos) action.manner.push_back(letter);
  }
}

class Walk {
 public:
  Walk(const Deeds& deeds, std::string_view lines, const model::Mention& statement)
      : deeds_(deeds), lines_(lines), statement_(statement) {}

  std::vector<Action> Of(const model::Sequence& sequence) {
    Into(sequence, {});
    return std::move(actions_);
  }

 private:
  void Into(const model::Sequence& sequence, const Action& where) {
    if (actions_.size() >= kMostActions) return;
    if (!sequence.items.empty()) {
      Action action = where;
      action.deed = deeds_.Of(lines_, sequence.items);
      action.source = statement_;
      const std::size_t start = sequence.items.front().range.start;
      action.source.range = {statement_.range.start + start, sequence.items.back().range.End() - start};
      actions_.push_back(std::move(action));
    }
    std::uint8_t turn = 0;
    for (const model::Branch& branch : sequence.branches) {
      Action inner = where;
      const char letter = branch.slash == nullptr ? '\0' : branch.slash->letter;
      if (letter == 'T' && turn < kMostTurns) inner.turn = ++turn;
      if (letter != '\0') TakeModifier(inner, letter);
      Into(branch.sequence, inner);
    }
  }

  const Deeds& deeds_;
  std::string_view lines_;
  model::Mention statement_;
  std::vector<Action> actions_;
};

bool AreSameBut(Action one, const Action& other, const Layer& layer) {
  one.layer = layer;
  return one.layer == other.layer && one.moment == other.moment && one.turn == other.turn &&
         one.manner == other.manner && one.deed == other.deed;
}

/// Puts one action in the place of those that are the same in each of `states` of a part of the layer.
template <class State, std::size_t N>
void Merge(std::vector<Action>& actions, State Layer::*part, const State (&states)[N]) {
  for (std::size_t i = 0; i < actions.size(); ++i) {
    if (actions[i].layer.*part == State::Any) continue;
    std::vector<std::size_t> same;
    for (const State state : states) {
      Layer layer = actions[i].layer;
      layer.*part = state;
      const auto found = std::ranges::find_if(
          actions, [&](const Action& each) { return AreSameBut(actions[i], each, layer); });
      if (found == actions.end()) break;
      same.push_back(static_cast<std::size_t>(found - actions.begin()));
    }
    if (same.size() < N) continue;
    std::ranges::sort(same);
    actions[same.front()].layer.*part = State::Any;
    for (std::size_t k = N; k-- > 1;) actions.erase(actions.begin() + static_cast<std::ptrdiff_t>(same[k]));
  }
}

}  // namespace

std::vector<Action> ActionsOf(const Deeds& deeds, std::string_view lines, const model::Sequence& sequence,
                              const model::Mention& statement) {
  std::vector<Action> actions = Walk(deeds, lines, statement).Of(sequence);
  Merge(actions, &Layer::shift, {Shift::In, Shift::Out});
  Merge(actions, &Layer::dogfight, {Dogfight::Up, Dogfight::Middle, Dogfight::Down});
  Merge(actions, &Layer::shift, {Shift::In, Shift::Out});
  std::erase_if(actions, [](const Action& each) { return each.deed.words.empty(); });
  return actions;
}

}  // namespace tarvik::kneeboard
