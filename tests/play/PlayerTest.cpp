// What is really sent is what the engine says, a stroke at a time, and nothing stays down whatever happens.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "play/DryRun.h"
#include "play/Player.h"
#include "support/Played.h"
#include "support/TraceFiles.h"

namespace tarvik::play {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;
using Strokes = std::vector<std::pair<Position, bool>>;

constexpr Position kA = 30;
constexpr Position kLeftShift = 42;

std::string_view NameOfEvent(const Event& event, const Program& program) {
  if (event.kind == EventKind::Switch) return "DOGFIGHT";
  return event.kind == EventKind::Move ? kAxisNames[event.index] : program.controls[event.index];
}

/// A player with a clock and a machine that keeps what it is sent.
class Machine {
 public:
  explicit Machine(Program program)
      : player(
            std::move(program), [this](Position position, bool down) { Hear(position, down); }, Time{}) {}

  void Do(const Event& event) {
    const auto place = event.kind == EventKind::Switch ? event.index : 0;
    player.Feed({event.kind, NameOfEvent(event, player.program()), event.position, place}, now);
  }
  void Do(EventKind kind, std::string_view control) { player.Feed({kind, control}, now); }
  void Pass(Time wait) {
    const Time until = now + wait;
    for (auto due = player.Deadline(); due && *due <= until; due = player.Deadline()) {
      now = std::max(now, *due);
      player.Wake(now);
    }
    now = until;
  }

  /// A key goes down when it is up, and its strokes and those of modifiers are apart.
  void Hear(Position position, bool down) {
    if (isDown_[position] == down) wrong.push_back(position);
    isDown_[position] = down;
    const auto before = changed_.find(position);
    if (!isStopping && before != changed_.end() && now - before->second < kStrokeGap)
      close.push_back(position);
    if (!isStopping && now - modifierChanged_ < kStrokeGap) close.push_back(position);
    changed_[position] = now;
    if (IsModifier(position)) modifierChanged_ = now;
    sent.emplace_back(position, down);
  }
  [[nodiscard]] bool AnyDown() const {
    return std::ranges::any_of(isDown_, [](const auto& each) { return each.second; });
  }

  Time now = {};
  Strokes sent;
  std::vector<Position> wrong;
  std::vector<Position> close;
  bool isStopping = false;

 private:
  std::map<Position, bool> isDown_;
  std::map<Position, Time> changed_;
  Time modifierChanged_ = milliseconds(-1);

