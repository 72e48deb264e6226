// What the joystick file assigns, by the labels of the Composer's pictures.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tools/composer/Assignments.h"

namespace tarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kText =
    "USE TQS\r\nBTN S1 Gun\r\n  BTN H1U /I Zoom_In\r\n    /O Zoom_Out\r\nBTN H1DL Look\r\nbtn h1u Again\r\n"
    "BTN TG2 Fire\r\nTHR 1 5 1 a b c d e f\r\nPortB1 IS TG1\r\nSWAPTG\r\nRKR UP Flaps\r\nBTN T10 Brake\r\n"
    "Rem BTN S2 Nothing\r\n";

class AssignmentsTest : public testing::Test {
 protected:
  static std::vector<std::string> Of(std::string_view text, std::string_view array, int index,
                                     std::string_view caption = {}) {
    const model::JoystickFile joystick(text);
    const model::MacroFile macros("");
    const Assignments assignments(
        {.joystick = joystick, .joystickText = text, .macros = macros, .macroText = ""});
    for (const tables::HardwareRow& row : tables::kHardware) {
      if (row.array != array || row.index != index) continue;
      return assignments.Of(row, caption.empty() ? row.caption : caption);
    }
    ADD_FAILURE() << array << index << " is not there";
    return {};
  }
};

TEST_F(AssignmentsTest, AreTheLinesOfAButton) {
  EXPECT_THAT(Of(kText, "BTN", 0), ElementsAre("BTN S1 Gun"));
  EXPECT_THAT(Of(kText, "BTN", 1), IsEmpty()) << "a remark assigns nothing";
  EXPECT_THAT(Of(kText, "BTN", 12), IsEmpty()) << "T7 has nothing";
  EXPECT_THAT(Of(kText, "BTN", 15), ElementsAre("BTN T10 Brake"));
}

TEST_F(AssignmentsTest, AreTheFirstLinesOfAllPlacesOfAHat) {
  EXPECT_THAT(Of(kText, "HAT", 0), ElementsAre("BTN H1U /I Zoom_In", "btn h1u Again", "BTN H1DL Look"));
  EXPECT_THAT(Of(kText, "HAT", 1), IsEmpty());
}

TEST_F(AssignmentsTest, AreThoseOfBothStagesOfTheTrigger) {
  EXPECT_THAT(Of(kText, "TRIG", -1), ElementsAre("BTN TG2 Fire"));
}

TEST_F(AssignmentsTest, AreThoseOfAnAxisOfThePortsAndOfSwappedTriggers) {
  EXPECT_THAT(Of(kText, "ROTARY", 5), ElementsAre("THR 1 5 1 a b c d e f"));
  EXPECT_THAT(Of(kText, "ROTARY", 7), ElementsAre("PortB1 IS TG1"));
  EXPECT_THAT(Of(kText, "ROTARY", 4), ElementsAre("SWAPTG"));
  EXPECT_THAT(Of(kText, "ROTARY", 0), IsEmpty());
}

TEST_F(AssignmentsTest, GoByTheCaptionThatAButtonOfTheWcsHasJustNow) {
  EXPECT_THAT(Of(kText, "BTN", 16, "RKR UP"), ElementsAre("RKR UP Flaps"));
  EXPECT_THAT(Of("BTN T7 Flaps\r\n", "BTN", 16, "T7"), ElementsAre("BTN T7 Flaps"));
  EXPECT_THAT(Of(kText, "BTN", 4, " "), IsEmpty());
}

TEST_F(AssignmentsTest, AreCutOffWhereALineIsLong) {
  const std::string text = "BTN S1 " + std::string(200, 'a');
  const std::vector<std::string> lines = Of(text, "BTN", 0);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0], text.substr(0, 80));
}

}  // namespace
}  // namespace tarvik
