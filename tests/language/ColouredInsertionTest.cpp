#include <gtest/gtest.h>

#include "app/Program.h"
#include "support/Printers.h"
#include "workbench/ColouredInsertion.h"

namespace tarvik {
namespace {

constexpr Colour kRed = 255;

class ColouredInsertionTest : public testing::Test {
 protected:
  void SetUp() override {
    mum.Picture1.BackColor = kRed;
    pane.SetFocus();
  }
  void Put(const std::string& text, std::size_t caret) {
    pane.SetContent(RichText(text, kRed));
    pane.SelStart = caret;
  }
  std::string Spaced(const std::string& text, std::size_t caret) {
    Put(text, caret);
    program.application.workbench.values.InsertionText = "x";
    insertion.AddSpaceToColouredText();
    return program.application.workbench.values.InsertionText;
  }
  [[nodiscard]] Colour At(std::size_t position) const { return pane.Content().colours.At(position); }

  Program program;
  Editor& editor = program.editor();
  Mum& mum = program.application.mum();
  Pane& pane = editor.JoystickText;
  ColouredInsertion& insertion = program.application.workbench.insertion;
};

TEST_F(ColouredInsertionTest, ABlankGoesBeforeAPieceOnlyWhereItWouldJoinAWord) {
  EXPECT_EQ(Spaced("ab", 0), "x");
  EXPECT_EQ(Spaced("ab", 2), " x");
  EXPECT_EQ(Spaced("ab ", 3), "x");
  EXPECT_EQ(Spaced("ab\r\n", 4), "x");
  EXPECT_EQ(Spaced("ab\r\n", 3), " x") << "between CR and LF";
  EXPECT_EQ(Spaced("a(", 2), " x");
}

TEST_F(ColouredInsertionTest, APieceHasItsColourAndWhatIsTypedNextIsBlackInTheFontOfTheSettings) {
  program.application.workbench.settings.TextFontName = "Liberation Sans";
  program.application.workbench.settings.TextFontSize = 12;
  Put("ab", 1);
  insertion.InsertColouredString("XY", 77);
  EXPECT_EQ(pane.Text.Get(), "aXYb");
  EXPECT_EQ(At(1), 77U);
  EXPECT_EQ(At(2), 77U);
  EXPECT_EQ(pane.SelStart.Get(), 3U);
  EXPECT_EQ(editor.Joystick.Caret, 3U);
  pane.UserReplaced({3, 0}, "z");
  EXPECT_EQ(At(3), kBlack);
  EXPECT_EQ(At(4), kRed);
  EXPECT_EQ(pane.SelFontName.Get(), "Liberation Sans");
  EXPECT_EQ(pane.SelFontSize, 12.0F);
  EXPECT_EQ(pane.SelIndent, 20);
}

TEST_F(ColouredInsertionTest, BothWaysOfInsertingDoTheSame) {
  Put("ab", 2);
  insertion.InsertColouredString("c", 77);
  const RichText with = pane.Content();
  Put("ab", 2);
  insertion.InsertColouredStringNoSpace("c", 77);
  EXPECT_EQ(pane.Content(), with);
}

TEST_F(ColouredInsertionTest, BlackTextTakesItsBlankAndBlackensTheSwatch) {
  Put("ab", 2);
  program.application.workbench.values.InsertionText = "c ";
  insertion.InsertBlackText();
  EXPECT_EQ(pane.Text.Get(), "ab c ");
  for (std::size_t i = 2; i < 5; ++i) EXPECT_EQ(At(i), kBlack);
  EXPECT_EQ(mum.Picture1.BackColor, kBlack);
}

TEST_F(ColouredInsertionTest, BlanksAreFiveAndBlack) {
  Put("ab", 1);
  insertion.InsertBlackBlanks();
  EXPECT_EQ(pane.Text.Get(), "a     b");
  EXPECT_EQ(At(1), kBlack);
  EXPECT_EQ(editor.Joystick.Caret, 6U);
  EXPECT_EQ(pane.SelStart.Get(), 6U);
  EXPECT_EQ(mum.Picture1.BackColor, kBlack);
}

TEST_F(ColouredInsertionTest, ALineEndIsTwoCharacters) {
  Put("ab", 1);
  insertion.InsertCarriageReturn();
  EXPECT_EQ(pane.Text.Get(), "a\r\nb");
  EXPECT_EQ(editor.Joystick.Caret, 3U);
  EXPECT_EQ(mum.Picture1.BackColor, kBlack);
}

TEST_F(ColouredInsertionTest, TextGoesIntoTheFileOfTheSelectedTab) {
  Put("ab", 2);
  editor.TabStrip1.Select(2);
  insertion.InsertColouredString("c", kBlack);
  EXPECT_EQ(pane.Text.Get(), "ab");
  EXPECT_EQ(editor.MacroText.Text.Get(), "c");
  EXPECT_EQ(editor.Macro.Caret, 1U);
}

TEST_F(ColouredInsertionTest, AGroupIsOneStepOfUndoHoweverManyPiecesItHas) {
  insertion.BeginColInsert();
  insertion.InsertColouredString("a", 77);
  insertion.InsertBlackBlanks();
  insertion.InsertCarriageReturn();
  EXPECT_EQ(editor.Joystick.Dirty, saved::kNoText) << "not before the group is closed";
  insertion.EndColInsert();
  EXPECT_EQ(editor.mnuEditUndo.Caption.Get(), "&Undo (1)");
  EXPECT_EQ(editor.Joystick.Dirty, saved::kModified);
  EXPECT_EQ(program.application.workbench.values.LoadingFile, 0);
  editor.mnuEditUndo_Click();
  EXPECT_EQ(pane.Text.Get(), "");
}

TEST_F(ColouredInsertionTest, UndoOfAGroupShowsThePaneAsTheGroupFoundIt) {
  pane.SelText = "abc";
  pane.Select({0, 3});
  program.application.workbench.highlighter.ColourSelection(kRed);
  pane.SelStart = 1;
  insertion.BeginColInsert();
  insertion.InsertColouredString("x", 77);
  insertion.EndColInsert();
  editor.mnuEditUndo_Click();
  EXPECT_EQ(pane.Content(), RichText("abc", kRed));
  EXPECT_EQ(pane.SelStart.Get(), 1U);
}

TEST_F(ColouredInsertionTest, ClosingAGroupGivesThePaneOnTopTheFocus) {
  editor.TabStrip1.Select(2);
  editor.Combo1.SetFocus();
  insertion.BeginColInsert();
  insertion.EndColInsert();
  EXPECT_EQ(editor.ActiveControl(), &editor.MacroText);
}

}  // namespace
}  // namespace tarvik
