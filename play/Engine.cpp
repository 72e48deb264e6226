#include "play/Engine.h"

#include <algorithm>

namespace tarvik::play {
namespace {

constexpr std::size_t kWaitingPresses = 256;
constexpr std::size_t kWaitingSteps = 1024;
constexpr std::size_t kUsualOutputs = 4096;
/// What one step may do, whatever the files say.
constexpr int kMostOpsAStep = 20000;

}  // namespace

Engine::Engine(const Program& program)
    : program_(program),
      slots_(program.buttons.size() + program.axes.size()),
      down_(program.controls.size()),
      isFlag_(program.controls.size()),
      wasDown_(program.controls.size()),
      turns_(program.turns),
      timers_(program.timers),
      axes_(program.axes.size()),
      s3_(*program.FindControl("S3")),
      mt_(*program.FindControl("MT")),
      tg1_(*program.FindControl("TG1")),
      tg2_(*program.FindControl("TG2")),
      t7_(*program.FindControl("T7")),
      t8_(*program.FindControl("T8")) {
  rawOwner_.fill(kNoSlot);
  outputs_.reserve(kUsualOutputs);
  for (const FlagProgram& flag : program.flags) isFlag_[flag.control] = 1;
  for (std::size_t i = 0; i < slots_.size(); ++i) {
    const bool isButton = i < program.buttons.size();
    slots_[i].waiting.resize(isButton ? kWaitingPresses : kWaitingSteps);
    slots_[i].control = isButton ? program.buttons[i].control
                                 : static_cast<std::uint32_t>(program.controls.size()) +
                                       program.axes[i - program.buttons.size()].axis;
  }
}

StepResult Engine::Step(const Event& event, Time now) {
  now_ = now;
  outputs_.clear();
  // What was due before the event comes first.
  RunAll();
  Take(event);
  AskFlags();
  RunAll();
  LetGoAtRest();
  return Result();
}

StepResult Engine::Stop(Time now) {
  now_ = now;
  outputs_.clear();
  Reset();
  for (std::uint32_t i = 0; i < program_.links.size(); ++i) {
    const Link& link = program_.links[i];
    auto& holders = (link.kind == LinkKind::Port ? ports_ : mouse_)[link.number];
    const OutputKind kind = link.kind == LinkKind::Port ? OutputKind::Port : OutputKind::Mouse;
    if (holders > 0) Emit(kind, link.number, false, link.control, link.source);
    holders = 0;
  }
  std::ranges::fill(down_, std::uint8_t{0});
  for (Slot& slot : slots_) slot.passesOver = false;
  switch_ = kSwitchInMiddle;
  flagDeadline_.reset();
  return {outputs_, std::nullopt};
}

bool Engine::AnyKeyDown() const {
  return std::ranges::any_of(holders_, [](std::uint16_t count) { return count > 0; });
}

bool Engine::IsRunning() const {
  return std::ranges::any_of(slots_, [](const Slot& slot) { return slot.at != 0 || slot.count > 0; });
}

void Engine::Emit(OutputKind kind, std::uint16_t number, bool down, std::uint32_t control,
                  std::uint32_t source) {
  outputs_.push_back({now_, kind, down, number, control, source});
}

void Engine::Take(const Event& event) {
  switch (event.kind) {
    case EventKind::Nothing:
      return;
    case EventKind::Down:
    case EventKind::Up: {
      if (event.index >= down_.size() || isFlag_[event.index] != 0) return;
      std::uint32_t control = event.index;
      if (program_.swapsTrigger && control == tg1_) {
        control = tg2_;
      } else if (program_.swapsTrigger && control == tg2_) {
        control = tg1_;
      }
      return Put(control, event.kind == EventKind::Down);
    }
    case EventKind::Switch:
      if (!program_.switchOnButtons) {
        switch_ = std::min(event.index, kSwitchDown);
        return;
      }
      Put(t7_, event.index == kSwitchUp);
      return Put(t8_, event.index == kSwitchDown);
    case EventKind::Move:
      if (event.index < positions_.size()) Move(event.index, std::clamp(event.position, 0.0, 1.0));
      return;
  }
}

std::size_t Engine::LayerNow() const { return std::size_t{switch_} * 2 + (down_[s3_] != 0 ? 1 : 0); }

void Engine::Put(std::uint32_t control, bool down) {
  if ((down_[control] != 0) == down && isFlag_[control] == 0) return;
  down_[control] = down ? 1 : 0;
  if (program_.switchOnButtons && (control == t7_ || control == t8_)) {
    switch_ = down_[t7_] != 0 ? kSwitchUp : down_[t8_] != 0 ? kSwitchDown : kSwitchInMiddle;
  }
  for (const Link& link : program_.links) {
    if (link.control != control) continue;
    auto& holders = (link.kind == LinkKind::Port ? ports_ : mouse_)[link.number];
    const bool changes = down ? holders++ == 0 : holders > 0 && --holders == 0;
    const OutputKind kind = link.kind == LinkKind::Port ? OutputKind::Port : OutputKind::Mouse;
    if (changes) Emit(kind, link.number, down, control, link.source);
  }
  for (std::size_t i = 0; i < program_.buttons.size(); ++i) {
    const ButtonProgram& button = program_.buttons[i];
    if (button.control != control) continue;
    Slot& slot = slots_[i];
    if (down) {
      slot.layer = static_cast<std::uint8_t>(LayerNow());
      // Room is kept for the release.
      slot.passesOver = slot.count + 2 > slot.waiting.size();
      if (slot.passesOver) ++lost_;
      if (!slot.passesOver) Queue(slot, button.press[slot.layer], false);
    } else if (!slot.passesOver) {
      // The layer of the press, whatever it is by now.
      Queue(slot, button.release[slot.layer], true);
    } else {
      slot.passesOver = false;
    }
  }
}

bool Engine::Queue(Slot& slot, Entry entry, bool release) {
  if (slot.count == slot.waiting.size()) {
    ++lost_;
    return false;
  }
  slot.waiting[(slot.first + slot.count++) % slot.waiting.size()] = {entry, release};
  return true;
}

void Engine::Press(Key key, const Slot& slot) {
  if (holders_[key]++ == 0) Emit(OutputKind::Key, key, true, slot.control, slot.source);
}

void Engine::LetGo(Key key, const Slot& slot) {
  if (holders_[key] > 0 && --holders_[key] == 0) Emit(OutputKind::Key, key, false, slot.control, slot.source);
}

void Engine::PressRaw(Key key, const Slot& slot, std::uint32_t index) {
  if (rawOwner_[key] == kNoSlot) {
    Press(key, slot);
    ++rawDown_;
  }
  rawOwner_[key] = index;
}

void Engine::LetGoRaw(Key key, const Slot& slot) {
  if (rawOwner_[key] == kNoSlot) return;
  rawOwner_[key] = kNoSlot;
  --rawDown_;
  LetGo(key, slot);
}

void Engine::Reset() {
  for (std::size_t key = 0; key < kKeyCount; ++key) {
    if (holders_[key] > 0) Emit(OutputKind::Key, static_cast<Key>(key), false, kNoControl, 0);
  }
  holders_.fill(0);
  rawOwner_.fill(kNoSlot);
  rawDown_ = 0;
  std::ranges::fill(turns_, 0U);
  std::ranges::fill(timers_, std::nullopt);
  for (Slot& slot : slots_) {
    const bool pressed = slot.control < down_.size() && down_[slot.control] != 0;
    slot.at = 0;
    slot.first = slot.count = slot.depth = 0;
    slot.awaits = slot.repeats = slot.latched = false;
    slot.passesOver = pressed;
  }
}

void Engine::LetGoAtRest() {
  if (rawDown_ == 0 || IsRunning()) return;
  const auto isHand = [&](std::uint32_t control) {
    const bool stays = control == mt_ || (program_.switchOnButtons && (control == t7_ || control == t8_));
    return !stays && isFlag_[control] == 0 && !program_.controls[control].starts_with("RKR ");
  };
  for (std::uint32_t control = 0; control < down_.size(); ++control) {
    if (down_[control] != 0 && isHand(control)) return;
  }
  for (std::size_t key = 0; key < kKeyCount; ++key) {
    const std::uint32_t owner = rawOwner_[key];
    if (owner == kNoSlot) continue;
    const Slot& slot = slots_[owner];
    if (slot.control >= down_.size() || down_[slot.control] == 0) LetGoRaw(static_cast<Key>(key), slot);
  }
}

StepResult Engine::Result() {
  std::optional<Time> deadline = flagDeadline_;
  for (const Slot& slot : slots_) {
    if (slot.at == 0 || slot.awaits) continue;
    if (!deadline || slot.wake < *deadline) deadline = slot.wake;
  }
  return {outputs_, deadline};
}

bool Engine::IsDue(const Slot& slot) const {
  if (slot.at == 0) return slot.count > 0;
  const bool released = slot.count > 0;
  if (slot.awaits) return released;
  return slot.wake <= now_ || (slot.repeats && released);
}

void Engine::RunAll() {
  bool any = true;
  for (int round = 0; any && round < kMostOpsAStep; ++round) {
    any = false;
    for (std::uint32_t i = 0; i < slots_.size(); ++i) {
      if (!IsDue(slots_[i])) continue;
      any = true;
      Run(slots_[i], i);
      if (resets_) Reset();
      resets_ = false;
    }
  }
}

bool Engine::Begin(Slot& slot) {
  const Slot::Part part = slot.waiting[slot.first];
  slot.first = (slot.first + 1) % slot.waiting.size();
  --slot.count;
  slot.releasing = part.release;
  slot.at = part.entry;
  slot.wake = now_;
  slot.depth = 0;
  if (!part.release) slot.latched = false;
  return part.entry != 0;
}

void Engine::EndPart(Slot& slot, std::uint32_t index) {
  slot.at = 0;
  if (!slot.releasing || slot.latched || rawDown_ == 0) return;
  for (std::size_t key = 0; key < kKeyCount; ++key) {
    if (rawOwner_[key] == index) LetGoRaw(static_cast<Key>(key), slot);
  }
}

void Engine::Run(Slot& slot, std::uint32_t index) {
  if (slot.at == 0 && !Begin(slot)) return EndPart(slot, index);
  // What is far too late is put off, so that nothing comes in a burst.
  const bool early = slot.awaits || (slot.repeats && slot.wake > now_);
  if (early || now_ - slot.wake > program_.timing.late) slot.wake = now_;
  for (int i = 0; i < kMostOpsAStep; ++i) {
    const Op& op = program_.ops[slot.at];
    if (op.kind == OpKind::End) return EndPart(slot, index);
    if (!Do(slot, index, op)) return;
  }
}

bool Engine::Do(Slot& slot, std::uint32_t index, const Op& op) {
  if (op.source != 0) slot.source = op.source;
  ++slot.at;
  switch (op.kind) {
    case OpKind::Make:
    case OpKind::Break:
    case OpKind::RawMake:
    case OpKind::RawBreak:
      DoKey(slot, index, op);
      return true;
    case OpKind::Wait:
      slot.wake += Time(op.value);
      return slot.wake <= now_;
    case OpKind::AwaitRelease:
    case OpKind::RepeatIfHeld:
      return DoHold(slot, op);
    case OpKind::Reset:
      Emit(OutputKind::Reset, 0, true, slot.control, op.source);
      resets_ = true;
      return false;
    case OpKind::End:
      return false;
    default:
      Go(slot, op);
      return true;
  }
}

void Engine::DoKey(const Slot& slot, std::uint32_t index, const Op& op) {
  switch (op.kind) {
    case OpKind::Make:
      return Press(op.key, slot);
    case OpKind::Break:
      return LetGo(op.key, slot);
    case OpKind::RawMake:
      return PressRaw(op.key, slot, index);
    default:
      return LetGoRaw(op.key, slot);
  }
}

/// What goes on as long as the control is held. Says whether the next instruction comes at once.
bool Engine::DoHold(Slot& slot, const Op& op) {
  const bool released = slot.count > 0;
  if (op.kind == OpKind::AwaitRelease) {
    slot.awaits = !released;
    if (slot.awaits) --slot.at;
    return released;
  }
  if (released) {
    slot.repeats = false;
    return true;
  }
  if (!slot.repeats) slot.wake += Time(op.value);
  slot.repeats = slot.wake > now_;
  slot.at = slot.repeats ? slot.at - 1 : op.target;
  return !slot.repeats;
}

/// Loops, turns and jumps.
void Engine::Go(Slot& slot, const Op& op) {
  const auto turns = static_cast<std::uint32_t>(op.value);
  switch (op.kind) {
    case OpKind::LoopBegin:
      slot.loops[slot.depth++] = op.value;
      return;
    case OpKind::LoopEnd:
      if (--slot.loops[slot.depth - 1] > 0) {
        slot.at = op.target;
      } else {
        --slot.depth;
      }
      return;
    case OpKind::Turn:
      slot.at += turns_[op.target]++ % turns;
      return;
    case OpKind::SameTurn:
      slot.at += (turns_[op.target] + turns - 1) % turns;
      return;
    case OpKind::Jump:
      slot.at = op.target;
      return;
    default:
      slot.latched = true;
  }
}

}  // namespace tarvik::play
