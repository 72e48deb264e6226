// The real sticks on some that exist within the library alone.
#include <gmock/gmock.h>

#include <QTest>

#include "VirtualStick.h"
#include "play/StickReader.h"
#include "screen/services/SdlJoystick.h"
#include "screen/services/SdlSticks.h"

namespace tarvik::screen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using enum StickChangeKind;

class SdlSticksTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { ASSERT_EQ(SDL_InitSubSystem(SDL_INIT_JOYSTICK), 0); }
  static void TearDownTestSuite() { SDL_QuitSubSystem(SDL_INIT_JOYSTICK); }
  void SetUp() override {
    if (SDL_NumJoysticks() > 0) GTEST_SKIP() << "there is a real stick";
    sticks.plugged = [this](const StickInfo& info) { found.push_back(info); };
    sticks.unplugged = [this](int stick) { lost.push_back(stick); };
    sticks.changed = [this](const StickChange& change) {
      (change.atStart ? first : changes).push_back(change);
    };
  }

  [[nodiscard]] bool Comes(std::size_t count) {
    return QTest::qWaitFor([&] { return changes.size() >= count; });
  }

  std::vector<StickInfo> found;
  std::vector<int> lost;
  std::vector<StickChange> first;
  std::vector<StickChange> changes;
  SdlSticks sticks;
};

TEST_F(SdlSticksTest, WithoutAStickNothingIsTold) {
  ASSERT_TRUE(sticks.Start());
  EXPECT_THAT(found, IsEmpty());
}

TEST_F(SdlSticksTest, TellsWhereAStickStandsAtTheStart) {
  VirtualStick stick(2, 2, "Stick", 1);
  stick.Move({-20000, 30000});
  stick.Press(1);
  stick.Turn(0, SDL_HAT_LEFT);
  ASSERT_TRUE(sticks.Start());
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].number, stick.Number());
  EXPECT_EQ(found[0].name, "Stick");
  EXPECT_EQ(found[0].guid.size(), 32U);
  EXPECT_EQ(found[0].path, "");
  EXPECT_EQ(found[0].hats, 1);
  const int n = stick.Number();
  EXPECT_THAT(first,
              ElementsAre(StickChange{n, Button, 0, 0, true}, StickChange{n, Button, 1, 1, true},
                          StickChange{n, Hat, 0, SDL_HAT_LEFT, true}, StickChange{n, Axis, 0, -20000, true},
                          StickChange{n, Axis, 1, 30000, true}));
  EXPECT_THAT(changes, IsEmpty());
}

TEST_F(SdlSticksTest, TellsWhatTwoSticksDoAtATime) {
  VirtualStick one(1, 1, "One");
  VirtualStick two(1, 1, "Two", 1);
  ASSERT_TRUE(sticks.Start());
  one.Press(0);
  ASSERT_TRUE(Comes(1));
  two.Turn(0, SDL_HAT_RIGHTUP);
  ASSERT_TRUE(Comes(2));
  one.Press(0, false);
  ASSERT_TRUE(Comes(3));
  two.Press(0);
  ASSERT_TRUE(Comes(4));
  EXPECT_THAT(changes,
              ElementsAre(StickChange{one.Number(), Button, 0, 1}, StickChange{two.Number(), Hat, 0, 3},
                          StickChange{one.Number(), Button, 0, 0}, StickChange{two.Number(), Button, 0, 1}));
}

TEST_F(SdlSticksTest, AnAxisEndsWhereItIs) {
  VirtualStick stick(1, 0);
  ASSERT_TRUE(sticks.Start());
  stick.Move({12345});
  ASSERT_TRUE(QTest::qWaitFor([&] { return !changes.empty() && changes.back().value == 12345; }));
}

