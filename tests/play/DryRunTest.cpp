// A dry run by hand and by a trace sends what the trace itself does, step by step or in one go, and can be
// saved and read again.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "play/DryRun.h"
#include "support/Played.h"
#include "support/TraceFiles.h"

namespace tarvik::play {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Time kLongEnough = std::chrono::hours(2);

/// A dry run whose outputs are kept as lines without their places.
class Tried {
 public:
  explicit Tried(Program program) : run(std::move(program), [this](const Output& output) { Keep(output); }) {}

  void Keep(const Output& output) {
    std::string line = output.kind == OutputKind::Key ? NameOf(output.number) : "?";
    line.append(output.down ? " down" : " up");
    sent.push_back(std::move(line));
  }
  void Do(EventKind kind, const char* control) { run.Do({kind, *run.program().FindControl(control), 0}); }

  std::vector<std::string> sent;
  DryRun run;
};

Program Made(const std::string& joystick) { return Played(joystick).program; }

TEST(DryRun, SendsWhatTheTraceSends) {
  for (const TraceFile& file : TraceFiles()) {
    const Played played(file.joystick, file.macros);
    const auto trace = std::get<Trace>(ReadTrace(file.text, played.program));
    std::vector<std::string> came;
    DryRun run(played.program,
               [&](const Output& output) { came.push_back(Printed(output, run.program(), file.Files())); });
    run.LetGo();
    came.clear();
    run.Begin();
    run.Play(trace);
    while (run.IsPlaying()) run.Pass(milliseconds(1));
    run.Pass(std::chrono::seconds(1));
    run.LetGo();
    ASSERT_EQ(came, Play(trace, played.program, file.Files()).All()) << file.path;
  }
}

TEST(DryRun, WritesWhatWasDoneAsATraceThatSendsTheSame) {
  Tried tried(Made("BTN S1 /T a /T b\nTHR 2 3 (1 2 3)\n"));
  tried.Do(EventKind::Down, "S1");
  tried.run.Pass(milliseconds(120));
  tried.Do(EventKind::Up, "S1");
  tried.run.Pass(Time(1500));
  tried.run.Do({EventKind::Move, 0, 0.3335});
  tried.run.Do({EventKind::Switch, kSwitchUp, 0});
  EXPECT_THAT(tried.run.Lines(),
              ElementsAre("S1 down", "120ms", "S1 up", "1.5ms", "THR 33.4%", "DOGFIGHT up"));
  tried.run.LetGo();
  EXPECT_EQ(tried.run.Lines().back(), "stop");
  EXPECT_EQ(tried.run.SwitchPlace(), kSwitchInMiddle);
}

TEST(DryRun, TimeStandsStillUntilSomethingIsDone) {
  Tried tried(Made("BTN S1 a\n"));
  tried.run.Pass(kLongEnough);
  EXPECT_EQ(tried.run.now(), Time{});
  EXPECT_FALSE(tried.run.PassToNext());
  tried.Do(EventKind::Down, "S1");
  tried.run.Pass(milliseconds(5));
  EXPECT_EQ(tried.run.now(), milliseconds(5));
}

TEST(DryRun, GoesStepByStep) {
  Tried tried(Made("BTN S1 /P a DLY(100) b\n"));
  tried.Do(EventKind::Down, "S1");
  EXPECT_THAT(tried.sent, ElementsAre("a down"));
  EXPECT_TRUE(tried.run.PassToNext());
  EXPECT_THAT(tried.sent, ElementsAre("a down", "a up"));
  while (tried.run.PassToNext()) continue;
  EXPECT_THAT(tried.sent, ElementsAre("a down", "a up", "b down", "b up"));
}

TEST(DryRun, LetsGoWhenTheFilesChangeAndKeepsTheSwitches) {
  Tried tried(Made("BTN S1 a\nBTN S2 /U b /M c\n"));
  tried.Do(EventKind::Down, "S1");
  tried.run.Do({EventKind::Switch, kSwitchUp, 0});
  tried.sent.clear();
  tried.run.Exchange(Made("BTN S1 x\nBTN S2 /U /I y /O z /M c\n"), std::vector<std::string>{"S3"});
  EXPECT_THAT(tried.sent, ElementsAre("a up"));
  tried.sent.clear();
  tried.Do(EventKind::Down, "S2");
  EXPECT_THAT(tried.sent, ElementsAre("y down"));
}

TEST(DryRun, KnowsWhichButtonsAreDown) {
  Tried tried(Made("PORTB1 IS S1\n"));
  tried.Do(EventKind::Down, "S1");
  EXPECT_TRUE(tried.run.IsDown(OutputKind::Port, 1));
  EXPECT_FALSE(tried.run.IsDown(OutputKind::Mouse, 1));
  tried.run.Exchange(Made(""), {});
  EXPECT_FALSE(tried.run.IsDown(OutputKind::Port, 1));
}

TEST(DryRun, BeginsAnewWithNothingDown) {
  Tried tried(Made("BTN S1 a\n"));
  tried.Do(EventKind::Down, "S1");
  tried.run.Pass(milliseconds(30));
  tried.run.Begin();
  EXPECT_THAT(tried.run.Lines(), IsEmpty());
  EXPECT_EQ(tried.run.now(), Time{});
  EXPECT_FALSE(tried.run.engine().AnyKeyDown());
}

}  // namespace
}  // namespace tarvik::play
