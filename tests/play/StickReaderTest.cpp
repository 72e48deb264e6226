#include <gmock/gmock.h>

#include <cmath>

#include "play/StickReader.h"
#include "support/Played.h"

namespace tarvik::play {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Moment = StickReader::Moment;

const StickId kOne{"0300", "Stick", "usb-1"};
const StickId kOther{"0300", "Stick", "usb-2"};

std::string Said(const ControlEvent& event) {
  std::string said(event.control);
  switch (event.kind) {
    case EventKind::Down:
      return said.append(" down");
    case EventKind::Up:
      return said.append(" up");
    case EventKind::Move:
      return said.append(" ").append(std::to_string(std::lround(event.position * 100)));
    default:
      return said.append(" to ").append(std::to_string(event.place));
  }
}

class StickReaderTest : public testing::Test {
 protected:
  void Map(std::initializer_list<std::pair<const char*, const char*>> rows, const StickId& stick = kOne) {
    for (const auto& [input, control] : rows) EXPECT_TRUE(map.Set(stick, InputIn(input).value(), control));
    reader.Use(map);
  }
  void Button(int number, bool down, int stick = 1) {
    reader.Change(stick, StickPart::Button, number - 1, down ? 1 : 0);
  }
  void Hat(int bits) { reader.Change(1, StickPart::Hat, 0, bits); }
  void Axis(double position, Moment moment = Moment::Now) {
    const double way = kAxisMost - kAxisLeast;
    reader.Change(1, StickPart::Axis, 0, static_cast<int>(std::lround(kAxisLeast + position * way)), moment);
  }
  std::vector<std::string> Heard() { return std::exchange(heard, {}); }

