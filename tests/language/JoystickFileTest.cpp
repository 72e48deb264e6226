#include <gtest/gtest.h>

#include <algorithm>

#include "language/JoystickFile.h"
#include "language/LogicLines.h"
#include "support/ModelPrinter.h"

namespace tarvik::model {
namespace {

std::string JoystickTree(std::string_view text) { return Printed(JoystickFile(text), text); }

TEST(JoystickFile, ModifiersOfOneMatterStandBesideEachOther) {
  EXPECT_EQ(JoystickTree("BTN S1 /U /I Gun\n"
                         "          /O Missile\n"
                         "       /D /T a\n"
                         "          /T b\n"),
            "1: BTN\n"
            "    control S1\n"
            "    /U\n"
            "      /I\n"
            "        name Gun\n"
            "      /O\n"
            "        name Missile\n"
            "    /D\n"
            "      /T\n"
            "        key a\n"
            "      /T\n"
            "        key b\n");
}

TEST(JoystickFile, MannersOneBehindTheOtherCountTogether) {
  EXPECT_EQ(JoystickTree("BTN S1 /N /F a /H b"),
            "1: BTN\n"
            "    control S1\n"
            "    /N\n"
            "      /F\n"
            "        key a\n"
            "    /H\n"
            "      key b\n");
}

TEST(JoystickFile, NotBindsMoreThanAndAndThatMoreThanOr) {
  EXPECT_EQ(JoystickTree("DEF X1 S1 OR NOT T2 AND X3"),
            "1: DEF\n"
            "    flag X1\n"
            "    OR\n"
            "      on S1\n"
            "      AND\n"
            "        NOT\n"
            "          on T2\n"
            "        on X3\n");
}

TEST(JoystickFile, ALineThatIsSetInBelongsToTheStatementAbove) {
  const std::string text = "BTN S1 a\n  b\n\n  c\nRem d\n  e\n  USE TQS\n";
  const JoystickFile file(text);
  ASSERT_EQ(file.size(), 6u);
  EXPECT_EQ(file.LinesOf(0, text), "BTN S1 a\n  b\n");
  EXPECT_TRUE(std::holds_alternative<Unknown>(file[2].body));
  EXPECT_TRUE(std::holds_alternative<Unknown>(file[4].body));
  EXPECT_TRUE(file[5].IsSetIn());
}

TEST(JoystickFile, KnowsEveryStatementOfTheComposer) {
  const auto knows = [](std::string_view words) {
    return FindStatementWord(words.substr(0, words.find(' ')));
  };
  for (const auto& row : tables::kUses) EXPECT_NE(knows(row.text), nullptr) << row.text;
  for (const auto& row : tables::kValues) EXPECT_NE(knows(row.keyword), nullptr) << row.keyword;
  for (const auto& row : tables::kAxes) EXPECT_NE(knows(row.token), nullptr) << row.token;
  for (const auto& port : tables::kPorts) EXPECT_NE(knows(port), nullptr) << port;
  for (const auto& row : tables::kTabStatements) {
    EXPECT_TRUE(row.keyword.empty() || knows(row.keyword) != nullptr) << row.keyword;
  }
}

TEST(JoystickFile, KnowsEverySlashModifierOfTheComposer) {
  const auto expectKnown = [](std::string_view modifier) {
    EXPECT_NE(std::ranges::find(kSlashLetters, modifier[1], &SlashLetter::letter), std::end(kSlashLetters));
  };
  for (const auto& row : tables::kSlashes) expectKnown(row.caption);
  for (const std::string_view slash : tables::kFlagSlashes) expectKnown(slash);
  expectKnown(tables::kFormatSlash.caption);
}

TEST(JoystickFile, EveryStatementOfAnAxisHasItsShape) {
  for (const StatementWord& row : kStatementWords) {
    EXPECT_EQ(row.form == StatementForm::Axis, FindAxis(row.word) != nullptr) << row.word;
  }
}

TEST(JoystickFile, ADeepTextMakesNoDeepTree) {
  constexpr std::size_t kMany = 200'000;
  std::string text = "DEF X1 " + std::string(kMany, '(') + "\nDEF X2";
  for (std::size_t i = 0; i < kMany; ++i) text += " NOT";
  text += "\nBTN S1";
  for (std::size_t i = 0; i < kMany; ++i) text += " /N /U /H /I";
  EXPECT_EQ(WrittenBack(JoystickFile(text), text), text);
}

}  // namespace
}  // namespace tarvik::model
