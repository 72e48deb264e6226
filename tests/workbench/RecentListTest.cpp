#include <gmock/gmock.h>

#include "support/MemoryFiles.h"
#include "workbench/RecentList.h"

namespace tarvik {
namespace {

using testing::ElementsAre;

constexpr RecordKey kKeys[] = {
    {"Name", "NameInHand", 10}, {"Path", "PathInHand", 20}, {"Use", "UseInHand", 0}};
constexpr ListTraits kTraits = {"Things", "ThingNum", kKeys};

class RecentListOnDisk : public testing::Test {
 protected:
  RecentListOnDisk() { files.PutFolder("c:\\t"); }

  void Use(const std::string& name, const std::string& path = "", const std::string& use = "0") {
    list.InHand("NameInHand") = name;
    list.InHand("PathInHand") = path;
    list.InHand("UseInHand") = use;
    list.Use();
  }
  [[nodiscard]] std::string Path(int index) {
    list.Take(index);
    return list.InHand("PathInHand");
  }
  void PutSection(const std::string& lines) { files.Put("c:\\t\\a.ini", "[Things]\r\n" + lines); }

  MemoryFiles files;
  ProfileFile file{files, "c:\\t\\a.ini"};
  Component owner{"Owner"};
  RecentList list{owner, kTraits, file};
};

TEST_F(RecentListOnDisk, PutsTheLastUsedFirst) {
  for (const char* const name : {"a", "b", "c"}) Use(name);
  EXPECT_THAT(list.Names(), ElementsAre("c", "b", "a"));
  Use("a");
  EXPECT_THAT(list.Names(), ElementsAre("a", "c", "b"));
  Use("A");
  EXPECT_THAT(list.Names(), ElementsAre("A", "a", "c", "b"));
}

TEST_F(RecentListOnDisk, ReplacesTheRecordOfAKnownName) {
  Use("a", "old");
  Use("a", "newer");
  EXPECT_EQ(Path(1), "newer");
  Use("b");
  Use("a", "newest");
  EXPECT_THAT(list.Names(), ElementsAre("a", "b"));
  EXPECT_EQ(Path(1), "newest");
}

TEST_F(RecentListOnDisk, OfTwoOfANameTheLastComesUpUnlessOneIsFirst) {
  PutSection("ThingNum=4\r\nName1=b\r\nName2=a\r\nPath2=upper\r\nName3=c\r\nName4=a\r\n");
  list.Read();
  Use("a", "new");
  EXPECT_THAT(list.Names(), ElementsAre("a", "b", "a", "c"));
  EXPECT_EQ(Path(3), "upper");
  Use("a");
  EXPECT_THAT(list.Names(), ElementsAre("a", "b", "a", "c"));
}

TEST_F(RecentListOnDisk, HasThirtyPlaces) {
  for (int i = 1; i <= RecentList::kLimit + 1; ++i) Use(TextOf(i));
  EXPECT_EQ(list.Count(), RecentList::kLimit);
  EXPECT_EQ(list.Names().front(), "31");
  EXPECT_EQ(list.Names().back(), "2");
  Use("2");
  EXPECT_EQ(list.Names().front(), "2");
  EXPECT_EQ(list.Names().back(), "3");
  EXPECT_EQ(list.Count(), RecentList::kLimit);
}

TEST_F(RecentListOnDisk, ReadsNoMoreThanItsBuffersHold) {
  PutSection("ThingNum=1\r\nName1=" + std::string(12, 'n') + "\r\nPath1=" + std::string(30, 'p') +
             "\r\nUse1=1 of them\r\n");
  list.Read();
  EXPECT_THAT(list.Names(), ElementsAre(std::string(9, 'n')));
  EXPECT_EQ(Path(1), std::string(19, 'p'));
  EXPECT_EQ(list.InHand("UseInHand").Get(), "1");
}

TEST_F(RecentListOnDisk, BelievesNoCount) {
  std::string names;
  for (int i = 1; i <= 40; ++i) names += "Name" + TextOf(i) + "=" + TextOf(i) + "\r\n";
  // 65537 is 1 in 16 bits, 40000 is negative.
  for (const auto& [count, found] : std::initializer_list<std::pair<const char*, int>>{
           {"40", 30}, {"10000", 30}, {"-1", 0}, {"x", 0}, {"", 0}, {"40000", 0}, {"65537", 1}, {"2", 2}}) {
    PutSection("ThingNum=" + std::string(count) + "\r\n" + names);
    list.Read();
    EXPECT_EQ(list.Count(), found) << count;
  }
}

TEST_F(RecentListOnDisk, StoresWhatComesBackAsItWas) {
  for (const std::string text : {"\"q\"", "'q'", " b ", "100%", "a=b", ";c", "[d]", "\"", "x\ty"})
    Use(text, text);
  const std::vector<std::string> names = list.Names();
  ASSERT_TRUE(list.Save());
  list.Read();
  EXPECT_EQ(list.Names(), names);
}

TEST_F(RecentListOnDisk, WritesCountThenTheRestThenTheRecords) {
  Use("a", "p", "1");
  ASSERT_TRUE(list.Save({{"Things", "More", "m"}}));
  EXPECT_EQ(files.Content("c:\\t\\a.ini"),
            "[Things]\r\nThingNum=1\r\nMore=m\r\nName1=a\r\nPath1=p\r\nUse1=1\r\n");
}

TEST_F(RecentListOnDisk, ClearedLeavesEmptyPlaces) {
  Use("a");
  Use("b");
  ASSERT_TRUE(list.Save());
  ASSERT_TRUE(list.Clear());
  EXPECT_EQ(list.Count(), 0);
  EXPECT_EQ(file.GetString("Things", "ThingNum", "-", 9), "0");
  EXPECT_EQ(file.GetString("Things", "Name1", "-", 9), "");
  EXPECT_EQ(file.GetString("Things", "Name2", "-", 9), "");
}

TEST_F(RecentListOnDisk, AnEmptyListWritesItsCountAlone) {
  ASSERT_TRUE(list.Save());
  EXPECT_EQ(files.Content("c:\\t\\a.ini"), "[Things]\r\nThingNum=0\r\n");
}

TEST_F(RecentListOnDisk, TellsWhoeverShowsIt) {
  int told = 0;
  const Connection listening = list.Changed.Connect([&told] { ++told; });
  Use("a");
  list.Read();
  ASSERT_TRUE(list.Clear());
  EXPECT_EQ(told, 3);
}

}  // namespace
}  // namespace tarvik
