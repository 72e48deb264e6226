#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>

#include "output/HelpFile.h"

namespace tarvik {
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

TEST(HelpFile, EveryLinkOfTheProgramsOwnLeadsToATopic) {
  std::ifstream in(TARVIK_DATA "/tarvik.hlp", std::ios::binary);
  const HelpFile file(std::string(std::istreambuf_iterator<char>(in), {}));
  ASSERT_GT(file.Topics().size(), 10U);
  for (const int context : {1000, 3110, 3120, 3130, 7021, 9410})
    EXPECT_TRUE(file.WithContext(context)) << context;
  EXPECT_TRUE(file.WithKeyword("BTN"));
  const std::regex link(R"(\]\(#(\d+)\))");
  for (const HelpTopic& topic : file.Topics()) {
    for (std::sregex_iterator at(topic.text.begin(), topic.text.end(), link), end; at != end; ++at) {
      EXPECT_TRUE(file.WithContext(std::stoi((*at)[1]))) << (*at)[0];
    }
  }
}

}  // namespace
}  // namespace tarvik
