#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "panes/Pane.h"
#include "support/LiteralReplaceAll.h"
#include "support/MemoryFiles.h"
#include "support/PanePrinters.h"
#include "text/Rtf.h"

namespace tarvik {
namespace {

constexpr Colour kRed{255};
constexpr Colour kBlue{0xFF0000};

class PaneTest : public testing::Test {
 protected:
  PaneTest() {
    pane.Change = [this] { ++changes; };
  }

  void Colour(Range range, Colour colour) {
    pane.Select(range);
    pane.SelColor = colour;
  }
  [[nodiscard]] tarvik::Colour At(std::size_t position) const { return pane.Content().colours.At(position); }
  void ExpectSelection(Range range) { EXPECT_TRUE(pane.Selection() == range) << pane.SelStart.Get(); }

  MemoryFiles files;
  Form form{"Form"};
  Pane pane{form, "Text", files};
  Pane other{form, "Other", files};
  int changes = 0;
};

TEST_F(PaneTest, SettingTheTextReplacesEverythingInBlackWithTheSelectionAtTheStart) {
  pane.Text = "old";
  Colour({0, 3}, kRed);
  pane.Text = "new\r\ntext";
  EXPECT_EQ(pane.Text.Get(), "new\r\ntext");
  EXPECT_EQ(pane.Content().colours, ColourRuns(9, kBlack));
  ExpectSelection({0, 0});
}

TEST_F(PaneTest, ALineBreakIsTwoPositionsHoweverItCame) {
  pane.Text = "a\nb\rc\r\nd";
  EXPECT_EQ(pane.Text.Get(), "a\r\nb\r\nc\r\nd");
  pane.SelStart = 3;
  pane.SelLength = 1;
  EXPECT_EQ(pane.SelText.Get(), "b");
}

TEST_F(PaneTest, AnEmptyPaneHasItsDesignRtf) {
  EXPECT_EQ(
      pane.TextRTF.Get(),
      "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}{\\f1\\froman\\fcharset2 "
      "Symbol;}{\\f2\\fswiss MS Sans Serif;}{\\f3\\fmodern Fixedsys;}{\\f4\\fswiss Arial;}{\\f5\\fswiss "
      "Arial;}{\\f6\\fmodern Fixedsys;}}{\\colortbl\\red0\\green0\\blue0;}\\deflang2057\\pard\\plain\\f4"
      "\\fs17 \\par }");
}

TEST_F(PaneTest, TheWholeContentGoesThroughAnotherPaneAndBackUnchanged) {
  pane.Text = "BTN S1 {Fire}\\\r\n\r\nRem caf\xE9\r\n";
  Colour({0, 7}, kRed);
  Colour({17, 5}, kBlue);
  const RichText before = pane.Content();
  other.TextRTF = pane.TextRTF;
  EXPECT_EQ(other.Content(), before);
  pane.Text = "";
  pane.TextRTF = other.TextRTF;
  EXPECT_EQ(pane.Content(), before);
  ExpectSelection({0, 0});
}

TEST_F(PaneTest, AHitIsSelectedAsItStandsInTheText) {
  pane.Text = "a Btn S1";
  EXPECT_EQ(pane.Find("BTN", 0, 8, find::kWholeWord), 2U);
  ExpectSelection({2, 3});
  EXPECT_EQ(pane.SelText.Get(), "Btn");
}

TEST_F(PaneTest, ASearchThatFindsNothingLeavesTheSelectionAlone) {
  pane.Text = "BTN S1";
  pane.Select({1, 2});
  EXPECT_EQ(pane.Find("BTN", 6, 6), std::nullopt);
  EXPECT_EQ(pane.Find("USE", 0, 6), std::nullopt);
  EXPECT_EQ(pane.Find("btn", 0, 6, find::kMatchCase), std::nullopt);
  ExpectSelection({1, 2});
}

TEST_F(PaneTest, AHitNeedNotBeSelected) {
  pane.Text = "BTN S1";
  pane.Select({1, 2});
  EXPECT_EQ(pane.Find("S1", 0, 6, find::kKeepSelection), 4U);
  ExpectSelection({1, 2});
}

TEST_F(PaneTest, ASearchSeesTheTextAsItIsNow) {
  pane.Text = "BTN S1";
  EXPECT_EQ(pane.Find("s1", 0, 6), 4U);
  pane.SelText = "TG1 S1";
  EXPECT_EQ(pane.Find("s1", 0, 10), 8U);
  pane.UserReplaced({0, 4}, "");
  EXPECT_EQ(pane.Find("s1", 0, 6), 4U);
  pane.TextRTF = WriteRtf(RichText("S1"));
  EXPECT_EQ(pane.Find("s1", 0, 2), 0U);
}

TEST_F(PaneTest, ASpanRunsUpToTheFirstCharacterOfTheSet) {
  pane.Text = "MDEF strike\r\nUSE TQS";
  pane.SelStart = 5;
  pane.Span(" \r\n");
  EXPECT_EQ(pane.SelText.Get(), "strike");
  pane.SelStart = 17;
  pane.Span(" \r\n");
  EXPECT_EQ(pane.SelText.Get(), "TQS") << "the end of the text ends it";
  pane.SelStart = 4;
  pane.Span(" \r\n");
  ExpectSelection({4, 0});
}

TEST_F(PaneTest, SettingTheStartEmptiesTheSelectionAndNothingReachesBeyondTheText) {
  pane.Text = "BTN S1";
  pane.Select({1, 3});
  pane.SelStart = 1;
  ExpectSelection({1, 0});
  pane.SelLength = 100;
  ExpectSelection({1, 5});
  pane.SelStart = 100;
  ExpectSelection({6, 0});
}

TEST_F(PaneTest, SettingTheSelectedTextToNothingDeletesItAndIsAChange) {
  pane.Text = "BTN S1";
  pane.Select({3, 3});
  changes = 0;
  pane.SelText = "";
  EXPECT_EQ(pane.Text.Get(), "BTN");
  ExpectSelection({3, 0});
  EXPECT_EQ(changes, 1);
}

TEST_F(PaneTest, NewTextTakesTheColourAtItsPlaceAndTheCaretStandsBehindIt) {
  pane.Text = "BTN S1";
  Colour({4, 2}, kRed);
  pane.SelText = "TG1";
  EXPECT_EQ(pane.Text.Get(), "BTN TG1");
  EXPECT_EQ(At(3), kBlack);
  for (std::size_t i = 4; i < 7; ++i) EXPECT_EQ(At(i), kRed);
  ExpectSelection({7, 0});
}

TEST_F(PaneTest, TypingTakesTheColourBeforeItAndAtALineStartTheOneBehindIt) {
  pane.Text = "ab\r\ncd";
  Colour({0, 2}, kRed);
  Colour({4, 2}, kBlue);
  pane.SelStart = 2;
  pane.UserReplaced({2, 0}, "x");
  EXPECT_EQ(At(2), kRed);
  pane.SelStart = 5;
  pane.UserReplaced({5, 0}, "y");
  EXPECT_EQ(pane.Text.Get(), "abx\r\nycd");
  EXPECT_EQ(At(5), kBlue);
}

TEST_F(PaneTest, AColourGivenToTheCaretIsThatOfWhatIsInsertedThere) {
  pane.Text = "BTN ";
  pane.SelStart = 4;
  pane.SelColor = kRed;
  EXPECT_EQ(pane.SelColor.Get(), kRed);
  EXPECT_EQ(pane.Content().colours, ColourRuns(4, kBlack));
  pane.UserReplaced({4, 0}, "S");
  pane.UserReplaced({5, 0}, "1");
  EXPECT_EQ(At(4), kRed);
  EXPECT_EQ(At(5), kRed);
}

TEST_F(PaneTest, AColourGivenToTheCaretIsForgottenWhenTheCaretMoves) {
  pane.Text = "BTN ";
  pane.SelStart = 4;
  pane.SelColor = kRed;
  pane.SelStart = 3;
  pane.SelStart = 4;
  pane.SelText = "S1";
  EXPECT_EQ(At(4), kBlack);
}

TEST_F(PaneTest, ColouringIsNoChangeOfTheText) {
  pane.Text = "BTN S1";
  changes = 0;
  Colour({0, 6}, kRed);
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(pane.SelColor.Get(), kRed);
}

TEST_F(PaneTest, EveryWayOfSettingTextIsAChange) {
  pane.Text = "a";
  EXPECT_EQ(changes, 1);
  pane.TextRTF = WriteRtf(RichText("b"));
  EXPECT_EQ(changes, 2);
  pane.SelText = "c";
  EXPECT_EQ(changes, 3);
  pane.SelRTF = WriteRtf(RichText("d"));
  EXPECT_EQ(changes, 4);
  pane.UserReplaced({0, 1}, "e");
  EXPECT_EQ(changes, 5);
}

TEST_F(PaneTest, TheSelectionKeepsItsColoursOnItsWayToAnotherPane) {
  pane.Text = "BTN S1 Fire";
  Colour({0, 6}, kRed);
  pane.Select({4, 7});
  other.Text = "<>";
  other.SelStart = 1;
  other.SelRTF = pane.SelRTF;
  EXPECT_EQ(other.Text.Get(), "<S1 Fire>");
  EXPECT_EQ(other.SelStart.Get(), 8U);
  const ColourRuns& colours = other.Content().colours;
  EXPECT_EQ(colours.At(0), kBlack);
  EXPECT_EQ(colours.At(1), kRed);
  EXPECT_EQ(colours.At(2), kRed);
  EXPECT_EQ(colours.At(3), kBlack);
}

TEST_F(PaneTest, CodeChangesALockedPane) {
  pane.Text = "a = b";
  pane.Locked = true;
  pane.Select({4, 1});
  pane.SelText = "c";
  EXPECT_EQ(pane.Text.Get(), "a = c");
}

TEST_F(PaneTest, APlainTextFileHoldsTheTextAloneAndComesBackBlack) {
  pane.Text = "BTN S1\r\nRem \x80";
  Colour({0, 6}, kRed);
  ASSERT_TRUE(pane.SaveFile("c:\\a.b50", FileFormat::Text));
  EXPECT_EQ(files.Content("c:\\a.b50"), "BTN S1\r\nRem \x80");
  ASSERT_TRUE(other.LoadFile("c:\\a.b50"));
  EXPECT_EQ(other.Text.Get(), pane.Text.Get());
  EXPECT_EQ(other.Content().colours, ColourRuns(13, kBlack));
}

TEST_F(PaneTest, AFileIsRtfWhenNothingElseIsSaid) {
  pane.Text = "BTN S1\r\nUSE TQS";
  Colour({0, 6}, kRed);
  ASSERT_TRUE(pane.SaveFile("c:\\a.b50"));
  EXPECT_TRUE(LooksLikeRtf(*files.Content("c:\\a.b50")));
  ASSERT_TRUE(other.LoadFile("c:\\a.b50"));
  EXPECT_EQ(other.Content(), pane.Content());
}

TEST_F(PaneTest, AFileThatIsNotThereLeavesThePaneAsItWas) {
  pane.Text = "BTN S1";
  Colour({0, 3}, kRed);
  const RichText before = pane.Content();
  changes = 0;
  EXPECT_FALSE(pane.LoadFile("c:\\none.b50"));
  EXPECT_EQ(pane.Content(), before);
  EXPECT_EQ(changes, 0);
  ExpectSelection({0, 3});
}

TEST_F(PaneTest, LinesAreCountedFromNought) {
  EXPECT_EQ(pane.GetLineFromChar(0), 0U);
  pane.Text = "ab\r\n\r\ncd";
  const std::size_t lines[] = {0, 0, 0, 0, 1, 1, 2, 2, 2};
  for (std::size_t i = 0; i <= 8; ++i) EXPECT_EQ(pane.GetLineFromChar(i), lines[i]) << i;
  EXPECT_EQ(pane.GetLineFromChar(1000), 2U);
  pane.Text = "ab\r\n";
  EXPECT_EQ(pane.GetLineFromChar(4), 1U) << "behind the last line end stands one more line";
}

TEST_F(PaneTest, MovingTheSelectionIsTold) {
  int moves = 0;
  pane.SelChange = [&moves] { ++moves; };
  pane.Text = "BTN S1";
  moves = 0;
  pane.SelStart = 2;
  pane.SelLength = 1;
  EXPECT_EQ(moves, 2);
  pane.Select({2, 1});
  EXPECT_EQ(moves, 2) << "to where it is, it doesn't move";
}

// Whoever follows a pane by its edits holds what the pane holds, and can go all the way back.
TEST_F(PaneTest, TheEditsToldOfAreTheWholeStory) {
  std::mt19937 random(3);
  const auto below = [&random](std::size_t n) { return random() % n; };
  RichText follower;
  std::vector<PaneEdit> edits;
  const Connection connection = pane.Edited.Connect([&](const PaneEdit& edit) {
    Apply(edit, follower);
    edits.push_back(edit);
  });
  for (int i = 0; i < 3000; ++i) {
    const std::size_t start = below(pane.Characters().size() + 1);
    const Range range{start, below(std::min<std::size_t>(pane.Characters().size() - start, 9) + 1)};
    const std::string text = std::string("ab\r\ncd").substr(0, below(7));
    const tarvik::Colour colour = below(2) ? kRed : kBlue;
    switch (below(8)) {
      case 0:
      case 1:
        Colour(range, colour);
        break;
      case 2:
      case 3:
        pane.Select(range);
        pane.SelText = text;
        break;
      case 4:
        pane.Select(range);
        pane.SelRTF = WriteRtf(RichText("xy", colour));
        break;
      case 5:
      case 6:
        pane.UserReplaced(range, text);
        break;
      default:
        if (below(40) == 0) pane.Text = text;
    }
    ASSERT_EQ(follower, pane.Content()) << i;
    ASSERT_EQ(pane.Content().colours.size(), pane.Content().size());
  }
  for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) Apply(edit->Inverse(), follower);
  EXPECT_EQ(follower, RichText());
}

TEST_F(PaneTest, RangesAreReplacedInOneEditEachInTheColourOfItsPlace) {
  pane.SetContent(RichText("ab cd\r\nef", ColourRuns(9, kRed)));
  Colour({3, 2}, kBlue);
  pane.Select({4, 4});  // "d", the line break, and "e"
  changes = 0;
  int edits = 0;
  const Connection edited = pane.Edited.Connect([&edits](const PaneEdit&) { ++edits; });
  pane.ReplaceRanges(std::vector<Replacement>{{{0, 1}, ""}, {{2, 1}, "   "}, {{5, 0}, "X"}, {{8, 1}, "yz"}});
  EXPECT_EQ(pane.Text.Get(), "b   cdX\r\neyz");
  EXPECT_EQ(pane.SelText.Get(), "dX\r\ne");
  EXPECT_EQ(At(1), kRed);
  EXPECT_EQ(At(4), kBlue);
  EXPECT_EQ(At(6), kBlue);
  EXPECT_EQ(At(10), kRed);
  EXPECT_EQ(edits, 1);
  EXPECT_EQ(changes, 1);
  pane.ReplaceRanges({});
  EXPECT_EQ(edits, 1);
}

TEST_F(PaneTest, RangesAreReplacedAsFromTheLastToTheFirst) {
  std::minstd_rand random(11);
  for (int round = 0; round < 500; ++round) {
    const std::string text(5 + random() % 60, 'a');
    std::vector<Replacement> replacements;
    for (std::size_t at = random() % 5; at < text.size(); at += 1 + random() % 9) {
      const std::size_t length = random() % std::min<std::size_t>(4, text.size() - at);
      replacements.push_back({{at, length}, std::string(random() % 4, 'b')});
      at += length;
    }
    pane.Text = text;
    other.Text = text;
    const std::size_t caret = random() % text.size();
    pane.Select({caret, 0});
    pane.ReplaceRanges(replacements);
    for (std::size_t i = replacements.size(); i-- > 0;) {
      other.Select(replacements[i].range);
      other.SelText = replacements[i].text;
    }
    ASSERT_EQ(pane.Content(), other.Content()) << round;
    ASSERT_LE(pane.SelStart.Get(), pane.Characters().size());
  }
}

TEST_F(PaneTest, ReplacingAllIsOneEditThatDoesWhatReplacingOneByOneWould) {
  constexpr const char* kPieces[] = {"a", "A", "ab", " ", "\r\n", "Rem ", "_", "b"};
  std::minstd_rand random(7);
  const auto piece = [&random, &kPieces] { return std::string(kPieces[random() % std::size(kPieces)]); };
  std::size_t hits = 0;
  for (int round = 0; round < 3000; ++round) {
    RichText content;
    for (std::size_t i = random() % 20; i > 0; --i) {
      const std::string text = piece();
      content.text += text;
      content.colours.Append(text.size(), static_cast<tarvik::Colour>(random() % 3));
    }
    pane.SetContent(content);
    other.SetContent(content);
    const std::string text = piece();
    const std::string with = random() % 4 ? piece() + piece() : "";
    const int options = static_cast<int>(random() % 4) * find::kWholeWord;
    changes = 0;
    const Replaced wanted = LiteralReplaceAll(other, text, with, options);
    std::vector<std::size_t> told;
    const Replaced found =
        pane.ReplaceAll(text, with, options, [&told](std::size_t hit) { told.push_back(hit); });
    ASSERT_EQ(found.count, wanted.count) << round;
    ASSERT_EQ(found.end, wanted.end) << round;
    ASSERT_EQ(pane.Content(), other.Content()) << round;
    ASSERT_EQ(changes, found.count > 0 ? 1 : 0);
    ASSERT_EQ(told.size(), found.count);
    hits += found.count;
  }
  EXPECT_GT(hits, 2000U);
}

TEST_F(PaneTest, TheLineOfAPositionIsRightAfterEditsBeforeAndBehindTheLastOneAskedFor) {
  std::minstd_rand random(3);
  for (int round = 0; round < 2000; ++round) {
    const std::size_t start = random() % (pane.Characters().size() + 1);
    const std::size_t length = random() % 3;
    pane.ReplaceSelection(RichText(random() % 2 ? "x\r\n" : ""));
    pane.Select({start, length});
    const std::size_t asked = random() % (pane.Characters().size() + 1);
    const auto lines = std::count(pane.Characters().begin(),
                                  pane.Characters().begin() + static_cast<std::ptrdiff_t>(asked), '\n');
    ASSERT_EQ(pane.GetLineFromChar(asked), static_cast<std::size_t>(lines)) << round;
  }
}

TEST_F(PaneTest, WhatTheUserDragsElsewhereGoesInOneChangeWithItsColours) {
  pane.Text = "one two three";
  Colour({4, 3}, kRed);
  changes = 0;
  pane.UserMoved({4, 3}, 13);
  EXPECT_EQ(pane.Text.Get(), "one  threetwo");
  EXPECT_EQ(At(10), kRed);
  EXPECT_EQ(At(4), kBlack);
  ExpectSelection({13, 0});
  pane.UserMoved({10, 3}, 0);
  EXPECT_EQ(pane.Text.Get(), "twoone  three");
  EXPECT_EQ(At(0), kRed);
  EXPECT_EQ(At(3), kBlack);
  ExpectSelection({3, 0});
  EXPECT_EQ(changes, 2);
  for (const std::size_t within : {3U, 4U, 6U, 99U}) pane.UserMoved({3, 3}, within);
  pane.UserMoved({3, 0}, 0);
  EXPECT_EQ(pane.Text.Get(), "twoone  three");
  EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace tarvik
