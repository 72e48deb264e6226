#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/BareWorkbench.h"
#include "support/Printers.h"

namespace tarvik {
namespace {

using testing::ElementsAre;

/// Somebody who watches the status bar and the progress bar while a file is coloured.
class HighlighterTest : public testing::Test {
 protected:
  HighlighterTest() {
    joystick.text.SetContent(RichText("BTN S1 x"));
    macro.text.SetContent(RichText("x = BTN"));
    Property<std::string>& text = bare.workbench.documents.status.Panels(1).Text;
    said_ = text.Changed.Connect([this, &text] { said.push_back(text); });
    moved_ = bar.Value.Changed.Connect([this] {
      EXPECT_TRUE(bar.Visible);
      moves.push_back(TextOf(bar.Value) + " of " + TextOf(bar.Max));
    });
  }

  BareWorkbench bare;
  Document& joystick = bare.joystick;
  Document& macro = bare.macro;
  ProgressBar& bar = bare.workbench.documents.progress;
  Highlighter& highlighter = bare.workbench.highlighter;
  std::vector<std::string> said;
  std::vector<std::string> moves;

 private:
  Connection said_;
  Connection moved_;
};

TEST_F(HighlighterTest, TheStatusBarTellsWhichStatementsOfTheJoystickFileAreBeingColoured) {
  highlighter.Apply(joystick);
  EXPECT_THAT(said,
              ElementsAre("Removing colour highlighting from untitled.b50. Please wait ...", "Done",
                          "Applying colour highlighting to untitled.b50. Please wait ...",
                          "Applying colour to BTN statements ...", "Applying colour to / modifiers ...",
                          "Applying colour to RAW statements ...", "Applying colour to DLY statements ...",
                          "Applying colour to RPT statements ...",
                          "Applying colour to USE,ANT,MDEF etc. commands ...",
                          "Applying colour to Rem comments ...", "Done"));
}

TEST_F(HighlighterTest, TheMacroFilesTildeCommentsHaveWordsOfTheirOwn) {
  highlighter.Apply(macro);
  EXPECT_THAT(said, testing::Contains("Applying colour highlighting to untitled.m50. Please wait ..."));
  ASSERT_GE(said.size(), 3U);
  EXPECT_THAT(
      std::vector(said.end() - 3, said.end()),
      ElementsAre("Applying colour to Rem comments ...", "Applying colour to ~ comments ...", "Done"));
}

TEST_F(HighlighterTest, TheProgressBarFollowsTheHitsAndCountsTheCommands) {
  joystick.text.SetContent(RichText("a /U BTN S1 /D\r\nRem x\r\n~"));
  highlighter.Apply(joystick);
  EXPECT_THAT(moves, ElementsAre("6 of 24", "0 of 24",              // BTN
                                 "3 of 24", "13 of 24", "0 of 24",  // modifiers
                                 "1 of 15", "2 of 15", "3 of 15", "4 of 15", "5 of 15", "6 of 15", "7 of 15",
                                 "8 of 15", "9 of 15", "10 of 15", "11 of 15", "12 of 15", "13 of 15",
                                 "14 of 15", "15 of 15",   // commands
                                 "17 of 24", "0 of 24",    // Rem
                                 "24 of 24", "0 of 24"));  // ~
  EXPECT_FALSE(bar.Visible);
}

TEST_F(HighlighterTest, TheMacroFilesCommandsLeaveOutASeven) {
  macro.text.SetContent(RichText("no statement"));
  highlighter.Apply(macro);
  EXPECT_THAT(moves, ElementsAre("1 of 15", "2 of 15", "3 of 15", "4 of 15", "5 of 15", "6 of 15", "8 of 15",
                                 "9 of 15", "10 of 15", "11 of 15", "12 of 15", "13 of 15", "14 of 15",
                                 "15 of 15", "0 of 12"));
}

TEST_F(HighlighterTest, TheOtherFileKeepsItsColours) {
  macro.text.Recolour(0, ColourRuns(3, Colour{255}));
  const RichText before = macro.text.Content();
  highlighter.Apply(joystick);
  EXPECT_EQ(macro.text.Content(), before);
}

TEST_F(HighlighterTest, ColouringLeavesTheSavedStateWhateverItIs) {
  for (const int state : {saved::kNoText, saved::kSaved, saved::kModified}) {
    joystick.Dirty = state;
    macro.Dirty = state;
    highlighter.Apply(joystick);
    highlighter.Apply(macro);
    EXPECT_EQ(joystick.Dirty, state);
    EXPECT_EQ(macro.Dirty, state);
  }
}

TEST_F(HighlighterTest, AFileBeyondThirtyTwoThousandCharactersIsColouredToItsEnd) {
  joystick.text.SetContent(RichText(std::string(100000, 'x') + " BTN S1 "));
  highlighter.Apply(joystick);
  EXPECT_EQ(joystick.text.Content().colours.At(100001), bare.workbench.settings.BTNColour);
}

}  // namespace
}  // namespace tarvik