TEST_F(SdlSticksTest, TellsOfSticksThatComeAndGo) {
  ASSERT_TRUE(sticks.Start());
  auto one = std::make_unique<VirtualStick>(1, 1, "One");
  const int number = one->Number();
  VirtualStick two(1, 1, "Two");
  ASSERT_TRUE(QTest::qWaitFor([&] { return found.size() == 2; }));
  one->Press(0);
  ASSERT_TRUE(Comes(1));
  one.reset();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !lost.empty(); }));
  EXPECT_THAT(lost, ElementsAre(number));
  changes.clear();
  two.Press(0);
  ASSERT_TRUE(Comes(1));
  EXPECT_THAT(changes, ElementsAre(StickChange{two.Number(), Button, 0, 1}));
  const VirtualStick again(1, 1, "One");
  ASSERT_TRUE(QTest::qWaitFor([&] { return found.size() == 3; }));
  EXPECT_NE(found.back().number, number);
}

TEST_F(SdlSticksTest, TwoSticksPlayTheControlsOfAMapUntilOneIsUnplugged) {
  std::vector<std::string> heard;
  play::StickReader reader([&heard](const play::ControlEvent& event) {
    heard.push_back(std::string(event.control).append(event.kind == play::EventKind::Down ? " down" : " up"));
  });
  std::vector<std::unique_ptr<VirtualStick>> plugged;
  plugged.push_back(std::make_unique<VirtualStick>(0, 2, "One"));
  plugged.push_back(std::make_unique<VirtualStick>(0, 2, "Two"));
  play::StickMap map;
  sticks.plugged = [&](const StickInfo& info) {
    const play::StickId id{info.guid, info.name, info.name};
    map.Set(id, play::InputIn("button 1").value(), info.name == "One" ? "S1" : "T1");
    reader.Use(map);
    reader.Plug(info.number, id);
  };
  sticks.unplugged = [&](int stick) { reader.Unplug(stick); };
  sticks.changed = [&](const StickChange& change) {
    reader.Change(change.stick, play::StickPart::Button, change.number, change.value,
                  change.atStart ? play::StickReader::Moment::Start : play::StickReader::Moment::Now);
  };
  ASSERT_TRUE(sticks.Start());
  const auto comes = [&heard](std::size_t count) {
    return QTest::qWaitFor([&heard, count] { return heard.size() >= count; });
  };
  plugged[0]->Press(0);
  ASSERT_TRUE(comes(1));
  plugged[1]->Press(0);
  ASSERT_TRUE(comes(2));
  plugged.erase(plugged.begin());
  ASSERT_TRUE(comes(3));
  plugged[0]->Press(0, false);
  ASSERT_TRUE(comes(4));
  EXPECT_THAT(heard, ElementsAre("S1 down", "T1 down", "S1 up", "T1 up"));
}

TEST_F(SdlSticksTest, StoppedItTellsNothingAndStartsAnew) {
  VirtualStick stick(0, 1);
  ASSERT_TRUE(sticks.Start());
  sticks.Stop();
  stick.Press(0);
  QTest::qWait(50);
  EXPECT_THAT(changes, IsEmpty());
  ASSERT_TRUE(sticks.Start());
  EXPECT_EQ(found.size(), 2U);
  EXPECT_EQ(first.back(), (StickChange{stick.Number(), Button, 0, 1, true}));
}

TEST_F(SdlSticksTest, WhoHearsOfItMayStopIt) {
  VirtualStick stick(2, 2);
  sticks.changed = [this](const StickChange& change) {
    changes.push_back(change);
    sticks.Stop();
  };
  ASSERT_TRUE(sticks.Start());
  EXPECT_EQ(changes.size(), 1U);
  sticks.plugged = [this](const StickInfo&) { sticks.Stop(); };
  sticks.Start();
  EXPECT_EQ(changes.size(), 1U);
}

TEST_F(SdlSticksTest, TheJoystickTestGoesOnBesideIt) {
  VirtualStick stick(2, 2);
  ASSERT_TRUE(sticks.Start());
  SdlJoystick joystick;
  ASSERT_TRUE(joystick.GetDevCaps());
  stick.Press(1);
  ASSERT_TRUE(joystick.GetPosEx());
  EXPECT_EQ(joystick.GetPosEx()->buttons, 2U);
  ASSERT_TRUE(Comes(1));
  EXPECT_EQ(changes.back(), (StickChange{stick.Number(), Button, 1, 1}));
}

}  // namespace
}  // namespace tarvik::screen
