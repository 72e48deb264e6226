// Every rule by its two examples, and what holds for all rows.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "support/Checks.h"
#include "support/ModelPrinters.h"

namespace tarvik::model {
namespace {

JudgedPair Judged(const Example& example) {
  return {WithPaneLineBreaks(example.joystick), WithPaneLineBreaks(example.macros), example.hardware,
          example.names};
}

class RulesTest : public testing::TestWithParam<const Rule*> {};

TEST_P(RulesTest, ItsExampleBreaksItAndNoOtherRule) {
  const Rule& rule = *GetParam();
  const JudgedPair pair = Judged(rule.example);
  ASSERT_FALSE(pair.problems.empty());
  for (const Problem& problem : pair.problems) EXPECT_EQ(problem.rule->id, rule.id);
}

TEST_P(RulesTest, ItsCounterExampleBreaksNone) {
  EXPECT_THAT(Judged(GetParam()->counterExample).problems, testing::IsEmpty());
}

TEST_P(RulesTest, ItsWordsAreSentences) {
  const Rule& rule = *GetParam();
  std::vector<std::string> sentences = {std::string(rule.title), std::string(rule.advice)};
  for (const Problem& problem : Judged(rule.example).problems) {
    sentences.push_back(problem.text);
    sentences.push_back(problem.advice);
  }
  for (const std::string& sentence : sentences) {
    EXPECT_TRUE(std::string_view(".!?").find(sentence.back()) != std::string_view::npos) << sentence;
    EXPECT_EQ(sentence.find("  "), std::string::npos) << sentence;
    EXPECT_EQ(sentence.find('\n'), std::string::npos) << sentence;
  }
}

INSTANTIATE_TEST_SUITE_P(Each, RulesTest, testing::ValuesIn([] {
                           std::vector<const Rule*> rules;
                           for (const Rule& rule : AllRules()) rules.push_back(&rule);
                           return rules;
                         }()),
                         [](const auto& each) {
                           std::string name(each.param->id);
                           std::ranges::replace(name, '-', '_');
                           return name;
                         });

TEST(Rules, TheirIdsAreOfSmallLettersAndHyphensAndEachIsThereOnce) {
  std::set<std::string_view> ids;
  for (const Rule& rule : AllRules()) {
    EXPECT_TRUE(ids.insert(rule.id).second) << rule.id;
    EXPECT_EQ(rule.id.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-"), std::string_view::npos)
        << rule.id;
    EXPECT_EQ(FindRule(rule.id), &rule);
  }
  EXPECT_EQ(FindRule("no-such-rule"), nullptr);
}

TEST(Rules, EachStandsInTheDocument) {
  std::ifstream in(TARVIK_DATA "/../docs/language.md");
  const std::string document{std::istreambuf_iterator<char>(in), {}};
  for (const Rule& rule : AllRules()) {
    const std::string row = "| `" + std::string(rule.id) + "` | " + std::string(NameOf(rule.severity)) + " |";
    EXPECT_NE(document.find(row), std::string::npos) << row;
  }
}

}  // namespace
}  // namespace tarvik::model
