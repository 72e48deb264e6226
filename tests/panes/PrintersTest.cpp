// A failing expectation is read by people.
#include <gtest/gtest.h>

#include "support/PanePrinters.h"
#include "support/PlatformPrinters.h"

namespace tarvik {
namespace {

using ::testing::PrintToString;

TEST(Printers, SayWhatAPaneHolds) {
  RichText text("BTN \xC9\r\n", Colour{255});
  text.colours.Append(2, kBlack);
  text.text += "\"\\";
  EXPECT_EQ(PrintToString(Range{3, 2}), "2 characters from 3");
  EXPECT_EQ(PrintToString(text), R"("BTN \xC9\r\n\"\\" [0 to 7 red 255 green 0 blue 0; 7 to 9 black])");
  EXPECT_EQ(PrintToString(PaneEdit{4, RichText("a"), RichText()}),
            R"(at 4 "a" [0 to 1 black] becomes "" [])");
}

TEST(Printers, SayWhatTheUserIsAsked) {
  EXPECT_EQ(
      PrintToString(MessageBox{"Save?", "It has changed.", BoxIcon::Question, BoxButtons::YesNo, Answer::No}),
      R"(box "Save?" "It has changed.", icon Question, buttons YesNo, Enter gives No)");
  EXPECT_EQ(PrintToString(FileRequest{FileDialogKind::Save, "Save", "All|*.*", "c:\\my", "a.b50", "b50"}),
            R"(Save dialog "Save", filter "All|*.*", folder "c:\\my", file "a.b50", ending "b50")");
}

TEST(Printers, SayWhyItFailed) {
  EXPECT_EQ(PrintToString(Outcome<>(Failure{53, "File not found", 2})),
            R"(failure 53 "File not found", the system's 2)");
  EXPECT_EQ(PrintToString(Outcome<int>(7)), "success");
}

}  // namespace
}  // namespace tarvik
