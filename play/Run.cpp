#include "play/Run.h"

#include <utility>

namespace tarvik::play {

Run::Run(Program program, Take taken)
    : made_(std::make_unique<Made>(std::move(program))), taken_(std::move(taken)) {}

void Run::Step(const Event& event, Time now) {
  if (event.kind == EventKind::Move) positions_[event.index] = event.position;
  if (event.kind == EventKind::Switch) switch_ = event.index;
  taken_(made_->engine.Step(event, now));
}

void Run::Stop(Time now) {
  switch_ = kSwitchInMiddle;
  taken_(made_->engine.Stop(now));
}

void Run::Exchange(Program program, std::span<const std::string> held, Time now) {
  taken_(made_->engine.Stop(now));
  made_ = std::make_unique<Made>(std::move(program));
  Step({EventKind::Switch, switch_, 0}, now);
  for (std::uint32_t axis = 0; axis < positions_.size(); ++axis) {
    if (positions_[axis]) Step({EventKind::Move, axis, *positions_[axis]}, now);
  }
  for (const std::string& name : held) {
    if (const auto control = made_->program.FindControl(name)) Step({EventKind::Down, *control, 0}, now);
  }
}

void Run::Renew(Time now) {
  positions_ = {};
  switch_ = kSwitchInMiddle;
  made_ = std::make_unique<Made>(std::move(made_->program));
  Step({}, now);
}

}  // namespace tarvik::play
