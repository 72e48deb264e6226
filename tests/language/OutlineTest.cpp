#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "language/Outline.h"
#include "support/IndexedPair.h"

namespace tarvik::model {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Shown(const std::vector<OutlineRow>& rows) {
  std::vector<std::string> shown;
  for (const OutlineRow& row : rows) {
    shown.push_back(std::string(row.indent, '>') + row.text + " " + std::to_string(row.position));
  }
  return shown;
}

TEST(Outline, OfAJoystickFileHasHeadingsControlsAndFlags) {
  const IndexedPair pair(
      "USE MTYPE A3\nRem -----------\nRem HATS\nRem -----------\nBTN  S1 /I a\n  /O b\nRKR UP a\nRem no "
      "more\n"
      "DEF X1 S1\nPortB1 IS X1\nTHR 1 2\nHello\nBTN\n");
  EXPECT_THAT(Shown(OutlineOf(pair.pair, FileKind::Joystick)),
              ElementsAre("USE MTYPE A3 0", "Hats 13", ">BTN S1 54", ">RKR UP 74", ">DEF X1 95",
                          ">PortB1 IS X1 105", ">THR 118", ">BTN 132"));
}

TEST(Outline, OfAMacroFileHasHeadingsAndMacros) {
  const IndexedPair pair(
      "", "A1 = a\nRem -----------\nRem gear\nRem -----------\n\nGear_Up = g\n = x\nnothing\n");
  EXPECT_THAT(Shown(OutlineOf(pair.pair, FileKind::Macros)), ElementsAre("A1 0", "Gear 7", ">Gear_Up 49"));
}

TEST(Outline, OfNothingIsEmpty) {
  const IndexedPair pair("", "");
  EXPECT_THAT(OutlineOf(pair.pair, FileKind::Joystick), IsEmpty());
}

}  // namespace
}  // namespace tarvik::model