  std::vector<std::string> heard;
  StickMap map;
  StickReader reader{[this](const ControlEvent& event) { heard.push_back(Said(event)); }};
};

TEST_F(StickReaderTest, AButtonIsItsControl) {
  Map({{"button 2", "S1"}});
  reader.Plug(1, kOne);
  Button(2, true);
  Button(1, true);
  Button(2, true);
  Button(2, false);
  EXPECT_THAT(heard, ElementsAre("S1 down", "S1 up"));
}

TEST_F(StickReaderTest, TwoInputsOfAControlHoldItTogether) {
  Map({{"button 1", "S1"}, {"button 2", "S1"}});
  reader.Plug(1, kOne);
  Button(1, true);
  Button(2, true);
  Button(1, false);
  EXPECT_THAT(Heard(), ElementsAre("S1 down"));
  Button(2, false);
  EXPECT_THAT(Heard(), ElementsAre("S1 up"));
}

TEST_F(StickReaderTest, WhatWasHeldAtTheStartCountsFromItsNextPress) {
  Map({{"button 1", "S1"}, {"hat 1", "H1"}});
  reader.Plug(1, kOne);
  reader.Change(1, StickPart::Button, 0, 1, Moment::Start);
  reader.Change(1, StickPart::Hat, 0, kHatUp, Moment::Start);
  Button(1, false);
  EXPECT_THAT(heard, IsEmpty());
  Button(1, true);
  Hat(kHatRight);
  EXPECT_THAT(heard, ElementsAre("S1 down", "H1R down"));
}

TEST_F(StickReaderTest, AHatGoesFromOneDirectionToTheNext) {
  Map({{"hat 1", "H2"}});
  reader.Plug(1, kOne);
  Hat(kHatUp);
  Hat(kHatUp | kHatRight);
  Hat(kHatMiddle);
  Hat(kHatLeft);
  EXPECT_THAT(heard,
              ElementsAre("H2U down", "H2U up", "H2UR down", "H2UR up", "H2M down", "H2M up", "H2L down"));
}

TEST_F(StickReaderTest, TheHatOfAPlainStickHasNoCorners) {
  Map({{"hat 1", "H"}});
  reader.Plug(1, kOne);
  Hat(kHatUp);
  Hat(kHatUp | kHatRight);
  Hat(kHatRight);
  EXPECT_THAT(heard, ElementsAre("HU down", "HU up", "HR down"));
}

TEST_F(StickReaderTest, DirectionsOfAHatGoUpBeforeOthersGoDown) {
  Map({{"hat 1 up", "S1"}, {"hat 1 right", "S2"}, {"hat 1 left", "S3"}});
  reader.Plug(1, kOne);
  Hat(kHatLeft);
  Hat(kHatUp | kHatRight);
  Hat(kHatRight);
  EXPECT_THAT(heard, ElementsAre("S3 down", "S3 up", "S1 down", "S2 down", "S1 up"));
}

TEST_F(StickReaderTest, AnAxisGoesFromZeroToOneOrBack) {
  Map({{"axis 1", "JSX"}});
  reader.Plug(1, kOne);
  reader.Change(1, StickPart::Axis, 0, kAxisLeast, Moment::Start);
  Axis(0.25);
  Axis(0.25);
  Axis(1);
  EXPECT_THAT(Heard(), ElementsAre("JSX 0", "JSX 25", "JSX 100"));
  Map({{"axis 1 turned", "THR"}});
  Axis(0.25);
  EXPECT_THAT(Heard(), ElementsAre("THR 0", "THR 75"));
}

TEST_F(StickReaderTest, AnAxisIsASwitchOfThreePlacesThatDoesNotTremble) {
  Map({{"axis 1", "DOGFIGHT"}});
  reader.Plug(1, kOne);
  Axis(0.1, Moment::Start);
  EXPECT_THAT(Heard(), ElementsAre("DOGFIGHT to 0"));
  for (const double position : {0.34, 0.36, 0.33}) Axis(position);
  EXPECT_THAT(Heard(), IsEmpty());
  for (const double position : {0.40, 0.34, 0.32, 0.30}) Axis(position);
  EXPECT_THAT(Heard(), ElementsAre("DOGFIGHT to 1"));
  Axis(0.27);
  Axis(1);
  EXPECT_THAT(Heard(), ElementsAre("DOGFIGHT to 0", "DOGFIGHT to 2"));
}

TEST_F(StickReaderTest, AnAxisIsARockerAndTwoButtonsAtOnce) {
  Map({{"axis 1", "RKR"}, {"axis 1 low", "S1"}, {"axis 1 high", "S2"}});
  reader.Plug(1, kOne);
  Axis(0.5, Moment::Start);
  Axis(0);
  Axis(1);
  EXPECT_THAT(Heard(), ElementsAre("RKR UP down", "S1 down", "S1 up", "RKR UP up", "RKR DN down", "S2 down"));
}

TEST_F(StickReaderTest, TheEndsOfAnAxisAreButtonsThatDoNotTremble) {
  Map({{"axis 1 low", "S1"}, {"axis 1 high", "S2"}});
  reader.Plug(1, kOne);
  Axis(0.5, Moment::Start);
  for (const double position : {0.22, 0.18, 0.28, 0.22, 0.31}) Axis(position);
  EXPECT_THAT(Heard(), ElementsAre("S1 down", "S1 up"));
  for (const double position : {0.78, 0.81, 0.71, 0.69}) Axis(position);
  EXPECT_THAT(Heard(), ElementsAre("S2 down", "S2 up"));
}

TEST_F(StickReaderTest, AnAxisThatIsAButtonHasTwoPlaces) {
  Map({{"axis 1", "S3"}});
  reader.Plug(1, kOne);
  Axis(1, Moment::Start);
  Axis(0);
  EXPECT_THAT(Heard(), IsEmpty());
  for (const double position : {0.55, 0.61, 0.45, 0.39}) Axis(position);
  EXPECT_THAT(Heard(), ElementsAre("S3 down", "S3 up"));
}

TEST_F(StickReaderTest, ButtonsHoldTheDogfightSwitchAtItsEnds) {
  Map({{"button 1", "DOGFIGHT UP"}, {"button 2", "DOGFIGHT DOWN"}});
  reader.Plug(1, kOne);
  reader.Change(1, StickPart::Button, 0, 1, Moment::Start);
  Button(1, false);
  Button(2, true);
  Button(2, false);
  EXPECT_THAT(heard, ElementsAre("DOGFIGHT to 0", "DOGFIGHT to 1", "DOGFIGHT to 2", "DOGFIGHT to 1"));
}

TEST_F(StickReaderTest, UnpluggedAStickLetsGoOfWhatItHeld) {
  Map({{"button 1", "S1"}, {"button 2", "DOGFIGHT UP"}});
  map.Set(kOther, InputIn("button 1").value(), "S2");
  reader.Use(map);
  reader.Plug(1, kOne);
  reader.Plug(2, kOther);
  Button(1, true);
  Button(2, true);
  Button(1, true, 2);
  heard.clear();
  reader.Unplug(1);
  EXPECT_THAT(Heard(), ElementsAre("S1 up", "DOGFIGHT to 1"));
  Button(1, true);
  Button(1, false, 2);
  EXPECT_THAT(Heard(), ElementsAre("S2 up"));
}

TEST_F(StickReaderTest, AnotherMapLetsGoAndCountsFromTheNextPress) {
  Map({{"button 1", "S1"}});
  reader.Plug(1, kOne);
  Button(1, true);
  Map({{"button 1", "S2"}});
  EXPECT_THAT(Heard(), ElementsAre("S1 down", "S1 up"));
  Button(1, false);
  Button(1, true);
  EXPECT_THAT(Heard(), ElementsAre("S2 down"));
}

TEST_F(StickReaderTest, LettingGoIsHeardOnce) {
  Map({{"button 1", "S1"}, {"hat 1", "H1"}});
  reader.Plug(1, kOne);
  Button(1, true);
  Hat(kHatDown);
  heard.clear();
  reader.LetGo();
  reader.LetGo();
  Button(1, false);
  Hat(kHatMiddle);
  EXPECT_THAT(heard, ElementsAre("S1 up", "H1D up", "H1M down"));
}

TEST_F(StickReaderTest, AnOddHatStandsInTheMiddle) {
  Map({{"hat 1", "H1"}});
  reader.Plug(1, kOne);
  Hat(kHatUp | kHatDown);
  Hat(kHatUp | kHatDown | kHatLeft | kHatRight);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_F(StickReaderTest, PlaysAnEngine) {
  const Played played("BTN S1 /I a\n       /O b\n");
  const Program& program = played.program;
  const auto s1 = EventFor({.kind = EventKind::Down, .control = "S1"}, program);
  ASSERT_TRUE(s1);
  EXPECT_EQ(s1->kind, EventKind::Down);
  EXPECT_EQ(s1->index, program.FindControl("S1"));
  const auto move = EventFor({.kind = EventKind::Move, .control = "THR", .position = 0.5}, program);
  ASSERT_TRUE(move);
  EXPECT_EQ(move->index, FindAxis("THR"));
  EXPECT_EQ(move->position, 0.5);
  const auto turned = EventFor({.kind = EventKind::Switch, .control = "DOGFIGHT", .place = 2}, program);
  ASSERT_TRUE(turned);
  EXPECT_EQ(turned->index, 2U);
  EXPECT_FALSE(EventFor({.kind = EventKind::Down, .control = "S9"}, program));
}

}  // namespace
}  // namespace tarvik::play
