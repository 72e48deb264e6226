// What the mouse presses on the drawings of *Try it out*.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Program.h"
#include "tools/testing/TryOut.h"

namespace tarvik {
namespace {

class TryOutTest : public testing::Test {
 protected:
  TryOutTest() {
    program.application.workbench.documents.joystickText.SetContent(
        RichText("BTN H1U a\r\nBTN H1R b\r\nBTN H1UL c\r\nBTN H1DL d\r\nBTN H2U e\r\nBTN H2M f\r\n"
                 "BTN TG1 g\r\nBTN TG2 h\r\n"));
    form.pause.timer.Elapsed();
  }

  /// What is down while a label is pressed there.
  std::string Down(const char* label, double x, double y) {
    form.LetGo_Click();
    form.Press(form.hardware(label), x, y);
    std::string keys = form.KeysDown.Caption;
    form.Release();
    return keys;
  }

  Program program;
  TryOut& form = program.application.Tool<TryOut>();
};

TEST_F(TryOutTest, AHatGoesOneWay) {
  EXPECT_EQ(Down("HAT(0)", 0, -0.8), "a");
  EXPECT_EQ(Down("HAT(0)", 0.8, 0.1), "b");
  EXPECT_EQ(Down("HAT(0)", 0, 0.8), "");
  EXPECT_EQ(Down("HAT(0)", 0, 0), "");
}

TEST_F(TryOutTest, AHatGoesIntoACornerThatDoesSomething) {
  EXPECT_EQ(Down("HAT(0)", -0.6, -0.6), "c");
  EXPECT_EQ(Down("HAT(0)", -0.6, 0.6), "d");
  EXPECT_EQ(Down("HAT(0)", 0.6, -0.5), "b");
  EXPECT_EQ(Down("HAT(0)", 0.5, -0.6), "a");
}

TEST_F(TryOutTest, AHatThatIsLetGoComesBackToItsMiddle) {
  EXPECT_EQ(Down("HAT(1)", 0, -0.8), "e");
  form.StepOn_Click();
  EXPECT_EQ(form.KeysDown.Caption.Get(), "f");
  EXPECT_EQ(Down("HAT(1)", 0.8, 0), "");
}

TEST_F(TryOutTest, TheRightHalfOfTheTriggerIsItsSecondStage) {
  EXPECT_EQ(Down("TRIG", -0.5, 0), "g");
  EXPECT_EQ(Down("TRIG", 0.5, 0), "h  g");
}

}  // namespace
}  // namespace tarvik
