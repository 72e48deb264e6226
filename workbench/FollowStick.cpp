#include "workbench/FollowStick.h"

#include <algorithm>
#include <cmath>

#include "text/CodePage.h"

namespace tarvik {
namespace {

constexpr int kTyping = 2000;   // milliseconds after a key
constexpr int kResting = 1000;  // milliseconds that an axis lights
constexpr double kMoved = 0.15;

/// The ends of the dogfight switch are buttons of the throttle.
std::string_view SwitchButton(std::uint32_t place) {
  constexpr std::string_view kButtons[] = {"T7", "", "T8"};
  return place < std::size(kButtons) ? kButtons[place] : std::string_view();
}

/// A hat or a rocker that comes back to its middle is let go of, though a file can say what that sends.
bool IsMiddle(std::string_view control) {
  return control == "RKR MD" || (control.starts_with('H') && control.ends_with('M'));
}

/// Where a stick, or what its buttons stand for, is.
void TellWhatIsMissing(const Documents& documents, StickFeed& feed) {
  if (feed.Present().empty()) return documents.Say("No stick is plugged in yet: plug one in and press it.");
  for (const StickInfo& stick : feed.Present()) {
    if (feed.Map().StickOf(StickFeed::IdOf(stick))) continue;
    documents.Say(FromUtf8(stick.name) + " is not mapped yet: that is done in Preferences, Stick.");
  }
}

}  // namespace

FollowStick::FollowStick(Documents& documents, const FileModels& models, StickFeed& feed)
    : typing(documents, "TimerFollowTyping", kTyping, [this] { isTyping_ = false; }),
      resting(documents, "TimerFollowResting", kResting,
              [this] {
                moving_.clear();
                Changed();
              }),
      documents_(documents),
      models_(models),
      feed_(feed) {
  for (Pane* const pane : {&documents.joystickText, &documents.macroText}) {
    connections_.push_back(pane->Edited.Connect([this](const PaneEdit& edit) { Edited(edit); }));
  }
  connections_.push_back(documents.joystickText.SelectionChanged.Connect([this] { FollowCaret(); }));
  connections_.push_back(feed.Happened.Connect([this](const play::ControlEvent& event) { Follow(event); }));
  connections_.push_back(documents.settings.FollowStick.Changed.Connect([this] { Switch(); }));
}

void FollowStick::Switch() {
  const bool on = documents_.settings.FollowStick != 0;
  if (on == IsOn()) return;
  pressed_.clear();
  moving_.clear();
  positions_.clear();
  glow_.clear();
  atCaret_.clear();
  listening_ = on ? feed_.Listen() : nullptr;
  if (on) {
    FollowCaret();
    TellWhatIsMissing(documents_, feed_);
  }
  Changed();
}

bool FollowStick::Lights(std::string_view control) const {
  return IsOn() && !control.empty() &&
         (pressed_.contains(control) || moving_.contains(control) || control == atCaret_);
}

void FollowStick::Follow(const play::ControlEvent& event) {
  // Where the sticks stand comes while the listening begins.
  if (documents_.settings.FollowStick == 0) return;
  switch (event.kind) {
    case play::EventKind::Down:
      if (!IsMiddle(event.control)) Press(event.control);
      return;
    case play::EventKind::Up:
      if (const auto found = pressed_.find(event.control); found != pressed_.end()) pressed_.erase(found);
      return Changed();
    case play::EventKind::Switch:
      pressed_.erase("T7");
      pressed_.erase("T8");
      if (const std::string_view button = SwitchButton(event.place); !button.empty()) return Press(button);
      return Changed();
    case play::EventKind::Move:
      return MoveAxis(event.control, event.position);
    default:
      return;
  }
}

void FollowStick::Press(std::string_view control) {
  pressed_.emplace(control);
  const model::ControlNames* const known = models_.Names().FindControl(control);
  const bool isAssigned = known != nullptr && !known->assignments.empty();
  glow_ = isAssigned ? GlowOf(known->assignments.front()) : std::vector<model::Mention>();
  if (isAssigned && !isTyping_) Shows();
  Changed();
}

std::vector<model::Mention> FollowStick::GlowOf(const model::Mention& assignment) const {
  const model::FilePair pair = models_.Pair();
  std::vector<model::Mention> glow;
  for (const model::MacroNames& macro : models_.Names().Macros()) {
    const auto isHere = [&](const model::Mention& use) {
      return use.file == assignment.file && use.statement == assignment.statement;
    };
    if (!macro.definitions.empty() && std::ranges::any_of(macro.uses, isHere))
      glow.push_back(macro.definitions.front());
  }
  std::ranges::sort(glow, {}, &model::Mention::statement);
  for (model::Mention& each : glow) each.range = pair.macros.RangeOf(each.statement);
  glow.insert(glow.begin(), assignment);
  glow.front().range = pair.joystick.RangeOf(assignment.statement);
  return glow;
}

/// An axis trembles, and counts when it has gone some way. Where it is at first is no move.
void FollowStick::MoveAxis(std::string_view axis, double position) {
  const auto found = std::ranges::find(positions_, axis, &std::pair<std::string, double>::first);
  if (found == positions_.end()) return positions_.emplace_back(axis, position), void();
  if (std::abs(found->second - position) < kMoved) return;
  found->second = position;
  resting.Begin();
  moving_.emplace(axis);
  Press(axis);
  pressed_.erase(std::string(axis));
}

void FollowStick::FollowCaret() {
  if (!IsOn()) return;
  const model::FilePair pair = models_.Pair();
  std::string control;
  if (pair.joystick.size() > 0) {
    const std::size_t at = pair.joystick.IndexAt(documents_.joystickText.Selection().start);
    for (const model::ControlNames& each : models_.Names().Controls()) {
      const auto here = [at](const model::Mention& mention) { return mention.statement == at; };
      if (std::ranges::any_of(each.assignments, here)) control = each.name;
    }
  }
  if (std::exchange(atCaret_, control) != control) Changed();
}

void FollowStick::Edited(const PaneEdit& edit) {
  if (!IsOn() || edit.OnlyColours()) return;
  isTyping_ = true;
  typing.Begin();
  // Nobody knows where the statement stands now.
  if (!std::exchange(glow_, {}).empty()) Changed();
}

}  // namespace tarvik
