// What a kneeboard says of a pair of files.
#include <gtest/gtest.h>

#include "kneeboard/Contents.h"
#include "support/IndexedPair.h"
#include "support/Pairs.h"

namespace tarvik::kneeboard {
namespace {

TEST(KneeboardContents, ControlsStandOnTheirDeviceAndFlagsInATable) {
  const model::IndexedPair pair("USE TQS\nMDEF a\nBTN T1 Lock\nDEF X1 S2\nBTN X1 a\n",
                                "Rem ---\nRem Radar\nRem ---\nLock = CTL g\n");
  const Contents contents = ContentsOf(pair.pair, pair.names);
  ASSERT_EQ(contents.devices.size(), 2u);
  EXPECT_EQ(contents.devices[1].drawing, "throttle-tqs");
  EXPECT_EQ(contents.flags.at(0).condition, "S2 is pressed");
  EXPECT_EQ(contents.flags.at(0).sends.at(0).keys, "a");
  EXPECT_EQ(contents.headings, std::vector<std::string>{"Radar"});
  EXPECT_EQ(ListAsText(contents, ListOrder::ByHeading),
            "Radar\nT1  Lock  CTL g\n\nFlags\nX1  S2 is pressed\n    sends a\n");
}

TEST(KneeboardContents, KeysTellWhatPressesThem) {
  const model::IndexedPair pair("BTN S1 Lock\nBTN S2 g\n", "Lock = CTL g\nIdle = a\n");
  const Contents contents = ContentsOf(pair.pair, pair.names);
  ASSERT_EQ(contents.keys.size(), 2u);
  EXPECT_EQ(contents.keys[0].key, "a");
  EXPECT_TRUE(contents.keys[0].presses.at(0).controls.empty());
  EXPECT_EQ(contents.keys[1].presses.size(), 2u);
  EXPECT_EQ(contents.keys[1].presses[1].with, "CTL");
  EXPECT_EQ(contents.keys[1].presses[1].controls, std::vector<std::string>{"S1"});
}

TEST(KneeboardContents, EveryPairHasAPage) {
  for (const model::Pair& each : model::Pairs()) {
    const model::IndexedPair pair(each.joystick, each.macros);
    EXPECT_FALSE(ContentsOf(pair.pair, pair.names).devices.at(0).controls.empty()) << each.path;
  }
}

}  // namespace
}  // namespace tarvik::kneeboard
