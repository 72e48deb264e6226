#include <gmock/gmock.h>

#include "support/BareWorkbench.h"
#include "workbench/FollowStick.h"

namespace tarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class FollowStickTest : public testing::Test {
 protected:
  FollowStickTest() {
    bare.joystick.text.SetContent(
        RichText("Rem Head\r\nBTN S1 a\r\n       b\r\nBTN H1U c\r\nTHR 1 2 3 a b\r\n"));
    stick = bare.outside.sticks.Plug({0, "0300", "Stick", "port", 1, 4, 1});
    play::StickMap map;
    for (const auto& [input, control] : std::initializer_list<std::pair<const char*, const char*>>{
             {"button 1", "S1"}, {"button 2", "S4"}, {"hat 1", "H1"}, {"axis 1", "THR"}}) {
      map.Set({"0300", "Stick", "port"}, play::InputIn(input).value(), control);
    }
    bare.workbench.sticks.Use(map);
    connection_ = follow.Shows.Connect([this] { ++shown; });
  }

  void Follow(bool on = true) { bare.workbench.settings.FollowStick = on ? 1 : 0; }
  void Button(int number, bool down = true) {
    bare.outside.sticks.Move(stick, StickChangeKind::Button, number - 1, down ? 1 : 0);
  }
  void Type() {
    bare.joystick.text.Select({0, 0});
    bare.joystick.text.SelText = "x";
  }
  std::vector<std::string> Glowing() {
    std::vector<std::string> words;
    for (const model::Mention& each : follow.Glow()) {
      const Document& document = DocumentOf(bare.workbench.documents, each.file);
      words.emplace_back(document.text.Characters().substr(each.range.start, each.range.length));
    }
    return words;
  }

  BareWorkbench bare;
  FollowStick& follow = bare.workbench.follow;
  int stick = 0;
  int shown = 0;

 private:
  Connection connection_;
};

TEST_F(FollowStickTest, ReadsNoStickUntilItIsOn) {
  EXPECT_FALSE(bare.outside.sticks.IsListening());
  Button(1);
  EXPECT_FALSE(follow.Lights("S1"));
  Follow();
  EXPECT_TRUE(bare.outside.sticks.IsListening());
  Follow(false);
  EXPECT_FALSE(bare.outside.sticks.IsListening());
}

TEST_F(FollowStickTest, LightsWhatIsPressedAndShowsItsStatement) {
  Follow();
  Button(1);
  EXPECT_TRUE(follow.Lights("S1"));
  EXPECT_THAT(Glowing(), ElementsAre(StartsWith("BTN S1 a\r\n       b")));
  EXPECT_EQ(shown, 1);
  Button(1, false);
  EXPECT_FALSE(follow.Lights("S1"));
  EXPECT_THAT(Glowing(), ElementsAre(StartsWith("BTN S1")));
}

TEST_F(FollowStickTest, WhatTheStatementSendsGlowsInTheMacroFile) {
  bare.joystick.text.SetContent(RichText("BTN S2 Zoom\r\nBTN S1 /U Fire /M Gear Nowhere /D Fire\r\n"));
  bare.macro.text.SetContent(RichText("Gear = g\r\nZoom = z\r\nFire = SPC Zoom\r\n       b\r\n"));
  Follow();
  Button(1);
  EXPECT_THAT(Glowing(), ElementsAre(StartsWith("BTN S1"), StartsWith("Gear = g"),
                                     StartsWith("Fire = SPC Zoom\r\n       b")));
  bare.macro.text.Select({0, 0});
  bare.macro.text.SelText = "x";
  EXPECT_THAT(follow.Glow(), IsEmpty());
}

TEST_F(FollowStickTest, AHatThatComesBackLightsNoMore) {
  Follow();
  bare.outside.sticks.Move(stick, StickChangeKind::Hat, 0, 1);
  EXPECT_TRUE(follow.Lights("H1U"));
  bare.outside.sticks.Move(stick, StickChangeKind::Hat, 0, 0);
  EXPECT_FALSE(follow.Lights("H1U"));
  EXPECT_FALSE(follow.Lights("H1M"));
  EXPECT_THAT(Glowing(), ElementsAre(StartsWith("BTN H1U")));
}

TEST_F(FollowStickTest, WithoutAStatementNothingGlows) {
  Follow();
  Button(1);
  Button(2);
  EXPECT_TRUE(follow.Lights("S4"));
  EXPECT_THAT(follow.Glow(), IsEmpty());
  EXPECT_EQ(shown, 1);
}

TEST_F(FollowStickTest, NeverScrollsWhileTheUserTypes) {
  Follow();
  Type();
  Button(1);
  EXPECT_TRUE(follow.Lights("S1"));
  EXPECT_EQ(shown, 0);
  EXPECT_TRUE(follow.typing.timer.Enabled);
  follow.typing.timer.Elapsed();
  Button(1, false);
  Button(1);
  EXPECT_EQ(shown, 1);
}

TEST_F(FollowStickTest, AnEditEndsTheGlow) {
  Follow();
  Button(1);
  Type();
  EXPECT_THAT(follow.Glow(), IsEmpty());
}

TEST_F(FollowStickTest, LightsTheControlOfTheStatementAtTheCaret) {
  bare.joystick.text.Select({0, 0});
  Follow();
  EXPECT_FALSE(follow.Lights("H1U"));
  EXPECT_FALSE(follow.Lights(""));
  bare.joystick.text.Select({bare.joystick.text.Characters().find("H1U"), 0});
  EXPECT_TRUE(follow.Lights("H1U"));
  EXPECT_THAT(follow.Glow(), IsEmpty());
  EXPECT_EQ(shown, 0);
  bare.joystick.text.Select({0, 0});
  EXPECT_FALSE(follow.Lights("H1U"));
}

TEST_F(FollowStickTest, AnAxisLightsForAWhileWhenItHasGoneSomeWay) {
  Follow();
  const auto move = [this](int value) { bare.outside.sticks.Move(stick, StickChangeKind::Axis, 0, value); };
  move(3000);
  EXPECT_FALSE(follow.Lights("THR"));
  move(12000);
  EXPECT_TRUE(follow.Lights("THR"));
  EXPECT_THAT(Glowing(), ElementsAre(StartsWith("THR 1")));
  follow.resting.timer.Elapsed();
  EXPECT_FALSE(follow.Lights("THR"));
}

TEST_F(FollowStickTest, UnpluggedAStickLightsNothing) {
  Follow();
  Button(1);
  bare.outside.sticks.Unplug(stick);
  EXPECT_FALSE(follow.Lights("S1"));
}

TEST_F(FollowStickTest, AMapIsKeptAndReadAgain) {
  Workbench again(bare.platform);
  again.settings.GetOptions();
  EXPECT_EQ(again.sticks.Map(), bare.workbench.sticks.Map());
  EXPECT_THAT(again.sticks.Map().Sticks(), SizeIs(1));
}

TEST_F(FollowStickTest, TwoWhoListenHearAndTheLastOneEndsIt) {
  auto one = bare.workbench.sticks.Listen();
  auto two = bare.workbench.sticks.Listen();
  EXPECT_THAT(bare.workbench.sticks.Present(), SizeIs(1));
  one.reset();
  EXPECT_TRUE(bare.outside.sticks.IsListening());
  two.reset();
  EXPECT_FALSE(bare.outside.sticks.IsListening());
  EXPECT_THAT(bare.workbench.sticks.Present(), IsEmpty());
}

}  // namespace
}  // namespace tarvik
