#include <gmock/gmock.h>

#include "support/BareWorkbench.h"
#include "workbench/Versions.h"

namespace tarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class VersionsTest : public testing::Test {
 protected:
  VersionsTest() {
    bench.files.PutFolder("c:\\tarvik\\backup");
    bench.workbench.values.BackupDir = Folder("c:\\tarvik\\Backup\\");
    Open("c:\\my\\a.b50");
  }

  void Open(const std::string& path) {
    if (!bench.files.FileExists(path)) bench.files.Put(path, "first");
    bench.workbench.files.OpenWithoutDialog(path);
    bench.workbench.files.Load(bench.joystick);
    bench.workbench.files.OpenWithDialogs();
  }

  void Save(const std::string& text) {
    bench.joystick.text.SetContent(RichText(text));
    bench.workbench.files.Save(bench.joystick);
  }

  std::vector<std::string> Texts() {
    std::vector<std::string> texts;
    for (const Version& version : versions.Of(bench.joystick))
      texts.push_back(bench.files.Content(versions.PathOf(bench.joystick, version)).value_or("gone"));
    return texts;
  }

  BareWorkbench bench;
  Versions& versions = bench.workbench.versions;
};

TEST_F(VersionsTest, EachSaveKeepsWhatWasThereAndWhatItWrites) {
  EXPECT_THAT(Texts(), IsEmpty());
  Save("second");
  EXPECT_THAT(Texts(), ElementsAre("second", "first"));
  Save("second");
  EXPECT_THAT(Texts(), ElementsAre("second", "first")) << "nothing is kept twice in a row";
  Save("first");
  EXPECT_THAT(Texts(), ElementsAre("first", "second", "first"));
}

TEST_F(VersionsTest, FilesOfOneNameInTwoFoldersHaveTheirOwn) {
  Save("mine");
  Open("c:\\yours\\a.b50");
  EXPECT_THAT(Texts(), IsEmpty());
  Save("yours");
  EXPECT_THAT(Texts(), ElementsAre("yours", "first"));
  Open("c:\\my\\a.b50");
  EXPECT_THAT(Texts(), ElementsAre("mine", "first"));
}

TEST_F(VersionsTest, AnotherProgramsTextIsMarkedAsThat) {
  Save("mine");
  bench.files.Put("c:\\my\\a.b50", "theirs");
  Save("mine again");
  EXPECT_THAT(Texts(), ElementsAre("mine again", "theirs", "mine", "first"));
  EXPECT_EQ(versions.Of(bench.joystick)[1].author, Author::OtherProgram);
  EXPECT_EQ(versions.Of(bench.joystick)[2].author, Author::User);
}

TEST_F(VersionsTest, OfManyTheFirstOneAndTheLastOnesStay) {
  for (int i = 1; i <= 60; ++i) Save(TextOf(i));
  const std::vector<std::string> texts = Texts();
  EXPECT_EQ(texts.size(), Versions::kMost);
  EXPECT_EQ(texts.front(), "60");
  EXPECT_EQ(texts.back(), "first");
}

TEST_F(VersionsTest, WithoutBackupsNoneIsKeptButAnotherPrograms) {
  bench.workbench.settings.CreateBackup = 0;
  Save("mine");
  EXPECT_THAT(Texts(), IsEmpty());
  bench.files.Put("c:\\my\\a.b50", "theirs");
  Save("mine again");
  EXPECT_THAT(Texts(), ElementsAre("theirs"));
}

TEST_F(VersionsTest, AFullDiskKeepsNoneAndTheOldOnesStay) {
  Save("second");
  bench.files.FailAfter(0);
  EXPECT_FALSE(versions.Keep(bench.joystick, "third", Author::User));
  EXPECT_THAT(Texts(), ElementsAre("second", "first"));
}

TEST_F(VersionsTest, WhatSomebodyPutsAmongThemIsNone) {
  Save("second");
  const std::string path = versions.PathOf(bench.joystick, versions.Of(bench.joystick).front());
  const std::string folder = path.substr(0, path.rfind('\\') + 1);
  for (const char* const name :
       {"a.b50", "7", "99999999999999999999999 1997-12-14 16.00.00.b50", "8 1997.b50"})
    bench.files.Put(folder + name, "strange");
  EXPECT_THAT(Texts(), ElementsAre("second", "first"));
}

TEST_F(VersionsTest, ALongNameLeavesRoomForWhatIsPutBesideIt) {
  Open("c:\\my\\" + std::string(200, 'a') + "." + std::string(45, 'b'));
  Save("second");
  const std::string path = versions.PathOf(bench.joystick, versions.Of(bench.joystick).front());
  EXPECT_LT(path.size(), 200U);
  EXPECT_THAT(Texts(), ElementsAre("second", "first"));
}

TEST(MissedLeast, TheOldOnesThinOutFirst) {
  constexpr std::int64_t kHour = 3600;
  const std::vector<std::int64_t> hourly = {0, kHour, 2 * kHour, 3 * kHour, 4 * kHour};
  EXPECT_EQ(MissedLeast(hourly, hourly.back()), 1U);
  const std::vector<std::int64_t> twice = {0, kHour, 2 * kHour, 2 * kHour + 1, 2 * kHour + 2, 4 * kHour};
  EXPECT_EQ(MissedLeast(twice, twice.back()), 3U);
}

TEST(MissedLeast, AClockThatWasSetBackDoesNoHarm) {
  const std::vector<std::int64_t> odd = {1000, 5000, 200, 300, 0};
  const std::size_t least = MissedLeast(odd, odd.back());
  EXPECT_GT(least, 0U);
  EXPECT_LT(least, odd.size() - 1);
}

}  // namespace
}  // namespace tarvik
