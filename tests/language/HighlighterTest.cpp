#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Program.h"
#include "support/Printers.h"
#include "workbench/Highlighter.h"

namespace tarvik {
namespace {

using testing::ElementsAre;

/// Somebody who watches the status bar and the progress bar while a file is coloured.
class HighlighterTest : public testing::Test {
 protected:
  HighlighterTest() {
    editor.JoystickText.SetContent(RichText("BTN S1 x"));
    editor.MacroText.SetContent(RichText("x = BTN"));
    Property<std::string>& text = mum.StatusBar.Panels(1).Text;
    said_ = text.Changed.Connect([this, &text] { said.push_back(text); });
    moved_ = mum.ProgressBar1.Value.Changed.Connect([this] {
      EXPECT_TRUE(mum.ProgressBar1.Visible);
      moves.push_back(TextOf(mum.ProgressBar1.Value) + " of " + TextOf(mum.ProgressBar1.Max));
    });
  }

  Program program;
  Editor& editor = program.editor();
  Mum& mum = program.application.mum();
  std::vector<std::string> said;
  std::vector<std::string> moves;

 private:
  Connection said_;
  Connection moved_;
};

TEST_F(HighlighterTest, TheStatusBarTellsWhichStatementsOfTheJoystickFileAreBeingColoured) {
  editor.mnuViewColourJoystick_Click();
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
  editor.mnuViewColourMacro_Click();
  EXPECT_THAT(said, testing::Contains("Applying colour highlighting to untitled.m50. Please wait ..."));
  ASSERT_GE(said.size(), 3U);
  EXPECT_THAT(
      std::vector(said.end() - 3, said.end()),
      ElementsAre("Applying colour to Rem comments ...", "Applying colour to ~ comments ...", "Done"));
}

TEST_F(HighlighterTest, TheProgressBarFollowsTheHitsAndCountsTheCommands) {
  editor.JoystickText.SetContent(RichText("a /U BTN S1 /D\r\nRem x\r\n~"));
  editor.mnuViewColourJoystick_Click();
  EXPECT_THAT(moves, ElementsAre("6 of 24", "0 of 24",              // BTN
                                 "3 of 24", "13 of 24", "0 of 24",  // modifiers
                                 "1 of 15", "2 of 15", "3 of 15", "4 of 15", "5 of 15", "6 of 15", "7 of 15",
                                 "8 of 15", "9 of 15", "10 of 15", "11 of 15", "12 of 15", "13 of 15",
                                 "14 of 15", "15 of 15",   // commands
                                 "17 of 24", "0 of 24",    // Rem
                                 "24 of 24", "0 of 24"));  // ~
  EXPECT_FALSE(mum.ProgressBar1.Visible);
}

TEST_F(HighlighterTest, TheMacroFilesCommandsLeaveOutASeven) {
  editor.MacroText.SetContent(RichText("no statement"));
  editor.mnuViewColourMacro_Click();
  EXPECT_THAT(moves, ElementsAre("1 of 15", "2 of 15", "3 of 15", "4 of 15", "5 of 15", "6 of 15", "8 of 15",
                                 "9 of 15", "10 of 15", "11 of 15", "12 of 15", "13 of 15", "14 of 15",
                                 "15 of 15", "0 of 12"));
}

TEST_F(HighlighterTest, TheOtherFileKeepsItsColours) {
  editor.MacroText.Recolour(0, ColourRuns(3, 255));
  const RichText before = editor.MacroText.Content();
  editor.mnuViewColourJoystick_Click();
  EXPECT_EQ(editor.MacroText.Content(), before);
}

TEST_F(HighlighterTest, ColouringLeavesTheSavedStateWhateverItIs) {
  for (const int state : {saved::kNoText, saved::kSaved, saved::kModified}) {
    editor.Joystick.Dirty = state;
    editor.Macro.Dirty = state;
    editor.mnuViewApplyColourBothFiles_Click();
    EXPECT_EQ(editor.Joystick.Dirty, state);
    EXPECT_EQ(editor.Macro.Dirty, state);
  }
}

TEST_F(HighlighterTest, AFileBeyondThirtyTwoThousandCharactersIsColouredToItsEnd) {
  editor.JoystickText.SetContent(RichText(std::string(100000, 'x') + " BTN S1 "));
  editor.mnuViewColourJoystick_Click();
  EXPECT_EQ(editor.JoystickText.Content().colours.At(100001),
            program.application.workbench.settings.BTNColour);
}

}  // namespace
}  // namespace tarvik
