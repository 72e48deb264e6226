#include <gtest/gtest.h>

#include "app/Program.h"
#include "tools/composer/StatementWriter.h"

namespace tarvik {
namespace {

class StatementWriterTest : public testing::Test {
 protected:
  void Fill(const std::string& text, std::size_t caret) {
    editor.JoystickText.Text = text;
    editor.JoystickText.SelStart = caret;
    editor.Joystick.Caret = caret;
  }
  [[nodiscard]] std::string Text() const { return editor.JoystickText.Text; }

  Program program;
  Editor& editor = program.editor();
  StatementWriter writer{program.application.workbench};
  StatementStyle coloured{true, false};
  StatementStyle black{false, false};
};

TEST_F(StatementWriterTest, TheFirstClickWritesAndTheSecondFinds) {
  EXPECT_TRUE(writer.FindOrWrite(ControlStatement("S1", false, coloured), false));
  EXPECT_EQ(Text(), "BTN S1 ");
  EXPECT_EQ(editor.JoystickText.Content().colours.At(0),
            program.application.workbench.settings.BTNColour.Get());
  editor.JoystickText.SelStart = 0;
  EXPECT_FALSE(writer.FindOrWrite(ControlStatement("S1", false, coloured), false));
  EXPECT_EQ(Text(), "BTN S1 ");
  EXPECT_EQ(editor.JoystickText.SelStart, 7U);
  EXPECT_EQ(editor.Joystick.Caret, 7U);
  EXPECT_EQ(editor.Joystick.Undo.UndoSteps(), 1);
}

TEST_F(StatementWriterTest, AStatementBeginsALineOfItsOwnAndWhatIsNotFoundLeavesTheCaret) {
  Fill("Rem btn s1 x\r\nBTN S2 Fire", 24);
  EXPECT_TRUE(writer.FindOrWrite(ControlStatement("S3", false, black), false));
  EXPECT_EQ(Text(), "Rem btn s1 x\r\nBTN S2 Fire\r\nBTN S3 ");
  EXPECT_FALSE(writer.FindOrWrite(ControlStatement("S1", false, black), false))
      << "a remark counts, in any case";
  EXPECT_EQ(editor.Joystick.Caret, 11U);
}

TEST_F(StatementWriterTest, AStatementAtTheVeryEndWithNoBlankIsNotFound) {
  Fill("BTN T1", 6);
  EXPECT_TRUE(writer.FindOrWrite(ControlStatement("T1", false, black), false));
  EXPECT_EQ(Text(), "BTN T1\r\nBTN T1 ");
}

TEST_F(StatementWriterTest, AnAxisIsFoundAsAWholeWord) {
  Fill("THROTTLE\r\nthr 1 2\r\nJSXX", 0);
  EXPECT_TRUE(writer.FindButton("THR"));
  EXPECT_EQ(editor.Joystick.Caret, 13U);
  EXPECT_FALSE(writer.FindButton("JS")) << "it counts as an axis, and is no word here";
  EXPECT_EQ(editor.Joystick.Caret, 13U);
  EXPECT_EQ(editor.JoystickText.SelStart, 13U);
  EXPECT_FALSE(writer.FindButton("JSX"));
}

TEST_F(StatementWriterTest, TheJoystickFileComesToTheTopOnlyToBeSearched) {
  editor.TabStrip1.Select(2);
  EXPECT_FALSE(writer.FindButton("BTN S1 ")) << "an empty file has nothing to find";
  EXPECT_EQ(editor.TabStrip1.SelectedIndex(), 2);
  Fill("BTN S1 Fire", 0);
  EXPECT_TRUE(writer.FindOrWrite(ControlStatement("S1", false, black), true)) << "it is not looked for";
  EXPECT_EQ(editor.MacroText.Text.Get(), "BTN S1 ");
  EXPECT_FALSE(writer.FindOrWrite(ControlStatement("S1", false, black), false));
  EXPECT_EQ(editor.TabStrip1.SelectedIndex(), 1);
}

TEST_F(StatementWriterTest, APortIsPassedOverUpToItsControl) {
  Fill("PortB1 IS TG1", 0);
  EXPECT_FALSE(writer.FindOrWrite(PortStatement("PortB1 IS", coloured), false));
  EXPECT_EQ(editor.Joystick.Caret, 10U);
  EXPECT_TRUE(writer.FindOrWrite(PortStatement("PortB2 IS", coloured), false));
  EXPECT_TRUE(writer.FindOrWrite(ControlStatement("TG2", true, coloured), false));
  EXPECT_EQ(Text(), "PortB1 IS TG1\r\nPortB2 IS TG2 ");
}

TEST_F(StatementWriterTest, ClicksChainOnALineEachPieceInItsColour) {
  const Settings& settings = program.application.workbench.settings;
  writer.Write(ControlStatement("S1", false, coloured));
  writer.Write(SlashStatement("/U", coloured));
  writer.Write(BracketStatement(tables::kBrackets[0], "60", coloured));
  writer.Write(RemStatement("x", coloured));
  EXPECT_EQ(Text(), "BTN S1 /U DLY(60) Rem x ");
  const ColourRuns& colours = editor.JoystickText.Content().colours;
  EXPECT_EQ(colours.At(7), settings.SlashColour.Get());
  EXPECT_EQ(colours.At(10), settings.RAWColour.Get());
  EXPECT_EQ(colours.At(14), kBlack);
  EXPECT_EQ(colours.At(16), settings.RAWColour.Get());
  EXPECT_EQ(colours.At(18), settings.RemStatements.Get());
  EXPECT_EQ(editor.Joystick.Undo.UndoSteps(), 4);
}

TEST_F(StatementWriterTest, AStatementOfTheTabsEndsItsLineWhenThatIsWanted) {
  writer.Write(ValueStatement(tables::kValues[0], "30", {true, true}));
  EXPECT_EQ(Text(), "RATE 30\r\n");
  writer.Write(SwapTriggersStatement(black));
  EXPECT_EQ(Text(), "RATE 30\r\nSWAPTG \r\n");
}

}  // namespace
}  // namespace tarvik
