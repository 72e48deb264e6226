#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <chrono>
#include <string>

#include "platform/ProgramFolder.h"
#include "support/TemporaryFolder.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

class ProgramFolderTest : public testing::Test {
 protected:
  ProgramFolderTest() {
    temporary.Put("usr/bin/tarvik", "program");
    Install("tarvik.hlp", "help");
    Install("Templates/Title.rtf", "title");
  }
  ~ProgramFolderTest() override {
    for (const char* const folder : {"usr/share/tarvik", "portable", "home"})
      Allow(folder, fs::perms::owner_all);
  }

  /// As a package does, the file of another version has another time.
  void Install(const std::string& name, const std::string& content) {
    const fs::path file = temporary.Put("usr/share/tarvik/" + name, content);
    fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(1000 - ++version_));
  }
  void Allow(const std::string& folder, fs::perms permissions) const {
    std::error_code ignored;
    fs::permissions(temporary.path() / folder, permissions, ignored);
  }
  ProgramFolder Start(const std::string& executable = "usr/bin/tarvik") const {
    ProgramFolder folder(temporary.path() / executable, own);
    folder.Fill();
    return folder;
  }
  [[nodiscard]] std::string Own(const std::string& name) const {
    return TemporaryFolder::Content(own / name);
  }

  TemporaryFolder temporary;
  fs::path own = temporary.path() / "home/.local/share/tarvik";

 private:
  int version_ = 0;
};

TEST_F(ProgramFolderTest, AFolderThatHasTheDataAndCanBeWrittenIsTheOne) {
  temporary.Put("portable/tarvik.hlp", "help");
  const ProgramFolder folder = Start("portable/tarvik");
  EXPECT_EQ(folder.Path(), temporary.path() / "portable");
  EXPECT_TRUE(folder.Lasts());
  EXPECT_FALSE(fs::exists(own));
}

TEST_F(ProgramFolderTest, NothingIsCopiedBeforeTheFolderIsToBeFilled) {
  const ProgramFolder folder(temporary.path() / "usr/bin/tarvik", own);
  EXPECT_EQ(folder.Path(), own);
  EXPECT_TRUE(fs::is_empty(own));
  folder.Fill();
  EXPECT_EQ(Own("tarvik.hlp"), "help");
}

TEST_F(ProgramFolderTest, TheFirstStartOfAnInstalledProgramFillsTheUsersFolder) {
  const ProgramFolder folder = Start();
  EXPECT_EQ(folder.Path(), own);
  EXPECT_TRUE(folder.Lasts());
  EXPECT_EQ(Own("tarvik.hlp"), "help");
  EXPECT_EQ(Own("Templates/Title.rtf"), "title");
}

