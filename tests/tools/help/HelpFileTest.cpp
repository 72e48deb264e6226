#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "language/ComposerTables.h"
#include "language/LogicLines.h"
#include "language/SyntaxColouring.h"
#include "text/CodePage.h"
#include "tools/help/HelpFile.h"
#include "workbench/HelpTopics.h"

namespace tarvik {

static void PrintTo(const HelpTopic& topic, std::ostream* out) { *out << "the topic " << topic.title; }

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kFile =
    "Before the first topic.\r\n"
    "# Find\r\n"
    "<!-- 3110 3111: find, Search text -->\r\n"
    "Looks for text.\r\n"
    "\r\n"
    "## Options\r\n"
    "# Search again\n"
    "<!--x-->\n"
    "# Last";

TEST(HelpFile, TopicsHaveTheirTitlesNumbersKeywordsAndText) {
  const HelpFile file(kFile);
  ASSERT_EQ(file.Topics().size(), 3U);
  const HelpTopic& find = file.Topics()[0];
  EXPECT_EQ(find.title, "Find");
  EXPECT_THAT(find.contexts, ElementsAre(3110, 3111));
  EXPECT_THAT(find.keywords, ElementsAre("find", "search text"));
  EXPECT_EQ(find.text, "# Find\nLooks for text.\n\n## Options\n");
  EXPECT_THAT(file.Topics()[1].contexts, IsEmpty());
  EXPECT_EQ(file.Topics()[2].title, "Last");
}

TEST(HelpFile, ATopicIsFoundByNumberAndByKeywordInAnyCaseOrByItsBeginning) {
  const HelpFile file(kFile);
  EXPECT_EQ(file.WithContext(3111), &file.Topics()[0]);
  EXPECT_EQ(file.WithContext(1), nullptr);
  EXPECT_EQ(file.WithKeyword(" FIND\r\n"), &file.Topics()[0]);
  EXPECT_EQ(file.WithKeyword("sea"), &file.Topics()[0]);
  EXPECT_EQ(file.WithKeyword("again"), nullptr);
  EXPECT_EQ(file.WithKeyword(""), nullptr);
}

TEST(HelpFile, NoFileHasNoTopics) { EXPECT_THAT(HelpFile("").Topics(), IsEmpty()); }

TEST(HelpFile, ASelectionOfMoreThanItsFirstWordFindsThat) {
  const HelpFile file("# Button\n<!-- 1: btn, s -->\n# Delay\n<!-- 2: dly, dly of the list -->\n");
  EXPECT_EQ(file.WithKeyword("BTN S1 Fire"), &file.Topics()[0]);
  EXPECT_EQ(file.WithKeyword("DLY(60)"), &file.Topics()[1]);
  EXPECT_EQ(file.WithKeyword("S14"), &file.Topics()[0]);
  EXPECT_EQ(file.WithKeyword("Some words"), nullptr);
  EXPECT_EQ(file.WithKeyword("(("), nullptr);
  EXPECT_EQ(file.WithKeyword("123"), nullptr);
}

TEST(HelpFile, TopicsStandUnderTheHeadingBeforeThem) {
  const HelpFile file("<!-- group: Early -->\n# One\n<!-- 1: a -->\n<!-- group: Late -->\n# Two\n# Three\n");
  ASSERT_EQ(file.Topics().size(), 3U);
  EXPECT_EQ(file.Topics()[0].group, "Early");
  EXPECT_EQ(file.Topics()[0].text, "# One\n");
  EXPECT_EQ(file.Topics()[1].group, "Late");
  EXPECT_EQ(file.Topics()[2].group, "Late");
  EXPECT_THAT(file.Topics()[1].contexts, IsEmpty());
}

TEST(HelpFile, ASearchLooksAtTitlesKeywordsAndText) {
  const HelpFile file(kFile);
  EXPECT_THAT(file.Search(" LOOKS for "), ElementsAre(&file.Topics()[0]));
  EXPECT_THAT(file.Search("search"), ElementsAre(&file.Topics()[1], &file.Topics()[0])) << "titles first";
  EXPECT_THAT(file.Search("aga sea"), ElementsAre(&file.Topics()[1])) << "all of them, in any order";
  EXPECT_THAT(file.Search("Last"), ElementsAre(&file.Topics()[2]));
  EXPECT_EQ(file.Search("").size(), 3U);
  EXPECT_THAT(file.Search("nowhere"), IsEmpty());
}

TEST(HelpFile, ASearchFindsTheBeginningsOfWords) {
  const HelpFile file("# Buttons\n/U and BTN (RAW)\n# Reset\nset\n");
  EXPECT_THAT(file.Search("set"), ElementsAre(&file.Topics()[1]));
  EXPECT_THAT(file.Search("utton"), IsEmpty());
  EXPECT_THAT(file.Search("/u raw"), ElementsAre(&file.Topics()[0]));
  std::vector<std::size_t> starts;
  for (const SearchHit& hit : HitsIn("Reset, set and /set", "SET")) starts.push_back(hit.start);
  EXPECT_THAT(starts, ElementsAre(7, 16));
  EXPECT_TRUE(HitsIn("Reset", " ").empty());
}

TEST(HelpFile, ExamplesKeepTheirBlanks) {
  const HelpFile file("# One\n```joystick\nBTN S1 /I a\r\n       /O b  \n```\n");
  EXPECT_EQ(file.Topics()[0].text, "# One\n```joystick\nBTN S1 /I a\n       /O b\n```\n");
}

class OwnHelpFile : public testing::Test {
 protected:
  static std::string Content() {
    std::ifstream in(TARVIK_DATA "/tarvik.hlp", std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  /// A topic about the file language that says of itself that it is about the word.
  void ExpectTopicOf(std::string_view word) {
    const HelpTopic* const topic = file.WithKeyword(word);
    ASSERT_TRUE(topic) << word;
    EXPECT_THAT(topic->keywords, testing::Contains(LowerCase(word))) << word << " leads to " << topic->title;
    EXPECT_EQ(topic->group, "The file language") << word;
  }

  const HelpFile file{Content()};
};

TEST_F(OwnHelpFile, HasATopicForEveryNumberThatTheProgramAsksFor) {
  for (const int number : topic::All()) EXPECT_TRUE(file.WithContext(number)) << number;
}

TEST_F(OwnHelpFile, GivesEachNumberToOneTopicAndEachTopicAHeading) {
  std::set<int> numbers;
  for (const HelpTopic& topic : file.Topics()) {
    EXPECT_FALSE(topic.contexts.empty()) << topic.title;
    EXPECT_FALSE(topic.group.empty()) << topic.title;
    for (const int number : topic.contexts) EXPECT_TRUE(numbers.insert(number).second) << number;
  }
}

TEST_F(OwnHelpFile, HasATopicForEveryWordOfTheFileLanguages) {
  for (const auto passes : {JoystickPasses(), MacroPasses()}) {
    for (const Pass& pass : passes) ExpectTopicOf(pass.text.substr(0, pass.text.find_first_of(" (", 1)));
  }
  for (const tables::SlashRow& slash : tables::kSlashes) ExpectTopicOf(slash.caption);
  for (const std::string_view slash : tables::kFlagSlashes) ExpectTopicOf(slash);
  for (const tables::TabRow& row : tables::kTabStatements) {
    if (!row.keyword.empty()) ExpectTopicOf(row.keyword);
  }
  for (const tables::AxisRow& axis : tables::kAxes) ExpectTopicOf(axis.token);
  for (const tables::ValueRow& value : tables::kValues) {
    ExpectTopicOf(value.keyword.substr(0, value.keyword.find(' ')));
  }
}

TEST_F(OwnHelpFile, HasATopicForEveryControlOfTheHardware) {
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (row.array != "BTN" || row.caption.empty()) continue;
    EXPECT_TRUE(file.WithKeyword(row.caption)) << row.caption;
  }
  for (const std::string_view hat : tables::kHats) {
    for (const std::string_view position : tables::kHatPositions) {
      ExpectTopicOf(std::string(hat) + std::string(position));
    }
  }
}

TEST_F(OwnHelpFile, ShowsEveryExampleInColours) {
  int examples = 0;
  const std::regex example("```(joystick|macro)\n([^`]*)\n```");
  for (const HelpTopic& topic : file.Topics()) {
    for (std::sregex_iterator at(topic.text.begin(), topic.text.end(), example), end; at != end; ++at) {
      const std::string text = (*at)[2];
      SyntaxColouring colouring(text, (*at)[1] == "macro" ? MacroPasses() : JoystickPasses());
      colouring.Run();
      constexpr Colour kColours[] = {Colour{0}, Colour{1}, Colour{2}, Colour{3}, Colour{4}, Colour{5}};
      const bool macrosAlone = topic.contexts.front() == 4150;
      if (topic.contexts.front() > topic::kProblems) continue;  // which shows what is wrong
      EXPECT_EQ(colouring.Colours(kColours).runs().size() > 1, !macrosAlone) << topic.title;
      ++examples;
    }
  }
  EXPECT_GT(examples, 30);
}

constexpr std::string_view kGroupOfRules = "<!-- group: What problems mean -->\n";

std::string ExampleOf(const model::Example& example) {
  std::string text;
  const auto add = [&text](std::string_view language, std::string_view lines) {
    if (!lines.empty())
      text.append("```").append(language).append("\n").append(ToUtf8(lines)).append("```\n");
  };
  add("joystick", example.joystick);
  add("macro", example.macros);
  return text;
}

/// The topics of the rules, made from their rows.
std::string TopicsOfRules() {
  std::string text(kGroupOfRules);
  for (const model::Rule& rule : model::AllRules()) {
    const std::string title(rule.title.substr(0, rule.title.size() - 1));
    text +=
        "# " + title + "\n<!-- " + std::to_string(topic::Of(rule)) + ": " + std::string(rule.id) + " -->\n";
    text.append("*").append(model::NameOf(rule.severity)).append(", ").append(rule.id).append("*\n\n");
    text.append(ExampleOf(rule.example)).append("\n").append(rule.advice).append("\n\n");
    text.append(ExampleOf(rule.counterExample)).append("\n");
  }
  text.pop_back();
  return text;
}

/// With TARVIK_PROMOTE=1 in the environment the topics are written anew.
TEST_F(OwnHelpFile, TellsOfEveryRuleAsItsRowDoes) {
  const std::string content = Content();
  const std::size_t start = std::min(content.find(kGroupOfRules), content.size());
  const std::string topics = TopicsOfRules();
  if (std::getenv("TARVIK_PROMOTE") != nullptr) {
    std::ofstream(TARVIK_DATA "/tarvik.hlp", std::ios::binary) << content.substr(0, start) << topics;
  } else {
    EXPECT_EQ(content.substr(start), topics);
  }
}

TEST_F(OwnHelpFile, HasNoLinkToNowhere) {
  const std::regex link(R"(\]\(#(\d+)\))");
  for (const HelpTopic& topic : file.Topics()) {
    for (std::sregex_iterator at(topic.text.begin(), topic.text.end(), link), end; at != end; ++at) {
      EXPECT_TRUE(file.WithContext(std::stoi((*at)[1]))) << (*at)[0];
    }
  }
}

}  // namespace
}  // namespace tarvik
