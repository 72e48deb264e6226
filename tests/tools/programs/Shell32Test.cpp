#include <gtest/gtest.h>

#include "app/Mum.h"
#include "app/Program.h"
#include "support/Printers.h"
#include "tools/programs/ProgramWait.h"
#include "tools/programs/Shell32.h"

namespace tarvik {
namespace {

using session::ProgramStart;

class Shell32Test : public testing::Test {
 protected:
  /// Has this happen once while a program is waited for; then, as on the real screen, time goes by.
  void Meanwhile(std::function<void()> what) {
    program.outside.programs.state = ProgramState::Running;
    program.outside.dialogs.next = [this, what = std::move(what), looks = 0]() mutable {
      if (looks++ == 0) what();
      auto* const window = program.application.LoadedTool<ProgramWait>();
      if (window && window->Visible) window->Timer1.Elapsed();
      return looks < 10000;
    };
  }
  void End(ProgramState state) { program.outside.programs.state = state; }
  Outcome<WaitEnd> Wait(std::optional<int> style = {}, int timeout = kNoLimit) {
    return ShellAndWait(program.application.workbench, program.application, "c:\\x.exe", style, timeout);
  }
  void ExpectEnd(WaitEnd end, int timeout = kNoLimit) {
    const Outcome<WaitEnd> waited = Wait({}, timeout);
    ASSERT_TRUE(waited) << waited.failure().text;
    EXPECT_EQ(*waited, end);
  }
  [[nodiscard]] const std::deque<ProgramStart>& started() const { return program.outside.programs.started; }

  Program program;
};

TEST_F(Shell32Test, GivesWhatTheWaitGave) {
  ExpectEnd(WaitEnd::Ended);
  Meanwhile([this] { End(ProgramState::Ended); });
  ExpectEnd(WaitEnd::Ended);
  Meanwhile([this] { End(ProgramState::Abandoned); });
  ExpectEnd(WaitEnd::Abandoned);
  Meanwhile([this] { program.application.LoadedTool<ProgramWait>()->Command1.Click(); });
  ExpectEnd(WaitEnd::Abandoned);
  EXPECT_EQ(program.outside.programs.alive, 0);
}

TEST_F(Shell32Test, WaitsAsLongAsItIsTold) {
  ProgramWait* window = nullptr;
  Meanwhile([&] { window = program.application.LoadedTool<ProgramWait>(); });
  ExpectEnd(WaitEnd::TimedOut, 1000);
  ASSERT_TRUE(window);
  EXPECT_EQ(window->Waited, 1000);
  EXPECT_EQ(program.outside.programs.alive, 0) << "nobody waits for it any more";
  Meanwhile([] {});
  ExpectEnd(WaitEnd::TimedOut, 0);
  Meanwhile([this] { End(ProgramState::Ended); });
  ExpectEnd(WaitEnd::Ended, -1);
}

TEST_F(Shell32Test, FailsWithANegativeNumberForWhatDoesNotStart) {
  program.outside.programs.fails = 53;
  const Outcome<WaitEnd> waited = Wait();
  ASSERT_FALSE(waited);
  EXPECT_EQ(waited.failure().number, static_cast<int>(0x80040035U));
  EXPECT_EQ(waited.failure().text, "The program did not start");
  EXPECT_FALSE(program.application.LoadedTool<ProgramWait>());
}

TEST_F(Shell32Test, AlwaysStartsInANormalWindow) {
  for (const std::optional<int> style : {std::optional<int>(), std::optional(-1), std::optional(0),
                                         std::optional(3), std::optional(6), std::optional(7)}) {
    EXPECT_TRUE(Wait(style));
    EXPECT_EQ(started().back().style, WindowStyle::Normal);
  }
}

TEST_F(Shell32Test, StartsNothingWhileAnotherIsWaitedFor) {
  int second = 0;
  Meanwhile([&] {
    second = Wait().failure().number;
    End(ProgramState::Ended);
  });
  ExpectEnd(WaitEnd::Ended);
  EXPECT_EQ(second, static_cast<int>(0x80040046U));
  EXPECT_EQ(started().size(), 1U);
}

TEST_F(Shell32Test, HoldsTheTimersOfTheOtherForms) {
  Timer& timer = program.editor().Timer1;
  Timer& blink = program.editor().TimerBlinkLine;
  timer.Enabled = true;
  blink.Enabled = false;
  Meanwhile([&] {
    EXPECT_FALSE(timer.Enabled);
    EXPECT_TRUE(program.application.LoadedTool<ProgramWait>()->Timer1.Enabled);
    End(ProgramState::Ended);
  });
  EXPECT_TRUE(Wait());
  EXPECT_TRUE(timer.Enabled);
  EXPECT_FALSE(blink.Enabled);
}

TEST_F(Shell32Test, TheProgramEndsWithTarvik) {
  Meanwhile([this] { program.application.CloseMum(); });
  EXPECT_TRUE(Wait());
  EXPECT_EQ(program.outside.programs.alive, 0);
}

}  // namespace
}  // namespace tarvik
