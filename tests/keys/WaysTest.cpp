// Which way keys go, and what is said where it is not the best.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "keys/Ways.h"

namespace tarvik::keys {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

Facts OnX(int uinputError) { return {uinputError, false, false, true, true}; }

TEST(Ways, UinputIsTakenWhereItCanBe) {
  Facts facts = OnX(0);
  facts.isWayland = true;
  const KeyOutputState state = WayBy(facts);
  EXPECT_EQ(state.way, KeyWay::Uinput);
  EXPECT_THAT(state.why, IsEmpty());
  EXPECT_THAT(state.mend, IsEmpty());
}

TEST(Ways, AModuleThatIsMissingIsInserted) {
  for (const int error : {ENOENT, ENODEV, ENXIO}) {
    const KeyOutputState state = WayBy(OnX(error));
    EXPECT_EQ(state.way, KeyWay::Xtest);
    EXPECT_EQ(state.why, "The system has no /dev/uinput at the moment.");
    EXPECT_EQ(state.mend, "sudo modprobe uinput");
  }
}

TEST(Ways, ADeviceThatIsForbiddenWantsTheRule) {
  Facts facts = OnX(EACCES);
  EXPECT_EQ(WayBy(facts).why, "You may not open /dev/uinput yet.");
  EXPECT_THAT(WayBy(facts).mend, HasSubstr("60-tarvik-uinput.rules"));
  facts.hasRule = true;
  EXPECT_EQ(WayBy(facts).mend, "sudo udevadm trigger /dev/uinput");
}

TEST(Ways, AnyOtherErrorIsToldInTheSystemsWords) {
  const KeyOutputState state = WayBy(OnX(EIO));
  EXPECT_THAT(state.why, StartsWith("/dev/uinput can't be used: Input/output error"));
  EXPECT_THAT(state.mend, IsEmpty());
}

TEST(Ways, UnderWaylandThereIsNoOtherOne) {
  Facts facts = OnX(ENOENT);
  facts.isWayland = true;
  EXPECT_EQ(WayBy(facts).way, KeyWay::None);
  EXPECT_THAT(WayBy(facts).why, HasSubstr("Under Wayland"));
}

TEST(Ways, WithoutAnXServerThatTakesKeysThereIsNone) {
  Facts facts = OnX(ENOENT);
  facts.takesTestKeys = false;
  EXPECT_EQ(WayBy(facts).way, KeyWay::None);
  EXPECT_THAT(WayBy(facts).why, HasSubstr("takes no keys"));
  facts.hasX = false;
  EXPECT_EQ(WayBy(facts).way, KeyWay::None);
  EXPECT_THAT(WayBy(facts).why, HasSubstr("no X server"));
}

}  // namespace
}  // namespace tarvik::keys
