#include "play/Player.h"

#include <algorithm>
#include <utility>

namespace tarvik::play {
namespace {

constexpr std::size_t kUsualQueue = 256;

}  // namespace

Player::Player(Program program, Send send, Time now)
    : send_(std::move(send)),
      now_(now),
      run_(std::move(program), [this](const StepResult& result) { Take(result); }),
      modifierChanged_(now - kStrokeGap) {
  for (Place& place : keys_) place.changed = now - kStrokeGap;
  queue_.reserve(kUsualQueue);
  run_.Step({}, now);
}

Player::~Player() { LetGo(); }

void Player::Feed(const ControlEvent& event, Time now) {
  now_ = std::max(now, now_);
  if (const auto known = EventFor(event, run_.program())) run_.Step(*known, now_);
  SendDue();
}

void Player::Wake(Time now) {
  now_ = std::max(now, now_);
  if (deadline_ && *deadline_ <= now_) run_.Step({}, now_);
  SendDue();
}

std::optional<Time> Player::Deadline() const {
  if (first_ == queue_.size()) return deadline_;
  const Time due = DueOf(queue_[first_]);
  return deadline_ ? std::min(*deadline_, due) : due;
}

void Player::Stop(Time now) {
  now_ = std::max(now, now_);
  run_.Stop(now_);
  LetGo();
}

void Player::Take(const StepResult& result) {
  deadline_ = result.deadline;
  for (const Output& each : result.outputs) {
    if (const auto position = tarvik::play::PositionOf(each)) Queue(*position, each.down);
  }
}

void Player::Queue(Position position, bool down) {
  Place& place = keys_[position];
  const bool wasHeld = place.holders > 0;
  if (down) {
    ++place.holders;
  } else if (wasHeld) {
    --place.holders;
  }
  const bool isHeld = place.holders > 0;
  if (isHeld != wasHeld) queue_.push_back({position, down});
}

void Player::SendDue() {
  while (first_ < queue_.size() && DueOf(queue_[first_]) <= now_) Put(queue_[first_++]);
  if (first_ < queue_.size() && first_ < kUsualQueue) return;
  queue_.erase(queue_.begin(), queue_.begin() + static_cast<std::ptrdiff_t>(first_));
  first_ = 0;
}

Time Player::DueOf(const Stroke& stroke) const {
  return std::max(keys_[stroke.position].changed, modifierChanged_) + kStrokeGap;
}

void Player::Put(const Stroke& stroke) {
  Place& place = keys_[stroke.position];
  place.isDown = stroke.down;
  place.changed = now_;
  if (IsModifier(stroke.position)) modifierChanged_ = now_;
  if (stroke.down) {
    ++down_;
  } else {
    --down_;
  }
  send_(stroke.position, stroke.down);
}

void Player::LetGo() {
  queue_.clear();
  first_ = 0;
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    keys_[i].holders = 0;
    if (keys_[i].isDown) Put({static_cast<Position>(i), false});
  }
}

}  // namespace tarvik::play
