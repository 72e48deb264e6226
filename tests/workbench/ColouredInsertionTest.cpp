#include <gtest/gtest.h>

#include "support/BareWorkbench.h"
#include "support/Printers.h"

namespace tarvik {
namespace {

constexpr Colour kSwatch{255};

class ColouredInsertionTest : public testing::Test {
 protected:
  ColouredInsertionTest() { swatch.BackColor = kSwatch; }
  void Put(const std::string& text, std::size_t caret) {
    pane.SetContent(RichText(text, kSwatch));
    pane.SelStart = caret;
  }
  std::string Spaced(const std::string& text, std::size_t caret) {
    Put(text, caret);
    workbench.values.InsertionText = "x";
    insertion.AddSpaceToColouredText();
    return workbench.values.InsertionText;
  }
  [[nodiscard]] Colour At(std::size_t position) const { return pane.Content().colours.At(position); }

  BareWorkbench bare;
  Workbench& workbench = bare.workbench;
  Document& joystick = bare.joystick;
  Document& macro = bare.macro;
  Pane& pane = joystick.text;
  PictureBox& swatch = workbench.documents.swatch;
  ColouredInsertion& insertion = workbench.insertion;
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
  workbench.settings.TextFontName = "Liberation Sans";
  workbench.settings.TextFontSize = 12;
  Put("ab", 1);
  insertion.InsertColouredString("XY", Colour{77});
  EXPECT_EQ(pane.Text.Get(), "aXYb");
  EXPECT_EQ(At(1), Colour{77});
  EXPECT_EQ(At(2), Colour{77});
  EXPECT_EQ(pane.SelStart.Get(), 3U);
  EXPECT_EQ(joystick.Caret, 3U);
  pane.UserReplaced({3, 0}, "z");
  EXPECT_EQ(At(3), kBlack);
  EXPECT_EQ(At(4), kSwatch);
  EXPECT_EQ(pane.SelFontName.Get(), "Liberation Sans");
  EXPECT_EQ(pane.SelFontSize, 12.0F);
  EXPECT_EQ(pane.SelIndent, 20);
}

TEST_F(ColouredInsertionTest, BothWaysOfInsertingDoTheSame) {
  Put("ab", 2);
  insertion.InsertColouredString("c", Colour{77});
  const RichText with = pane.Content();
  Put("ab", 2);
  insertion.InsertColouredStringNoSpace("c", Colour{77});
  EXPECT_EQ(pane.Content(), with);
}

TEST_F(ColouredInsertionTest, BlackTextTakesItsBlankAndBlackensTheSwatch) {
  Put("ab", 2);
  workbench.values.InsertionText = "c ";
  insertion.InsertBlackText();
  EXPECT_EQ(pane.Text.Get(), "ab c ");
  for (std::size_t i = 2; i < 5; ++i) EXPECT_EQ(At(i), kBlack);
  EXPECT_EQ(swatch.BackColor, kBlack);
}

TEST_F(ColouredInsertionTest, BlanksAreFiveAndBlack) {
  Put("ab", 1);
  insertion.InsertBlackBlanks();
  EXPECT_EQ(pane.Text.Get(), "a     b");
  EXPECT_EQ(At(1), kBlack);
  EXPECT_EQ(joystick.Caret, 6U);
  EXPECT_EQ(pane.SelStart.Get(), 6U);
  EXPECT_EQ(swatch.BackColor, kBlack);
}

TEST_F(ColouredInsertionTest, ALineEndIsTwoCharacters) {
  Put("ab", 1);
  insertion.InsertCarriageReturn();
  EXPECT_EQ(pane.Text.Get(), "a\r\nb");
  EXPECT_EQ(joystick.Caret, 3U);
  EXPECT_EQ(swatch.BackColor, kBlack);
}

TEST_F(ColouredInsertionTest, TextGoesIntoTheFileOfTheSelectedTab) {
  Put("ab", 2);
  workbench.documents.Select(macro);
  insertion.InsertColouredString("c", kBlack);
  EXPECT_EQ(pane.Text.Get(), "ab");
  EXPECT_EQ(macro.text.Text.Get(), "c");
  EXPECT_EQ(macro.Caret, 1U);
}

TEST_F(ColouredInsertionTest, AGroupIsOneStepOfUndoHoweverManyPiecesItHas) {
  insertion.BeginColInsert();
  insertion.InsertColouredString("a", Colour{77});
  insertion.InsertBlackBlanks();
  insertion.InsertCarriageReturn();
  EXPECT_EQ(joystick.Dirty, saved::kNoText) << "not before the group is closed";
  insertion.EndColInsert();
  EXPECT_EQ(joystick.Undo.UndoSteps(), 1);
  EXPECT_EQ(joystick.Dirty, saved::kModified);
  EXPECT_EQ(workbench.values.LoadingFile, 0);
  joystick.Undo.Undo();
  EXPECT_EQ(pane.Text.Get(), "");
}

TEST_F(ColouredInsertionTest, UndoOfAGroupShowsThePaneAsTheGroupFoundIt) {
  insertion.BeginColInsert();
  insertion.InsertColouredString("abc", kBlack);
  insertion.EndColInsert();
  pane.Select({0, 3});
  workbench.highlighter.ColourSelection(kSwatch);
  pane.SelStart = 1;
  insertion.BeginColInsert();
  insertion.InsertColouredString("x", Colour{77});
  insertion.EndColInsert();
  joystick.Undo.Undo();
  EXPECT_EQ(pane.Content(), RichText("abc", kSwatch));
  EXPECT_EQ(pane.SelStart.Get(), 1U);
}

TEST_F(ColouredInsertionTest, ClosingAGroupGivesThePaneOnTopTheFocus) {
  Form form("Editor");
  form.Adopt(pane);
  form.Adopt(macro.text);
  workbench.documents.Select(macro);
  pane.SetFocus();
  insertion.BeginColInsert();
  insertion.EndColInsert();
  EXPECT_EQ(form.ActiveControl(), &macro.text);
}

}  // namespace
}  // namespace tarvik
