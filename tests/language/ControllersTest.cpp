#include <gtest/gtest.h>

#include "language/Controllers.h"

namespace tarvik {
namespace {

TEST(ControllersTest, ThePlainJoysticksAreThoseOfTheTable) {
  for (int joystick = 0; joystick < static_cast<int>(std::size(kJoysticks)); ++joystick) {
    EXPECT_EQ(IsPlain(joystick), kJoysticks[joystick].dialect == Dialect::Plain) << joystick;
  }
}

TEST(ControllersTest, ANumberBeyondTheTableCountsAsItsNearestJoystick) {
  EXPECT_FALSE(IsPlain(-1));
  EXPECT_TRUE(IsPlain(5));
  EXPECT_TRUE(IsPlain(32767));
}

TEST(ControllersTest, AFilterNamesTheFilesOfAllJoysticksInTheOrderOfTheTable) {
  EXPECT_EQ(Patterns(&Endings::joystick), "*.f22;*.b50;*.adv");
  EXPECT_EQ(Patterns(&Endings::macro, ","), "*.m22,*.m50,*.mdf");
}

}  // namespace
}  // namespace tarvik
