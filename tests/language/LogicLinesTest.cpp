#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "language/LogicLines.h"
#include "support/LanguagePrinters.h"

namespace tarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LogicLines, ListsHoldWhatALineIsMadeOf) {
  ASSERT_EQ(std::size(tables::kFlagLists), 6U);
  const std::vector<std::string> flags = ItemsOf(tables::kFlagLists[0]);
  ASSERT_EQ(flags.size(), 48U);
  for (std::size_t i = 0; i < flags.size(); ++i) EXPECT_EQ(flags[i], "X" + std::to_string(i + 1));
  EXPECT_THAT(ItemsOf(tables::kFlagLists[1]), ElementsAre("H1", "H2", "H3", "H4"));
  EXPECT_THAT(ItemsOf(tables::kFlagLists[2]),
              ElementsAre("S1", "S2", "S3", "S4", "T1", "T2", "T3", "T4", "T5", "T6", "T7", "T8", "T9", "T10",
                          "T11", "T12", "T13", "T14", "TG1", "TG2"));
  EXPECT_THAT(ItemsOf(tables::kFlagLists[3]), ElementsAre("CMPLT", "CMPGT"));
  EXPECT_THAT(ItemsOf(tables::kFlagLists[4]), ElementsAre("ANT", "RNG", "THR", "RDDR", "JSX", "JSY"));
  EXPECT_THAT(ItemsOf(tables::kFlagLists[5]), ElementsAre("U", "D", "L", "R", "M", "UL", "DL", "UR", "DR"));
  std::vector<std::string_view> labels;
  for (const tables::FlagListRow& list : tables::kFlagLists) labels.push_back(list.label);
  EXPECT_THAT(labels, ElementsAre("Flag", "Hat", "Button", "Compare", "Analogue", ""));
}

TEST(LogicLines, BoxesStartWithTheirDefaults) {
  std::vector<std::pair<std::string_view, std::string_view>> boxes;
  for (const tables::FlagBoxRow& row : tables::kFlagBoxes) boxes.emplace_back(row.label, row.initial);
  EXPECT_THAT(boxes, ElementsAre(testing::Pair("Pulse", "500"), testing::Pair("Pulse", "500"),
                                 testing::Pair("Delay", "1000"), testing::Pair("%", "50"),
                                 testing::Pair("DLY", ""), testing::Pair("RPT", "")));
}

TEST(LogicLines, ButtonsHaveTheirTokens) {
  EXPECT_THAT(tables::kCompares, ElementsAre("AND", "OR", "NOT", "(", ")", "BTN", "DEF", "F22RST", "*"));
  EXPECT_THAT(tables::kFlagSlashes,
              ElementsAre("/U", "/M", "/D", "/T", "/I", "/O", "/H", "/N", "/Q", "/F", "/P", "/R"));
}

TEST(LogicLines, AnInsertedTokenIsMadeOfListsAndBoxes) {
  const BoxTexts boxes = {{"FlagList(0)", "X7"}, {"FlagList(1)", "H3"},    {"FlagList(5)", "UL"},
                          {"FlagList(2)", "T9"}, {"FlagList(3)", "CMPGT"}, {"FlagList(4)", "RDDR"},
                          {"TxtFlag(0)", "1"},   {"TxtFlag(1)", "2"},      {"TxtFlag(2)", "3"},
                          {"TxtFlag(3)", "4"},   {"TxtFlag(4)", "5"},      {"TxtFlag(5)", "6"}};
  std::vector<std::string> tokens;
  for (const tables::FlagInsertRow& row : tables::kFlagInserts) tokens.push_back(TokenOf(row, boxes));
  EXPECT_THAT(tokens,
              ElementsAre("X7", "H3UL", "T9", "PULSE(1 2)", "DELAY(3)", "CMPGT(RDDR 4)", "DLY(5)", "RPT(6)"));
  EXPECT_EQ(TokenOf(tables::kFlagInserts[3], {}), "PULSE( )");
}

TEST(LogicLines, ATokenTakesABlankBehindAWordButNotAtTheStart) {
  for (const std::string_view token : {"AND", "X1", "/U", "PULSE(1 2)", "BTN"}) {
    const std::string text(token);
    EXPECT_EQ(SpacedToken(token, "BTN X1", 6), " " + text);
    EXPECT_EQ(SpacedToken(token, "BTN X1", 2), " " + text) << "in the middle of a word";
    EXPECT_EQ(SpacedToken(token, "BTN X1", 4), text) << "behind a blank";
    EXPECT_EQ(SpacedToken(token, "BTN X1", 0), text);
    EXPECT_EQ(SpacedToken(token, "", 0), text);
    EXPECT_EQ(SpacedToken(token, "X1 (", 4), " " + text);
  }
}

TEST(LogicLines, BracketsAndTheStarTakeNoBlank) {
  for (const std::string_view token : {"(", ")", "*"}) EXPECT_EQ(SpacedToken(token, "BTN X1", 6), token);
}

TEST(LogicLines, ALineIsWrittenInBlackOnALineOfItsOwn) {
  Statement expected{{{"DEF X1 S1 AND S2", ColourClass::Black}}};
  expected.ownLine = expected.endsLine = true;
  EXPECT_EQ(LogicStatement("DEF X1 S1 AND S2"), expected);
}

TEST(LogicLines, AFileGivesItsLogicLinesInOrder) {
  EXPECT_THAT(LogicLinesOf("USE TQS\r\nDEF X2 S1\r\n\r\nBTN X1 Fire\r\nBTN S1 x"),
              ElementsAre("DEF X2 S1", "BTN X1 Fire"));
  EXPECT_THAT(LogicLinesOf("BTN X1"), ElementsAre("BTN X1")) << "a last line with no end";
  EXPECT_THAT(LogicLinesOf("BTN X1\r\n"), ElementsAre("BTN X1"));
  EXPECT_THAT(LogicLinesOf(" BTN X1\r\nbtn X1\r\nBTN x1\r\nBTN  X1\r\nDEF"), IsEmpty());
  EXPECT_THAT(LogicLinesOf(""), IsEmpty());
}

TEST(LogicLines, LinesThatFindNoBoxAreLost) {
  std::string text;
  std::vector<std::string> lines;
  for (int i = 1; i <= 50; ++i) {
    const std::string line = "DEF X" + std::to_string(i);
    text += line + "\r\n";
    if (i <= 48) lines.push_back(line);
  }
  EXPECT_EQ(LogicLinesOf(text), lines);
}

}  // namespace
}  // namespace tarvik
