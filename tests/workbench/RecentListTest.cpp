#include <gmock/gmock.h>

#include "platform/HostDrives.h"
#include "platform/HostFiles.h"
#include "support/ScriptedPlatform.h"
#include "support/TemporaryFolder.h"
#include "workbench/RecentList.h"

namespace tarvik {
namespace {

using testing::ElementsAre;

constexpr RecordKey kThingKeys[] = {
    {"Name", "NameInHand", 10}, {"Path", "PathInHand", 20}, {"Use", "UseInHand", 0, PartKind::Number}};
constexpr ListTraits kThings = {"Things", "ThingNum", kThingKeys};

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
  session::ScriptedDrives drives;
  RecentList list{owner, kThings, file, drives};
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

// Files on a host where names may differ in case alone.

constexpr RecordKey kFileKeys[] = {{"File", "FileInHand", 256, PartKind::File}};
constexpr ListTraits kFileTraits = {"Files", "FileNum", kFileKeys};

/// What a program has from its start to its end.
struct OneRun {
  explicit OneRun(const std::filesystem::path& own) : drives(own) { list.Read(); }

  void Use(const std::string& path) {
    list.InHand("FileInHand") = path;
    list.Use();
    EXPECT_TRUE(list.Save());
  }
  /// What the file of a record holds, "(none)" where it is not there.
  std::string Seen(int index) {
    const auto content = files.Read(list.PathNow(index));
    return content ? *content : "(none)";
  }

  HostDrives drives;
  HostFiles files{drives.Paths()};
  ProfileFile file{files, drives.FromHost(drives.All().front().folder) + "tarvik.ini"};
  Component owner{"Owner"};
  RecentList list{owner, kFileTraits, file, drives};
};

class RecentListOnHost : public testing::Test {
 protected:
  RecentListOnHost() {
    folder.Make("own/drive_c");
    folder.Make("old");
    folder.Make("new");
  }
  std::string Host(const std::string& name) const { return (folder.path() / name).string(); }
  std::unique_ptr<OneRun> Start() const { return std::make_unique<OneRun>(Host("own")); }

  TemporaryFolder folder;
};

TEST_F(RecentListOnHost, AnEntryIsItsFileAlsoWhenATwinCame) {
  folder.Put("own/drive_c/Flight.b50", "mine");
  Start()->Use("c:\\flight.b50");
  folder.Put("own/drive_c/flight.b50", "another");
  const auto run = Start();
  EXPECT_THAT(run->list.Names(), ElementsAre("c:\\flight.b50"));
  EXPECT_EQ(run->Seen(1), "mine");
  run->list.Take(1);
  EXPECT_EQ(*run->files.Read(run->list.InHand("FileInHand").Get()), "mine");
}

TEST_F(RecentListOnHost, AnEntryWhoseFileIsGoneIsNoOtherFile) {
  for (const auto& [gone, other] : {std::pair("Flight.b50", "flight.b50"), {"flight.b50", "FLIGHT.b50"}}) {
    folder.Put(std::string("own/drive_c/") + gone, "mine");
    Start()->Use("c:\\flight.b50");
    std::filesystem::remove(Host(std::string("own/drive_c/") + gone));
    folder.Put(std::string("own/drive_c/") + other, "another");
    EXPECT_EQ(Start()->Seen(1), "(none)") << gone;
    std::filesystem::remove(Host(std::string("own/drive_c/") + other));
  }
}

TEST_F(RecentListOnHost, AnEntryGoesWithItsFileWhenTheDriveIsMoved) {
  folder.Put("old/a.b50", "mine");
  folder.Put("new/a.b50", "another");
  const auto run = Start();
  ASSERT_TRUE(run->drives.Set('d', Host("old")));
  run->Use("d:\\a.b50");
  ASSERT_TRUE(run->drives.Set('d', Host("new")));
  EXPECT_EQ(run->Seen(1), "mine");
  ASSERT_TRUE(run->drives.Set('e', Host("old")));
  EXPECT_EQ(run->list.PathNow(1), "e:\\a.b50");
}

TEST_F(RecentListOnHost, AFileInUseIsNotMistakenForOneThatComesMeanwhile) {
  folder.Put("own/drive_c/Flight.b50", "mine");
  const auto run = Start();
  run->Use("c:\\flight.b50");
  folder.Put("own/drive_c/flight.b50", "another");
  EXPECT_EQ(*run->files.Read("c:\\flight.b50"), "mine");
}

TEST_F(RecentListOnHost, TwoFilesThatHadOnePathAreTwoEntries) {
  folder.Put("own/drive_c/Flight.b50", "first");
  Start()->Use("c:\\flight.b50");
  folder.Put("own/drive_c/flight.b50", "second");
  Start()->Use("c:\\flight.b50");
  const auto run = Start();
  EXPECT_THAT(run->list.Names(), ElementsAre("c:\\flight.b50", testing::MatchesRegex(R"(c:\\fl....~1.b50)")));
  EXPECT_EQ(run->Seen(1), "second");
  EXPECT_EQ(run->Seen(2), "first");
  run->Use(run->list.PathNow(2));
  EXPECT_EQ(run->list.Count(), 2);
  EXPECT_EQ(run->Seen(1), "first");
}

TEST_F(RecentListOnHost, WithoutAWordOfTheHostAnEntryIsWhatItsPathMeans) {
  folder.Put("own/drive_c/Flight.b50", "mine");
  folder.Put("own/drive_c/tarvik.ini", "[Files]\r\nFileNum=2\r\nFile1=c:\\flight.b50\r\nFile2=c:\\a.b50\r\n");
  EXPECT_EQ(Start()->Seen(1), "mine");
  EXPECT_EQ(Start()->Seen(2), "(none)");
}

TEST_F(RecentListOnHost, APathThatWasChangedByHandCounts) {
  folder.Put("own/drive_c/a.b50", "a");
  folder.Put("own/drive_c/b.b50", "b");
  Start()->Use("c:\\a.b50");
  ASSERT_TRUE(Start()->file.Write("Files", "File1", "c:\\b.b50"));
  EXPECT_EQ(Start()->Seen(1), "b");
  const auto run = Start();
  run->list.SetPart(1, 0, "c:\\a.b50");
  EXPECT_EQ(run->Seen(1), "a");
}

TEST_F(RecentListOnHost, AClearedListForgetsTheHostsPaths) {
  folder.Put("own/drive_c/a.b50", "a");
  const auto run = Start();
  run->Use("c:\\a.b50");
  EXPECT_THAT(run->file.Read().text(), testing::HasSubstr(Host("own/drive_c/a.b50")));
  ASSERT_TRUE(run->list.Clear());
  EXPECT_THAT(run->file.Read().text(), testing::Not(testing::HasSubstr(Host("own"))));
}

}  // namespace
}  // namespace tarvik
