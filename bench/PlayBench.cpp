// tarvik_play_bench: how long a step of the engine takes at worst, over all pairs that there are, and a
// minute of play with a thousand events a second.
#include <random>

#include "Compare.h"
#include "support/Pairs.h"
#include "support/Played.h"

namespace {

using namespace tarvik;
using namespace tarvik::bench;
using namespace tarvik::play;

constexpr Seconds kGoal = 10e-6;  // of the 99th percentile of a step
constexpr int kEvents = 60000;    // a minute of a thousand a second
constexpr Time kBetween = std::chrono::milliseconds(1);

Event Any(const Program& program, std::mt19937& random) {
  const auto among = [&random](std::size_t count) { return static_cast<std::uint32_t>(random() % count); };
  if (among(8) == 0) return {EventKind::Move, among(kAxisNames.size()), among(1001) / 1000.0};
  if (among(16) == 0) return {EventKind::Switch, among(3), 0};
  const EventKind kind = among(2) == 0 ? EventKind::Down : EventKind::Up;
  return {kind, among(program.controls.size()), 0};
}

/// The times of so many events, each with all that is due before the next.
void Play(const Program& program, int events, std::vector<Seconds>& times) {
  std::mt19937 random(14);
  Engine engine(program);
  Time now = {};
  std::optional<Time> deadline;
  const auto step = [&](const Event& event) {
    const Seconds start = ThreadTime();
    deadline = engine.Step(event, now).deadline;
    times.push_back(ThreadTime() - start);
  };
  for (int i = 0; i < events; ++i) {
    const Time next = now + kBetween;
    while (deadline && *deadline < next) {
      now = std::max(now, *deadline);
      step({});
    }
    now = next;
    step(Any(program, random));
  }
}

Seconds At(std::vector<Seconds>& times, double part) {
  const auto place = static_cast<std::size_t>(static_cast<double>(times.size() - 1) * part);
  std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(place));
  return times[place];
}

bool Report(const std::string& what, std::vector<Seconds>& times) {
  return bench::Report(what, {At(times, 0.99), kGoal}, Goal::AtMost, 1);
}

}  // namespace

int main() {
  bool holds = true;
  std::vector<Seconds> times;
  for (const model::Pair& pair : model::Pairs())
    Play(Played(pair.joystick, pair.macros).program, 5000, times);
  holds &= Report("99th percentile of a step over all pairs, beside 10 us", times);
  times.clear();
  const std::vector<model::Pair> samples = model::PairsIn(TARVIK_DATA "/samples");
  for (const model::Pair& pair : samples) Play(Played(pair.joystick, pair.macros).program, kEvents, times);
  holds &= Report("the same of a minute with 1,000 events a second", times);
  Seconds spent = 0;
  for (const Seconds each : times) spent += each;
  const Seconds minutes = 60.0 * static_cast<Seconds>(samples.size());
  holds &= bench::Report("all steps of those minutes, beside 1 % of a core", {spent, minutes * 0.01},
                         Goal::AtMost, 1);
  return holds ? 0 : 1;
}