 public:
  Player player;  // which is heard until its end
};

/// What the engine says, where each position is down as long as one of its codes is.
Strokes StrokesOf(const Trace& trace, const Program& program) {
  Strokes strokes;
  std::map<Position, int> holders;
  DryRun run(program, [&](const Output& output) {
    const auto position = PositionOf(output);
    if (!position) return;
    int& count = holders[*position];
    const bool wasDown = count > 0;
    count += output.down ? 1 : -1;
    if (wasDown != (count > 0)) strokes.emplace_back(*position, output.down);
  });
  run.Play(trace);
  while (run.IsPlaying()) run.Pass(milliseconds(1));
  run.Pass(std::chrono::seconds(1));
  return strokes;
}

TEST(Player, SendsWhatTheEngineSaysInEveryTrace) {
  for (const TraceFile& file : TraceFiles()) {
    const Played played(file.joystick, file.macros);
    const auto trace = std::get<Trace>(ReadTrace(file.text, played.program));
    const Strokes expected = StrokesOf(trace, played.program);
    Machine machine(played.program);
    for (const TraceStep& step : trace.steps) {
      if (step.kind == TraceStep::Kind::Event) machine.Do(step.event);
      if (step.kind == TraceStep::Kind::Wait) machine.Pass(step.wait);
      machine.isStopping = step.kind == TraceStep::Kind::Stop;
      if (machine.isStopping) machine.player.Stop(machine.now);
    }
    machine.Pass(std::chrono::seconds(1));
    EXPECT_THAT(machine.wrong, IsEmpty()) << file.path;
    EXPECT_THAT(machine.close, IsEmpty()) << file.path;
    // A stop sends in the order of the keys.
    if (!machine.isStopping) {
      EXPECT_EQ(machine.sent, expected) << file.path;
    }
    machine.isStopping = true;
    machine.player.Stop(machine.now);
    EXPECT_FALSE(machine.AnyDown()) << file.path;
    EXPECT_FALSE(machine.player.AnyDown()) << file.path;
  }
}

TEST(Player, LeavesNothingDownHoweverItEnds) {
  const Played played(
      "BTN S1 a b c\nBTN S2 SHF a\nBTN S3 /I d /O e\nBTN TG1 /H f\nBTN H1U /A g\nBTN H1D /T h /T i\n"
      "THR 2 10 (1 2 3 4 5 6 7 8 9 0)\n");
  std::mt19937 random(7);
  Machine machine(played.program);
  const auto controls = static_cast<std::uint32_t>(played.program.controls.size());
  for (int i = 0; i < 100000; ++i) {
    const std::uint32_t kind = random() % 8;
    if (kind < 6)
      machine.Do(
          {kind % 2 == 0 ? EventKind::Down : EventKind::Up, static_cast<std::uint32_t>(random() % controls)});
    if (kind == 6) machine.Do({EventKind::Move, 0, static_cast<double>(random() % 101) / 100});
    if (kind == 7) machine.Pass(Time(random() % 40000));
    if (random() % 200 != 0) continue;
    machine.isStopping = true;
    machine.player.Stop(machine.now);
    machine.isStopping = false;
    machine.Pass(milliseconds(50));
    ASSERT_THAT(machine.wrong, IsEmpty());
    ASSERT_EQ(machine.AnyDown(), machine.player.AnyDown());
  }
}

TEST(Player, AStopLetsGoAtOnceAlsoOfWhatWaits) {
  Machine machine(Played("BTN S1 /H SHF a\nBTN S2 /H b\n").program);
  machine.Do(EventKind::Down, "S1");
  machine.Do(EventKind::Down, "S2");
  machine.Pass(milliseconds(10));
  EXPECT_TRUE(machine.AnyDown());
  machine.isStopping = true;
  machine.player.Stop(machine.now);
  EXPECT_FALSE(machine.AnyDown());
  EXPECT_THAT(machine.wrong, IsEmpty());
  machine.sent.clear();
  machine.Pass(std::chrono::seconds(5));
  machine.Do(EventKind::Up, "S1");
  machine.Do(EventKind::Up, "S2");
  machine.Pass(std::chrono::seconds(5));
  EXPECT_THAT(machine.sent, IsEmpty());
}

TEST(Player, ItsEndLetsGo) {
  Strokes sent;
  {
    Player player(
        Played("BTN S1 /H a\n").program,
        [&](Position position, bool down) { sent.emplace_back(position, down); }, Time{});
    player.Feed({EventKind::Down, "S1"}, Time{});
  }
  EXPECT_THAT(sent, ElementsAre(std::pair(kA, true), std::pair(kA, false)));
}

TEST(Player, TwoKeysOfOnePlaceAreOneKey) {
  // Print screen as it comes alone and behind Alt.
  Machine machine(Played("BTN S1 RAW (84)\nBTN S2 /H PRNTSCRN\n").program);
  machine.player.Stop(machine.now);
  machine.Do(EventKind::Down, "S1");
  machine.Do(EventKind::Up, "S1");
  machine.Pass(std::chrono::seconds(1));
  EXPECT_THAT(machine.wrong, IsEmpty());
}

TEST(Player, AModifierIsAheadOfItsKey) {
  Machine machine(Played("BTN S1 A\n").program);
  machine.Do(EventKind::Down, "S1");
  machine.Do(EventKind::Up, "S1");
  machine.Pass(std::chrono::seconds(1));
  EXPECT_THAT(machine.sent, ElementsAre(std::pair(kLeftShift, true), std::pair(kA, true),
                                        std::pair(kA, false), std::pair(kLeftShift, false)));
  EXPECT_THAT(machine.close, IsEmpty());
}

TEST(Player, SendsAThousandChangesASecondWithNothingLost) {
  constexpr std::array<std::string_view, 25> kControls = {
      "S1",  "S2",  "S4",  "H1U", "H1D", "H1L", "H1R", "H2U", "H2D", "H2L", "H2R", "H3U", "H3D",
      "H3L", "H3R", "H4U", "H4D", "H4L", "H4R", "T1",  "T2",  "T3",  "T4",  "T5",  "T6"};
  std::string text;
  for (std::size_t i = 0; i < kControls.size(); ++i) {
    text.append("BTN ")
        .append(kControls[i])
        .append(" /H ")
        .append(1, static_cast<char>('a' + i))
        .append("\n");
  }
  Machine machine(Played(text).program);
  // Each is down for half of 50 ms.
  std::array<bool, kControls.size()> isDown = {};
  for (std::size_t i = 0; i < 60000; ++i) {
    const std::size_t which = i % kControls.size();
    isDown[which] = !isDown[which];
    machine.Do(isDown[which] ? EventKind::Down : EventKind::Up, kControls[which]);
    machine.Pass(milliseconds(1));
  }
  machine.Pass(milliseconds(100));
  EXPECT_EQ(machine.sent.size(), 60000U);
  EXPECT_THAT(machine.wrong, IsEmpty());
  EXPECT_FALSE(machine.AnyDown());
}

}  // namespace
}  // namespace tarvik::play
