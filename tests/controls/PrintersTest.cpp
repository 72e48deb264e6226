// A failing expectation is read by people.
#include <gtest/gtest.h>

#include "support/ControlPrinters.h"

namespace tarvik {
namespace {

using ::testing::PrintToString;

TEST(Printers, SayWhatTheUserDoes) {
  EXPECT_EQ(PrintToString(Key{65, shift::kCtrl | shift::kShift}), "key Ctrl+Shift+65");
  EXPECT_EQ(PrintToString(Mouse{1, shift::kAlt, {15}, {30}}), "Alt+button 1 at 15, 30 twips");
}

TEST(Printers, SayWhatIsDrawn) {
  EXPECT_EQ(PrintToString(Stroke{1, 2, 3, 4, kBlack, drawstyle::kDots, 5}),
            "line from 1, 2 to 3, 4, black, style 2, width 5");
}

}  // namespace
}  // namespace tarvik
