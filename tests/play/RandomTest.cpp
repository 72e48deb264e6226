// Anything at any time over all pairs: nothing stays down, and nothing is taken from the memory.
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <random>

#include "support/Pairs.h"
#include "support/Played.h"

namespace {
std::size_t allocations = 0;
}  // namespace

[[gnu::noinline]] void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace tarvik::play {
namespace {

class RandomHand {
 public:
  RandomHand(const Program& program, unsigned seed) : program_(program), random_(seed), engine_(program) {}

  void Do(int events) {
    for (int i = 0; i < events; ++i) {
      // Now and then somebody waits, else everything comes at once.
      if (random_() % 4 == 0) Pass(Time(random_() % 40000));
      Keep(engine_.Step(Any(), now_));
    }
  }

  /// Lets go of everything, and waits until nothing is being sent.
  void Rest() {
    for (std::uint32_t i = 0; i < program_.controls.size(); ++i)
      Keep(engine_.Step({EventKind::Up, i, 0}, now_));
    for (int i = 0; i < 2000000 && engine_.IsRunning() && deadline_; ++i) {
      now_ = std::max(now_, *deadline_);
      Keep(engine_.Step({}, now_));
    }
  }

  Engine& engine() { return engine_; }
  [[nodiscard]] int FlagsUp() const {
    int up = 0;
    for (const FlagProgram& flag : program_.flags) up += engine_.IsControlDown(flag.control) ? 1 : 0;
    return up;
  }
  [[nodiscard]] bool Balanced() const { return wrong_ == 0; }

 private:
  Event Any() {
    const std::uint32_t kind = random_() % 8;
    if (kind == 0)
      return {EventKind::Move, static_cast<std::uint32_t>(random_() % 6),
              static_cast<double>(random_() % 101) / 100};
    if (kind == 1) return {EventKind::Switch, static_cast<std::uint32_t>(random_() % 3), 0};
    const auto control = static_cast<std::uint32_t>(random_() % program_.controls.size());
    return {kind < 5 ? EventKind::Down : EventKind::Up, control, 0};
  }

  void Pass(Time wait) {
    const Time until = now_ + wait;
    while (deadline_ && *deadline_ <= until) {
      now_ = std::max(now_, *deadline_);
      Keep(engine_.Step({}, now_));
    }
    now_ = until;
  }

  /// A key goes down when it is up, and up when it is down.
  void Keep(const StepResult& result) {
    deadline_ = result.deadline;
    for (const Output& each : result.outputs) {
      if (each.kind != OutputKind::Key) continue;
      if (down_[each.number] == each.down) ++wrong_;
      down_[each.number] = each.down;
    }
  }

  const Program& program_;
  std::mt19937 random_;
  Engine engine_;
  Time now_ = {};
  std::optional<Time> deadline_;
  std::array<bool, kKeyCount> down_ = {};
  int wrong_ = 0;
};

constexpr int kEventsAtAll = 100000;

TEST(Random, NothingStaysDown) {
  for (const unsigned seed : {1U, 2U, 3U}) {
    for (const model::Pair& pair : model::Pairs()) {
      const Played played(pair.joystick, pair.macros);
      RandomHand hand(played.program, seed);
      hand.Do(kEventsAtAll / static_cast<int>(model::Pairs().size()));
      hand.Rest();
      EXPECT_TRUE(hand.Balanced()) << pair.path;
      if (hand.FlagsUp() == 0) {
        EXPECT_FALSE(hand.engine().AnyKeyDown()) << pair.path << ", seed " << seed;
      }
      hand.engine().Stop(Time(std::chrono::hours(100)));
      EXPECT_FALSE(hand.engine().AnyKeyDown()) << pair.path;
    }
  }
}

TEST(Random, AStepTakesNoMemory) {
  for (const model::Pair& pair : model::Pairs()) {
    const Played played(pair.joystick, pair.macros);
    RandomHand hand(played.program, 7);
    const std::size_t before = allocations;
    hand.Do(2000);
    EXPECT_EQ(allocations, before) << pair.path;
  }
}

}  // namespace
}  // namespace tarvik::play
