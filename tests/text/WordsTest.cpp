#include <gmock/gmock.h>

#include "text/Words.h"

namespace tarvik {
namespace {

std::string WordIn(const std::string& text, std::size_t caret) {
  const Range word = WordAt(text, caret);
  return text.substr(word.start, word.length);
}

TEST(WordAt, IsTheOneBeforeBehindOrAroundTheCaret) {
  for (std::size_t caret = 4; caret <= 10; ++caret) EXPECT_EQ(WordIn("BTN Gear_x /P", caret), "Gear_x");
  EXPECT_EQ(WordIn("BTN  x", 4), "");
  EXPECT_EQ(WordIn("", 0), "");
  EXPECT_EQ(WordIn("Gear=RAW(x)", 11), "");
  EXPECT_EQ(WordIn("Gear=RAW(x)", 8), "RAW");
}

TEST(FindWord, FindsWholeWordsOfAnyCase) {
  constexpr std::string_view kText = "Fire2 firex (FIRE, x) fire";
  EXPECT_EQ(FindWord(kText, "Fire", 0, kText.size()), 13U);
  EXPECT_EQ(FindWord(kText, "Fire", 14, kText.size()), 22U);
  EXPECT_EQ(FindWord(kText, "Fire", 23, kText.size()), kText.size());
  EXPECT_EQ(FindWord(kText, "Fire", 0, 13), 13U);
}

/// The pair at the "|", which is no part of the text.
BracketPair At(std::string text) {
  const std::size_t caret = text.find('|');
  text.erase(caret, 1);
  return BracketsAt(text, caret);
}

TEST(BracketsAt, BelongTogetherAcrossThoseWithin) {
  const BracketPair outer{{2, 1}, {9, 1}};
  for (const char* const text : {"a |(b (c) )", "a (|b (c) )", "a (b (c) )|", "a (b (c) |)"}) {
    EXPECT_EQ(At(text), outer) << text;
  }
  EXPECT_EQ(At("a (b (c|) )"), (BracketPair{{5, 1}, {7, 1}}));
}

TEST(BracketsAt, TheOneBehindTheCaretGivesWayToTheOneBefore) {
  EXPECT_EQ(At("(a)|(b)"), (BracketPair{{0, 1}, {2, 1}}));
}

TEST(BracketsAt, AreNowhereButBesideTheCaret) { EXPECT_EQ(At("(a b| c)"), BracketPair()); }

TEST(BracketsAt, ARawStatementBeginsWithItsWord) {
  const BracketPair raw{{5, 5}, {13, 1}};
  for (const char* const text : {"BTN  |RAW (#1C)", "BTN  R|AW (#1C)", "BTN  RAW| (#1C)", "BTN  RAW (|#1C)",
                                 "BTN  RAW (#1C)|", "BTN  raw |(#1C)"}) {
    EXPECT_EQ(At(text), raw) << text;
  }
  EXPECT_EQ(At("RAW|(#1C)"), (BracketPair{{0, 4}, {7, 1}}));
  EXPECT_EQ(At("RAW| #1C"), BracketPair());
  EXPECT_EQ(At("DRAW (|x)"), (BracketPair{{5, 1}, {7, 1}}));
}

TEST(BracketsAt, OneThatIsAloneHasNoOther) {
  EXPECT_EQ(At("RAW (|#1C"), (BracketPair{{0, 5}, {}}));
  EXPECT_EQ(At("x )|"), (BracketPair{{}, {2, 1}}));
  EXPECT_EQ(At(")|"), (BracketPair{{}, {0, 1}}));
}

/// Half of a large file is not gone through at each key.
TEST(BracketsAt, OneThatIsFarAwayIsNotLookedFor) {
  EXPECT_EQ(At("(|" + std::string(20'000, 'x') + ")"), (BracketPair{{0, 1}, {}}));
}

}  // namespace
}  // namespace tarvik
