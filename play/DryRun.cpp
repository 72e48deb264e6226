#include "play/DryRun.h"

#include <cmath>

namespace tarvik::play {
namespace {

/// What happens at once, whatever the files say.
constexpr int kMostDeadlines = 20000;
constexpr double kFinest = 1000;

std::size_t IndexOf(OutputKind kind) { return kind == OutputKind::Mouse ? 0 : 1; }
bool IsButton(OutputKind kind) { return kind == OutputKind::Mouse || kind == OutputKind::Port; }

}  // namespace

DryRun::DryRun(Program program, std::function<void(const Output&)> sent)
    : run_(std::move(program), [this](const StepResult& result) { Take(result); }), sent_(std::move(sent)) {
  run_.Step({}, now_);
}

void DryRun::Exchange(Program program, std::span<const std::string> held) {
  ahead_.clear();
  due_ = {};
  run_.Exchange(std::move(program), held, now_);
}

void DryRun::Do(Event event) {
  if (event.kind == EventKind::Move) event.position = std::round(event.position * kFinest) / kFinest;
  Note(LineOf(event, program()));
  run_.Step(event, now_);
}

std::optional<Time> DryRun::Next() const {
  if (ahead_.empty()) return deadline_;
  return deadline_ ? std::min(*deadline_, due_) : due_;
}

void DryRun::Pass(Time time) {
  const bool hasBegun = !lines_.empty() || Next() || IsPlaying();
  if (!hasBegun) return;
  const Time until = now_ + time;
  int steps = 0;
  for (auto next = Next(); next && *next <= until && ++steps < kMostDeadlines; next = Next()) GoOn(*next);
  unnoted_ += until - now_;
  now_ = until;
}

bool DryRun::PassToNext() {
  const std::optional<Time> next = Next();
  if (next) GoOn(*next);
  return next.has_value();
}

void DryRun::GoOn(Time to) {
  to = std::max(to, now_);
  unnoted_ += to - now_;
  now_ = to;
  const bool isEngineDue = deadline_ && *deadline_ <= now_;
  if (!isEngineDue && !ahead_.empty() && due_ <= now_) return TakeStep();
  run_.Step({}, now_);
}

void DryRun::TakeStep() {
  const TraceStep step = ahead_.front();
  ahead_.pop_front();
  if (step.kind == TraceStep::Kind::Wait) due_ += step.wait;
  if (step.kind == TraceStep::Kind::Event) Do(step.event);
  if (step.kind == TraceStep::Kind::Stop) Stop();
}

void DryRun::Stop() {
  if (!lines_.empty()) Note("stop");
  run_.Stop(now_);
}

void DryRun::LetGo() {
  ahead_.clear();
  due_ = {};
  Stop();
}

void DryRun::Begin() {
  LetGo();
  lines_.clear();
  unnoted_ = {};
  now_ = {};
  run_.Renew(now_);
}

void DryRun::Play(const Trace& trace) {
  ahead_.assign(trace.steps.begin(), trace.steps.end());
  due_ = now_;
}

bool DryRun::IsDown(OutputKind kind, std::uint16_t number) const {
  return IsButton(kind) && (buttons_[IndexOf(kind)] >> number & 1U) != 0;
}

void DryRun::Take(const StepResult& result) {
  deadline_ = result.deadline;
  for (const Output& each : result.outputs) {
    if (IsButton(each.kind)) {
      std::uint32_t& down = buttons_[IndexOf(each.kind)];
      const std::uint32_t bit = 1U << each.number;
      down = each.down ? down | bit : down & ~bit;
    }
    sent_(each);
  }
}

void DryRun::Note(std::string line) {
  if (unnoted_ > Time{}) lines_.push_back(LineOf(unnoted_));
  unnoted_ = {};
  lines_.push_back(std::move(line));
}

}  // namespace tarvik::play
