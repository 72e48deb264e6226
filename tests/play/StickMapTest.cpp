#include <gmock/gmock.h>

#include "play/ReadySticks.h"
#include "play/StickMap.h"

namespace tarvik::play {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

const StickId kStick{"03000000", "Stick", "usb-1"};
const StickId kEqual{"03000000", "Stick", "usb-2"};
const StickId kThrottle{"03000001", "Throttle", "usb-3"};

StickInput In(std::string_view words) { return InputIn(words).value(); }

TEST(StickInput, IsWrittenAndReadInWords) {
  for (const char* const words : {"button 1", "button 128", "hat 1", "hat 2 left", "axis 1", "axis 3 turned",
                                  "axis 4 low", "axis 4 high"}) {
    ASSERT_TRUE(InputIn(words)) << words;
    EXPECT_EQ(InWords(In(words)), words);
  }
  EXPECT_EQ(In("axis 3 turned"), (StickInput{StickPart::Axis, 2, StickWay::Turned}));
}

TEST(StickInput, IsNoneWhereTheWordsAreOthers) {
  for (const char* const words : {"", "button", "button 0", "button 257", "button x", "button 1x", "knob 1",
                                  "button 1 up", "hat 1 turned", "hat 1 low", "axis 1 left", "axis 1 low "}) {
    EXPECT_FALSE(InputIn(words)) << words;
  }
}

TEST(StickTargets, HaveAKind) {
  EXPECT_EQ(TargetNamed("s1"), TargetKind::Control);
  EXPECT_EQ(TargetNamed("RKR UP"), TargetKind::Control);
  EXPECT_EQ(TargetNamed("H1UL"), TargetKind::Control);
  EXPECT_EQ(TargetNamed("H1"), TargetKind::Hat);
  EXPECT_EQ(TargetNamed("thr"), TargetKind::Axis);
  EXPECT_EQ(TargetNamed("RKR"), TargetKind::Rocker);
  EXPECT_EQ(TargetNamed("DOGFIGHT"), TargetKind::Switch);
  EXPECT_EQ(TargetNamed("Dogfight up"), TargetKind::SwitchPlace);
  for (const char* const name : {"", "S9", "H5", "MT", "X1"}) EXPECT_FALSE(TargetNamed(name)) << name;
}

TEST(StickTargets, AreAllKnownByTheirNames) {
  for (const std::string& name : AllTargets()) EXPECT_TRUE(TargetNamed(name)) << name;
  for (const char* const name : {"S1", "H4UL", "RKR MD", "T14", "THR", "DOGFIGHT DOWN", "H"}) {
    EXPECT_THAT(AllTargets(), Contains(name));
  }
}

TEST(StickMap, FindsWhatWasSet) {
  StickMap map;
  EXPECT_TRUE(map.Set(kStick, In("button 1"), "tg1"));
  EXPECT_TRUE(map.Set(kThrottle, In("button 1"), "T1"));
  EXPECT_EQ(map.Find(kStick, In("button 1")), "TG1");
  EXPECT_EQ(map.Find(kThrottle, In("button 1")), "T1");
  EXPECT_EQ(map.Find(kStick, In("button 2")), "");
  map.Set(kStick, In("button 1"), "S1");
  EXPECT_EQ(map.Find(kStick, In("button 1")), "S1");
  map.Remove(kStick, In("button 1"));
  EXPECT_EQ(map.Find(kStick, In("button 1")), "");
  EXPECT_EQ(map.Find(kThrottle, In("button 1")), "T1");
}

TEST(StickMap, TakesWhatFitsAlone) {
  StickMap map;
  EXPECT_FALSE(map.Set(kStick, In("button 1"), "THR"));
  EXPECT_FALSE(map.Set(kStick, In("button 1"), "H1"));
  EXPECT_FALSE(map.Set(kStick, In("button 1"), "DOGFIGHT"));
  EXPECT_FALSE(map.Set(kStick, In("hat 1"), "S1"));
  EXPECT_FALSE(map.Set(kStick, In("axis 1"), "H1"));
  EXPECT_FALSE(map.Set(kStick, In("axis 1 low"), "THR"));
  EXPECT_FALSE(map.Set(kStick, In("button 1"), "X9"));
  EXPECT_THAT(map.Sticks(), IsEmpty());
  EXPECT_TRUE(map.Set(kStick, In("axis 1"), "S3"));
  EXPECT_TRUE(map.Set(kStick, In("axis 2"), "RKR"));
  EXPECT_TRUE(map.Set(kStick, In("axis 3"), "DOGFIGHT"));
  EXPECT_TRUE(map.Set(kStick, In("hat 1 up"), "S1"));
}

TEST(StickMap, AHatIsAHatOrItsDirections) {
  StickMap map;
  map.Set(kStick, In("hat 1 up"), "S1");
  map.Set(kStick, In("hat 1 down"), "S2");
  map.Set(kStick, In("hat 2"), "H2");
  map.Set(kStick, In("hat 1"), "H1");
  EXPECT_EQ(map.Find(kStick, In("hat 1 up")), "");
  EXPECT_EQ(map.Find(kStick, In("hat 2")), "H2");
  map.Set(kStick, In("hat 1 left"), "S4");
  EXPECT_EQ(map.Find(kStick, In("hat 1")), "");
}

TEST(StickMap, AnAxisHasOneWayRoundBesideItsEnds) {
  StickMap map;
  map.Set(kStick, In("axis 1"), "THR");
  map.Set(kStick, In("axis 1 low"), "S1");
  map.Set(kStick, In("axis 1 turned"), "THR");
  EXPECT_EQ(map.Find(kStick, In("axis 1")), "");
  EXPECT_EQ(map.Find(kStick, In("axis 1 turned")), "THR");
  EXPECT_EQ(map.Find(kStick, In("axis 1 low")), "S1");
}

TEST(StickMap, AnEqualStickBeginsWithWhatTheOtherHas) {
  StickMap map;
  map.Set(kStick, In("button 1"), "TG1");
  map.Set(kStick, In("button 2"), "S1");
  EXPECT_EQ(map.Find(kEqual, In("button 1")), "TG1");
  map.Set(kEqual, In("button 2"), "S2");
  EXPECT_EQ(map.Find(kEqual, In("button 1")), "TG1");
  EXPECT_EQ(map.Find(kEqual, In("button 2")), "S2");
  EXPECT_EQ(map.Find(kStick, In("button 2")), "S1");
  map.Clear(kEqual);
  EXPECT_EQ(map.Find(kEqual, In("button 1")), "");
  EXPECT_EQ(map.Find(kStick, In("button 1")), "TG1");
}

TEST(StickMap, IsKeptAsLines) {
  StickMap map;
  map.Set({"0300", "Two | halves % \x01\n", "usb|1"}, In("axis 3 turned"), "THR");
  map.Set(kStick, In("hat 1"), "H1");
  map.Set(kStick, In("button 1"), "DOGFIGHT UP");
  map.Set(kEqual, In("button 1"), "S1");
  map.Clear(kThrottle);
  EXPECT_EQ(StickMap::Read(map.Lines()), map);
  EXPECT_THAT(map.Lines(), ElementsAre("0300|usb%7C1|Two %7C halves %25 %01%0A", "axis 3 turned|THR",
                                       "03000000|usb-1|Stick", "button 1|DOGFIGHT UP", "hat 1|H1",
                                       "03000000|usb-2|Stick", "button 1|S1", "hat 1|H1"));
}

TEST(StickMap, LeavesOutLinesThatItCannotRead) {
  const std::vector<std::string> lines = {"button 9|S1", "03000000|usb-1|Stick",
                                          "button 1|S1", "button 1",
                                          "button 2|X9", "knob 3|S1",
                                          "hat 1|S1",    "",
                                          "||",          "button 3|S2|more|",
                                          "%|%4",        "button 4|S4"};
  EXPECT_THAT(StickMap::Read(lines).Lines(),
              ElementsAre("03000000|usb-1|Stick", "button 1|S1", "button 4|S4"));
}

TEST(ReadySticks, AreKnownByTheirNames) {
  EXPECT_EQ(ReadyMapFor("Thrustmaster T.16000M"), "Thrustmaster T.16000M");
  EXPECT_EQ(ReadyMapFor("Thustmaster Joystick - HOTAS Warthog"), "Thrustmaster Warthog stick");
  EXPECT_EQ(ReadyMapFor("Thrustmaster Throttle - HOTAS Warthog"), "Thrustmaster Warthog throttle");
  EXPECT_EQ(ReadyMapFor("Logitech Logitech Extreme 3D"), "Logitech Extreme 3D");
  EXPECT_EQ(ReadyMapFor("Saitek X52 Flight Control System"), "Saitek X52");
  EXPECT_EQ(ReadyMapFor("Saitek X52 Pro Flight Control System"), "plain stick");
  EXPECT_EQ(ReadyMapFor(""), "plain stick");
}

TEST(ReadySticks, OfAPlainStickGiveAllItHas) {
  StickMap map;
  map.Set(kStick, In("button 20"), "T14");
  UseReadyMap(map, kStick, {4, 8, 1}, Dialect::Numbered);
  EXPECT_EQ(map.StickOf(kStick)->rows.size(), 13U);
  EXPECT_EQ(map.Find(kStick, In("axis 3 turned")), "THR");
  EXPECT_EQ(map.Find(kStick, In("hat 1")), "H1");
  EXPECT_EQ(map.Find(kStick, In("button 20")), "");
  UseReadyMap(map, kStick, {2, 2, 0}, Dialect::Plain);
  EXPECT_THAT(map.Lines(),
              ElementsAre("03000000|usb-1|Stick", "button 1|TG", "button 2|UB", "axis 1|JSX", "axis 2|JSY"));
}

TEST(ReadySticks, HaveNoRowThatDoesNotFit) {
  struct {
    const char* name;
    std::size_t rows;
  } const kinds[] = {{"T.16000M", 15},
                     {"Joystick - HOTAS Warthog", 21},
                     {"Throttle - HOTAS Warthog", 11},
                     {"Extreme 3D", 17},
                     {"X52 Flight", 21},
                     {"other", 13}};
  for (const auto& kind : kinds) {
    StickMap map;
    const StickId stick{"0300", kind.name, ""};
    UseReadyMap(map, stick, {8, 40, 1}, Dialect::Numbered);
    EXPECT_EQ(map.StickOf(stick)->rows.size(), kind.rows) << kind.name;
  }
}

}  // namespace
}  // namespace tarvik::play
