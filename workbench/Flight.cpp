#include "workbench/Flight.h"

#include <algorithm>
#include <utility>

namespace tarvik {
namespace {

/// Behind the last change of the files.
constexpr std::chrono::milliseconds kFilesSettle(300);

}  // namespace

Flight::Flight(Platform& platform, FileModels& models, StickFeed& sticks, Notices& notices)
    : platform_(platform), models_(models), sticks_(sticks), notices_(notices) {
  connections_.push_back(sticks.Happened.Connect([this](const play::ControlEvent& event) { Hear(event); }));
  connections_.push_back(models.Changed.Connect([this] { FilesChanged(); }));
}

Flight::~Flight() { End(); }

void Flight::Begin() {
  if (phase_ != Phase::Ended) return;
  phase_ = Phase::Beginning;
  whyEnded_.clear();
  KeyOutput& keys = platform_.keys;
  keys.answered = [this](const KeyOutputState& state) { Take(state); };
  keys.lost = [this](const std::string& why) { End("Keys can't be sent any longer: " + why); };
  keys.hotKeyPressed = [this] { End("Ctrl+Alt+End was pressed."); };
  platform_.alarm.rung = [this] { Ring(); };
  platform_.seat.turned = [this] { Turn(); };
  platform_.seat.left = [this](const std::string& why) { End(why); };
  keys.Start();
  Changed();
}

void Flight::Take(const KeyOutputState& state) {
  way_ = state;
  if (state.way == KeyWay::None) return End("Keys can't be sent.");
  phase_ = Phase::Flying;
  platform_.seat.Watch();
  const auto end = [this] { End(); };
  notices_.Show(
      Matter::Flying, nullptr,
      {"Tarvik is flying: what the stick does is sent as keys to the program in front.", {{"Stop", end}}});
  Turn();
  Changed();
}

void Flight::End(const std::string& why) {
  if (phase_ == Phase::Ended) return;
  phase_ = Phase::Ended;
  whyEnded_ = why;
  player_.reset();
  platform_.keys.Stop();
  platform_.seat.Leave();
  platform_.alarm.Cancel();
  listening_.reset();
  chordEnds_.reset();
  filesSettle_.reset();
  notices_.Remove(Matter::Flying, nullptr);
  Changed();
}

void Flight::Turn() {
  if (phase_ != Phase::Flying) return;
  const bool sends = !platform_.seat.IsInProgram() && !filesSettle_;
  if (sends == IsSending()) return;
  chord_ = {};
  chordEnds_.reset();
  listening_.reset();
  player_.reset();
  if (sends) {
    const auto send = [this](play::Position position, bool down) {
      platform_.keys.Send(position, down);
      Sent(position, down);
    };
    player_ = std::make_unique<play::Player>(play::Compile(models_.Pair()), send, platform_.alarm.Now());
    // Where axes and switches stand comes while the listening begins.
    listening_ = sticks_.Listen();
  }
  SetAlarm();
  Changed();
}

void Flight::Hear(const play::ControlEvent& event) {
  if (!player_) return;
  player_->Feed(event, platform_.alarm.Now());
  HearChord(event);
  SetAlarm();
}

void Flight::HearChord(const play::ControlEvent& event) {
  const auto found = std::ranges::find(kEndControls, event.control);
  if (found == std::end(kEndControls)) return;
  chord_[static_cast<std::size_t>(found - std::begin(kEndControls))] = event.kind == play::EventKind::Down;
  const bool isHeld = std::ranges::all_of(chord_, std::identity());
  if (isHeld && !chordEnds_) chordEnds_ = platform_.alarm.Now() + kChord;
  if (!isHeld) chordEnds_.reset();
}

void Flight::Ring() {
  const Alarm::Time now = platform_.alarm.Now();
  if (chordEnds_ && *chordEnds_ <= now) return End("S1 and S4 were held together.");
  if (filesSettle_ && *filesSettle_ <= now) {
    filesSettle_.reset();
    Turn();
  }
  if (player_) player_->Wake(now);
  SetAlarm();
}

void Flight::SetAlarm() {
  std::optional<Alarm::Time> next = player_ ? player_->Deadline() : std::nullopt;
  for (const auto& each : {chordEnds_, filesSettle_}) {
    if (each && (!next || *each < *next)) next = each;
  }
  if (next) {
    platform_.alarm.RingAt(*next);
  } else {
    platform_.alarm.Cancel();
  }
}

void Flight::FilesChanged() {
  if (phase_ != Phase::Flying) return;
  filesSettle_ = platform_.alarm.Now() + kFilesSettle;
  Turn();
  SetAlarm();
}

}  // namespace tarvik
