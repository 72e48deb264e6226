// The real joystick on sticks that exist within the library alone.
#include "VirtualStick.h"
#include "screen/services/SdlJoystick.h"

namespace tarvik::screen {
namespace {

using Stick = VirtualStick;

class SdlJoystickTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { ASSERT_EQ(SDL_InitSubSystem(SDL_INIT_JOYSTICK), 0); }
  static void TearDownTestSuite() { SDL_QuitSubSystem(SDL_INIT_JOYSTICK); }
  void SetUp() override {
    if (SDL_NumJoysticks() > 0) GTEST_SKIP() << "there is a real stick";
  }

  /// The number of what failed; 0 is for nothing.
  int Look() {
    const Outcome<JoyCaps> found = joystick.GetDevCaps();
    if (found) caps = *found;
    return found.failure().number;
  }
  int Read() {
    const Outcome<JoyInfo> read = joystick.GetPosEx();
    if (read) info = *read;
    return read.failure().number;
  }

  SdlJoystick joystick;
  JoyCaps caps;
  JoyInfo info;
};

TEST_F(SdlJoystickTest, WithoutAStickThereIsNoDevice) {
  EXPECT_EQ(Look(), joystick::kNoDevice);
  EXPECT_EQ(Read(), joystick::kNoDevice);
}

TEST_F(SdlJoystickTest, AxesGoFromZeroTo65535) {
  Stick stick(4, 19);
  ASSERT_EQ(Look(), 0);
  EXPECT_TRUE(caps.hasZ);
  EXPECT_TRUE(caps.hasR);
  stick.Move({-32768, 32767, 0, 1});
  stick.Press(0);
  stick.Press(18);
  ASSERT_EQ(Read(), 0);
  EXPECT_EQ(info.x, 0);
  EXPECT_EQ(info.y, 65535);
  EXPECT_EQ(info.z, 32768);
  EXPECT_EQ(info.r, 32769);
  EXPECT_EQ(info.buttons, 1U | 1U << 18);
}

TEST_F(SdlJoystickTest, TheThirdAxisIsTheThrottleAndTheFourthTheRudder) {
  {
    const Stick two(2, 1);
    ASSERT_EQ(Look(), 0);
    EXPECT_FALSE(caps.hasZ);
    EXPECT_FALSE(caps.hasR);
  }
  const Stick three(3, 1);
  ASSERT_EQ(Look(), 0);
  EXPECT_TRUE(caps.hasZ);
  EXPECT_FALSE(caps.hasR);
}

TEST_F(SdlJoystickTest, AStickWithoutAxesStaysInTheMiddle) {
  Stick stick(0, 2);
  ASSERT_EQ(Look(), 0);
  EXPECT_FALSE(caps.hasZ);
  stick.Press(1);
  ASSERT_EQ(Read(), 0);
  EXPECT_EQ(info.x, 32768);
  EXPECT_EQ(info.y, 32768);
  EXPECT_EQ(info.buttons, 2U);
}

TEST_F(SdlJoystickTest, OfManyButtonsTheFirst32Count) {
  Stick stick(2, 128);
  ASSERT_EQ(Look(), 0);
  for (const int button : {0, 31, 32, 63, 127}) stick.Press(button);
  ASSERT_EQ(Read(), 0);
  EXPECT_EQ(info.buttons, 0x80000001U);
}

TEST_F(SdlJoystickTest, ANameOfControlCharactersDoesNoHarm) {
  Stick stick(2, 1, "\x01\n\r\x1b[2J\x7f%s%n");
  ASSERT_EQ(Look(), 0);
  stick.Move({100, 200});
  EXPECT_EQ(Read(), 0);
  EXPECT_EQ(info.x, 32868);
}

TEST_F(SdlJoystickTest, UnpluggedItKeepsItsPlaceUntilItIsPluggedInAgain) {
  {
    Stick stick(2, 1);
    ASSERT_EQ(Look(), 0);
    stick.Move({1000, 0});
    ASSERT_EQ(Read(), 0);
  }
  EXPECT_EQ(Read(), joystick::kUnplugged);
  EXPECT_EQ(Read(), joystick::kUnplugged);
  EXPECT_EQ(info.x, 33768);
  Stick again(2, 1);
  again.Move({2000, 0});
  ASSERT_EQ(Read(), 0);
  ASSERT_EQ(Read(), 0);
  EXPECT_EQ(info.x, 34768);
}

TEST_F(SdlJoystickTest, OfTwoSticksTheFirstIsReadAndTheOtherDoesNotTakeItsPlace) {
  auto first = std::make_unique<Stick>(2, 1);
  Stick second(4, 1);
  second.Move({-5000, 0});
  ASSERT_EQ(Look(), 0);
  EXPECT_FALSE(caps.hasZ);
  first->Move({1000, 0});
  ASSERT_EQ(Read(), 0);
  EXPECT_EQ(info.x, 33768);
  first.reset();
  EXPECT_EQ(Read(), joystick::kUnplugged);
  EXPECT_EQ(Read(), joystick::kUnplugged);
  // Who asks anew what there is finds the other one.
  ASSERT_EQ(Look(), 0);
  EXPECT_TRUE(caps.hasZ);
  ASSERT_EQ(Read(), 0);
  EXPECT_EQ(info.x, 27768);
}

}  // namespace
}  // namespace tarvik::screen
