// Names and remarks as words.
#include <gtest/gtest.h>

#include "kneeboard/Words.h"

namespace tarvik::kneeboard {
namespace {

TEST(KneeboardWords, NamesReadAsWords) {
  EXPECT_EQ(ReadableName("Gear_Toggle"), "Gear toggle");
  EXPECT_EQ(ReadableName("GearToggle"), "Gear toggle");
  EXPECT_EQ(ReadableName("GEAR_UP"), "Gear up");
  EXPECT_EQ(ReadableName("F16Flaps"), "F16 flaps");
  EXPECT_EQ(ReadableName("ECM_On"), "ECM on");
  EXPECT_EQ(ReadableName("__"), "__");
}

TEST(KneeboardWords, RemarksAreBare) {
  EXPECT_EQ(BareRemark("Rem   first  stage --"), "first stage");
  EXPECT_EQ(BareRemark("~~~~"), "");
}

}  // namespace
}  // namespace tarvik::kneeboard