TEST_F(ProgramFolderTest, WhatLiesBesideAnExecutableInAReadOnlyFolderIsCopiedWithoutTheExecutable) {
  temporary.Put("portable/tarvik.hlp", "portable help");
  temporary.Put("portable/tarvik", "program");
  Allow("portable", fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(Start("portable/tarvik").Path(), own);
  EXPECT_EQ(Own("tarvik.hlp"), "portable help");
  EXPECT_FALSE(fs::exists(own / "tarvik"));
}

TEST_F(ProgramFolderTest, WhatTheUserChangedOrDeletedStaysSoInALaterVersionToo) {
  Start();
  temporary.Put("home/.local/share/tarvik/tarvik.hlp", "my own help");
  fs::remove(own / "Templates/Title.rtf");
  Start();
  Install("tarvik.hlp", "better help");
  Install("Templates/Title.rtf", "better title");
  Start();
  EXPECT_EQ(Own("tarvik.hlp"), "my own help");
  EXPECT_FALSE(fs::exists(own / "Templates/Title.rtf"));
}

TEST_F(ProgramFolderTest, ALaterVersionReplacesWhatTheUserLeftAsItWas) {
  Start();
  Install("tarvik.hlp", "better help");
  Start();
  EXPECT_EQ(Own("tarvik.hlp"), "better help");
  Install("tarvik.hlp", "best help");
  Start();
  EXPECT_EQ(Own("tarvik.hlp"), "best help");
}

TEST_F(ProgramFolderTest, AFileThatIsNewInALaterVersionComesUnlessTheUserHasOneOfThatName) {
  Start();
  temporary.Put("home/.local/share/tarvik/Templates/Mine.rtf", "mine");
  Install("Templates/Mine.rtf", "new");
  Install("Templates/a b.rtf", "new");
  Start();
  EXPECT_EQ(Own("Templates/Mine.rtf"), "mine");
  EXPECT_EQ(Own("Templates/a b.rtf"), "new");
  fs::remove(own / "Templates/a b.rtf");
  Start();
  EXPECT_FALSE(fs::exists(own / "Templates/a b.rtf"));
}

TEST_F(ProgramFolderTest, AFileThatCouldNotBeCopiedComesAtALaterStart) {
  temporary.Put("home/.local/share/tarvik/Templates", "a file where a folder is to be");
  EXPECT_TRUE(Start().Lasts());
  EXPECT_EQ(Own("tarvik.hlp"), "help");
  fs::remove(own / "Templates");
  Start();
  EXPECT_EQ(Own("Templates/Title.rtf"), "title");
}

TEST_F(ProgramFolderTest, APipeInPlaceOfTheRecordKeepsNobodyWaiting) {
  temporary.Make("home/.local/share/tarvik");
  ASSERT_EQ(mkfifo((own / "installed.txt").c_str(), 0600), 0);
  Start();
  EXPECT_EQ(Own("tarvik.hlp"), "help");
}

TEST_F(ProgramFolderTest, CopiesCanBeWrittenAndNothingElseIsLeftBehind) {
  const fs::perms readOnly = fs::perms::owner_read;
  fs::permissions(temporary.path() / "usr/share/tarvik/tarvik.hlp", readOnly);
  Start();
  EXPECT_TRUE((fs::status(own / "tarvik.hlp").permissions() & fs::perms::owner_write) != fs::perms::none);
  const auto entries =
      std::distance(fs::recursive_directory_iterator(own), fs::recursive_directory_iterator());
  EXPECT_EQ(entries, 4) << "the help, the templates with one file, and the record of them";
}

TEST_F(ProgramFolderTest, AHomeThatCannotBeWrittenLeavesATemporaryFolder) {
  setenv("TMPDIR", temporary.Make("tmp").c_str(), 1);
  own = temporary.Make("home");
  Allow("home", fs::perms::owner_read | fs::perms::owner_exec);
  for (const fs::path& bad : {own, temporary.Put("file", "") / "tarvik", fs::path()}) {
    own = bad;
    const ProgramFolder folder = Start();
    EXPECT_EQ(folder.Path().parent_path(), temporary.path() / "tmp");
    EXPECT_FALSE(folder.Lasts());
    EXPECT_EQ(TemporaryFolder::Content(folder.Path() / "tarvik.hlp"), "help");
  }
  setenv("TMPDIR", "/missing", 1);
  EXPECT_EQ(Start().Path(), temporary.path() / "usr/share/tarvik");
  unsetenv("TMPDIR");
}

TEST(UsersOwnFolder, IsWhereTheDesktopKeepsData) {
  setenv("HOME", "/home/me", 1);
  setenv("XDG_DATA_HOME", "/data", 1);
  EXPECT_EQ(ProgramFolder::UsersOwn(), "/data/tarvik");
  setenv("XDG_DATA_HOME", "relative", 1);
  EXPECT_EQ(ProgramFolder::UsersOwn(), "/home/me/.local/share/tarvik");
  unsetenv("XDG_DATA_HOME");
  EXPECT_EQ(ProgramFolder::UsersOwn(), "/home/me/.local/share/tarvik");
  unsetenv("HOME");
  EXPECT_EQ(ProgramFolder::UsersOwn(), "");
}

}  // namespace
}  // namespace tarvik
