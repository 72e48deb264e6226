#include <grp.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <set>
#include <string>
#include <vector>

#include "platform/FileSize.h"
#include "platform/HostFiles.h"
#include "platform/InstanceLock.h"
#include "platform/Process.h"
#include "support/TemporaryFolder.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

class HostFilesTest : public testing::Test {
 protected:
  HostFilesTest() { temporary.Make("dos"); }
  ~HostFilesTest() override { fs::permissions(temporary.path() / "dos", fs::perms::owner_all); }

  fs::path Host(const std::string& name) const { return temporary.path() / "dos" / name; }
  std::string Content(const std::string& name) const { return TemporaryFolder::Content(Host(name)); }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(Host("")))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  mode_t ModeOf(const std::string& name) const {
    struct stat status {};
    EXPECT_EQ(stat(Host(name).c_str(), &status), 0);
    return status.st_mode & 07777U;
  }

  TemporaryFolder temporary;
  Drives drives{{{'c', Host("").string()}}};
  HostFiles files{drives};
};

TEST_F(HostFilesTest, WhatLiesInAFolderIsToldByItsKind) {
  for (const char* const folder : {"Maps", "keys", ".hidden"}) fs::create_directory(Host(folder));
  for (const char* const file : {"b.PNG", "A.png", "c.txt"}) temporary.Put(std::string("dos/") + file, "x");
  const std::vector<std::string> folders = {"keys", "Maps"};
  const std::vector<std::string> pictures = {"A.png", "b.PNG"};
  EXPECT_EQ(files.FoldersIn("c:\\"), folders);
  EXPECT_EQ(files.FilesIn("c:\\", ".png"), pictures);
  EXPECT_TRUE(files.FoldersIn("c:\\missing").empty());
  EXPECT_EQ(files.DriveLetters(), "cz");
}

TEST_F(HostFilesTest, WhatIsListedIsReachedByThatNameAndNothingElseIs) {
  const std::vector<std::string> names = {
      "A.txt",      "a.txt",       "B.txt",    "\u0442\u0435\u0441\u0442.txt", "\u0444\u0430\u0439\u043B.txt",
      "\u00E9.txt", "e\u0301.txt", "\"*\".txt"};
  for (const std::string& name : names) temporary.Put("dos/" + name, name);
  drives.FromHost(Host("A.txt"));
  std::set<std::string> seen;
  const std::vector<std::string> listed = files.FilesIn("c:\\", ".TXT");
  for (const std::string& name : listed) seen.insert(*files.Read("c:\\" + name));
  EXPECT_EQ(seen, std::set<std::string>(names.begin(), names.end()));
  EXPECT_EQ(std::count(listed.begin(), listed.end(), "B.txt"), 1);
  for (const char* const folder : {"Maps", "maps", ".\u2603", "\u2603"}) fs::create_directory(Host(folder));
  const std::vector<std::string> folders = files.FoldersIn("c:\\");
  EXPECT_EQ(folders.size(), 3U);
  for (const std::string& name : folders) EXPECT_TRUE(files.FolderExists("c:\\" + name)) << name;
}

TEST_F(HostFilesTest, WhatWasWrittenIsReadByteForByte) {
  const std::string content("BTN S1\r\n\0\x1A\xFF", 11);
  ASSERT_TRUE(files.Write("c:\\A.B50", content));
  EXPECT_EQ(*files.Read("c:\\a.b50"), content);
  EXPECT_EQ(Names(), std::vector<std::string>{"a.b50"});
}

TEST_F(HostFilesTest, LargeAndEmptyFilesAreReadWhole) {
  const std::string large(3'000'000, 'x');
  ASSERT_TRUE(files.Write("c:\\large", large));
  ASSERT_TRUE(files.Write("c:\\empty", ""));
  EXPECT_EQ(*files.Read("c:\\large"), large);
  EXPECT_EQ(*files.Read("c:\\empty"), "");
}

TEST_F(HostFilesTest, FilesAndFoldersAreToldApart) {
  temporary.Put("dos/TM/a.b50", "");
  EXPECT_TRUE(files.FileExists("c:\\tm\\a.b50"));
  EXPECT_FALSE(files.FolderExists("c:\\tm\\a.b50"));
  EXPECT_TRUE(files.FolderExists("c:\\tm"));
  EXPECT_TRUE(files.FolderExists("c:\\tm\\"));
  EXPECT_FALSE(files.FileExists("c:\\tm"));
  EXPECT_FALSE(files.FileExists(""));
  EXPECT_FALSE(files.FileExists("c:\\tm\\*.*"));
}

TEST_F(HostFilesTest, ReadingWhatIsNoFileFails) {
  EXPECT_EQ(files.Read("c:\\none").failure().number, error::kFileNotFound);
  EXPECT_EQ(files.Read("c:\\none").failure().systemCode, ENOENT);
  temporary.Make("dos/tm");
  EXPECT_EQ(files.Read("c:\\tm").failure().number, error::kPathAccess);
  ASSERT_EQ(mkfifo(Host("pipe").c_str(), 0600), 0);
  EXPECT_EQ(files.Read("c:\\pipe").failure().number, error::kPathAccess);
}

TEST_F(HostFilesTest, AnUnreadableFileFails) {
  if (geteuid() == 0) GTEST_SKIP() << "everything is readable for root";
  temporary.Put("dos/a.b50", "secret");
  fs::permissions(Host("a.b50"), fs::perms::none);
  EXPECT_EQ(files.Read("c:\\a.b50").failure().number, error::kPathAccess);
}

TEST_F(HostFilesTest, AWriteKeepsTheModeAndTheOwner) {
  temporary.Put("dos/a.b50", "old");
  ASSERT_EQ(chmod(Host("a.b50").c_str(), 0640), 0);
  if (geteuid() == 0) {
    ASSERT_EQ(chown(Host("a.b50").c_str(), 1234, 2345), 0);
  }
  struct stat before {};
  struct stat after {};
  ASSERT_EQ(stat(Host("a.b50").c_str(), &before), 0);
  ASSERT_TRUE(files.Write("c:\\a.b50", "new"));
  ASSERT_EQ(stat(Host("a.b50").c_str(), &after), 0);
  EXPECT_EQ(after.st_mode, before.st_mode);
  EXPECT_EQ(after.st_uid, before.st_uid);
  EXPECT_EQ(after.st_gid, before.st_gid);
  EXPECT_EQ(Content("a.b50"), "new");
}

TEST_F(HostFilesTest, AFileOfSomebodyElseStaysInTheGroupThroughWhichItIsWritten) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be two people";
  constexpr uid_t kOwner = 1234;
  constexpr uid_t kColleague = 1235;
  constexpr gid_t kGroup = 2345;
  temporary.Put("dos/a.b50", "old");
  for (const fs::path& path : {temporary.path(), Host(""), Host("a.b50")}) {
    ASSERT_EQ(chown(path.c_str(), kOwner, kGroup), 0);
    ASSERT_EQ(chmod(path.c_str(), 0770), 0);
  }
  const pid_t child = fork();
  if (child == 0) {
    const bool other = setgroups(1, &kGroup) == 0 && setgid(kColleague) == 0 && setuid(kColleague) == 0;
    _exit(other && files.Write("c:\\a.b50", "new") ? 0 : 1);
  }
  int status = 1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_EQ(status, 0);
  struct stat after {};
  ASSERT_EQ(stat(Host("a.b50").c_str(), &after), 0);
  EXPECT_EQ(after.st_uid, kColleague);
  EXPECT_EQ(after.st_gid, kGroup);
  EXPECT_EQ(after.st_mode & 07777U, 0770U);
}

TEST_F(HostFilesTest, ANewFileHasTheModeOfAnyNewFile) {
  temporary.Put("dos/other", "");
  ASSERT_TRUE(files.Write("c:\\a.b50", "new"));
  const auto mode = [this](const char* name) {
    return static_cast<int>(fs::status(Host(name)).permissions());
  };
  EXPECT_EQ(mode("a.b50"), mode("other"));
}

TEST_F(HostFilesTest, ALinkStaysALink) {
  temporary.Put("elsewhere/a.b50", "old");
  fs::create_symlink("../elsewhere/a.b50", Host("second"));
  fs::create_symlink(Host("second"), Host("First"));
  ASSERT_TRUE(files.Write("c:\\first", "new"));
  EXPECT_TRUE(fs::is_symlink(Host("First")));
  EXPECT_TRUE(fs::is_symlink(Host("second")));
  EXPECT_EQ(TemporaryFolder::Content(temporary.path() / "elsewhere/a.b50"), "new");
}

TEST_F(HostFilesTest, ALinkWithoutTargetGetsItsTarget) {
  fs::create_symlink("target", Host("link"));
  ASSERT_TRUE(files.Write("c:\\link", "new"));
  EXPECT_TRUE(fs::is_symlink(Host("link")));
  EXPECT_EQ(Content("target"), "new");
}

TEST_F(HostFilesTest, ALoopOfLinksCannotBeWritten) {
  fs::create_symlink("a", Host("b"));
  fs::create_symlink("b", Host("a"));
  EXPECT_EQ(files.Write("c:\\a", "new").failure().systemCode, ELOOP);
}

TEST_F(HostFilesTest, AReadOnlyFileStaysAsItIs) {
  temporary.Put("dos/a.b50", "old");
  fs::create_symlink("a.b50", Host("link"));
  ASSERT_EQ(chmod(Host("a.b50").c_str(), 0444), 0);
  for (const char* path : {"c:\\a.b50", "c:\\link"}) {
    const auto written = files.Write(path, "new");
    ASSERT_FALSE(written);
    EXPECT_EQ(written.failure().number, error::kPathAccess);
    EXPECT_EQ(written.failure().systemCode, EACCES);
    EXPECT_EQ(written.failure().text, "Permission denied");
  }
  EXPECT_EQ(Content("a.b50"), "old");
}

TEST_F(HostFilesTest, InAReadOnlyFolderAFileIsWrittenInPlaceAndNoneIsMade) {
  temporary.Put("dos/a.b50", "the old one, which is longer");
  ASSERT_EQ(chmod(Host("").c_str(), 0555), 0);
  EXPECT_TRUE(files.Write("c:\\a.b50", "new"));
  EXPECT_EQ(files.Write("c:\\b.b50", "new").failure().number, error::kPathAccess);
  EXPECT_EQ(files.MakeFolder("c:\\tm").failure().number, error::kPathAccess);
  EXPECT_EQ(Content("a.b50"), "new");
  EXPECT_EQ(Names(), std::vector<std::string>{"a.b50"});
}

TEST_F(HostFilesTest, AReadOnlyFileInAReadOnlyFolderStaysAsItIs) {
  temporary.Put("dos/a.b50", "old");
  ASSERT_EQ(chmod(Host("a.b50").c_str(), 0444), 0);
  ASSERT_EQ(chmod(Host("").c_str(), 0555), 0);
  EXPECT_EQ(files.Write("c:\\a.b50", "new").failure().number, error::kPathAccess);
  EXPECT_EQ(Content("a.b50"), "old");
}

TEST_F(HostFilesTest, AllNamesOfAFileLeadToWhatWasWritten) {
  temporary.Put("dos/a.b50", "the old one, which is longer");
  fs::create_hard_link(Host("a.b50"), Host("b.b50"));
  ASSERT_TRUE(files.Write("c:\\a.b50", "new"));
  EXPECT_EQ(Content("a.b50"), "new");
  EXPECT_EQ(Content("b.b50"), "new");
  EXPECT_EQ(fs::hard_link_count(Host("a.b50")), 2U);
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.b50", "b.b50"}));
}

TEST_F(HostFilesTest, WhatCannotBeWrittenInPlaceLeavesTheOldContent) {
  const std::string old(900, 'o');
  temporary.Put("dos/a.b50", old);
  fs::create_hard_link(Host("a.b50"), Host("b.b50"));
  const pid_t child = fork();
  if (child == 0) {
    const rlimit limit{1000, 1000};
    signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limit);
    const auto written = files.Write("c:\\a.b50", std::string(5000, 'x'));
    _exit(written ? 0 : written.failure().number);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(WEXITSTATUS(status), error::kDiskFull);
  EXPECT_EQ(Content("b.b50"), old);
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.b50", "b.b50"}));
}

TEST_F(HostFilesTest, AFileOfSomebodyElseInAFolderOfOwnersIsWrittenInPlace) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be two people";
  constexpr uid_t kOwner = 1234;
  constexpr uid_t kColleague = 1235;
  temporary.Put("dos/a.b50", "old");
  ASSERT_EQ(chmod(temporary.path().c_str(), 0755), 0);
  ASSERT_EQ(chmod(Host("").c_str(), 01777), 0);
  ASSERT_EQ(chmod(Host("a.b50").c_str(), 0666), 0);
  ASSERT_EQ(chown(Host("a.b50").c_str(), kOwner, kOwner), 0);
  const pid_t child = fork();
  if (child == 0) {
    const bool other = setgroups(0, nullptr) == 0 && setgid(kColleague) == 0 && setuid(kColleague) == 0;
    _exit(other && files.Write("c:\\a.b50", "new") ? 0 : 1);
  }
  int status = 1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  struct stat after {};
  ASSERT_EQ(stat(Host("a.b50").c_str(), &after), 0);
  EXPECT_EQ(after.st_uid, kOwner);
  EXPECT_EQ(Content("a.b50"), "new");
  EXPECT_EQ(Names(), std::vector<std::string>{"a.b50"});
}

TEST_F(HostFilesTest, AWriteKeepsTheAttributesAndTheAccessList) {
  temporary.Put("dos/a.b50", "old");
  const std::string path = Host("a.b50").string();
  if (setxattr(path.c_str(), "user.tarvik", "mine", 4, 0) != 0) GTEST_SKIP() << "the disk has none";
  // The version; the owner, user 1234, the group, the mask and the others, each with what they may do.
  const std::string list(
      "\2\0\0\0\1\0\6\0\377\377\377\377\2\0\6\0\322\4\0\0\4\0\4\0\377\377\377\377"
      "\20\0\6\0\377\377\377\377\40\0\0\0\377\377\377\377",
      44);
  const bool hasList = setxattr(path.c_str(), "system.posix_acl_access", list.data(), list.size(), 0) == 0;
  ASSERT_TRUE(files.Write("c:\\a.b50", "new"));
  const auto attribute = [&path](const char* name) {
    std::string value(100, '\0');
    value.resize(static_cast<std::size_t>(
        std::max<ssize_t>(getxattr(path.c_str(), name, value.data(), value.size()), 0)));
    return value;
  };
  EXPECT_EQ(attribute("user.tarvik"), "mine");
  if (hasList) {
    EXPECT_EQ(attribute("system.posix_acl_access"), list);
  }
  EXPECT_EQ(Content("a.b50"), "new");
}

TEST_F(HostFilesTest, ACopyIsOpenToNobodyWhomTheFileIsNotOpenTo) {
  struct Case {
    mode_t of;
    mode_t copy;
    mode_t then;
  };
  constexpr mode_t kNoCopyYet = 0;
  umask(0);
  for (const Case& c : {Case{0600, kNoCopyYet, 0600}, Case{0640, 0666, 0640}, Case{0604, 0660, 0600},
                        Case{0666, 0600, 0600}, Case{0444, 0644, 0644}}) {
    temporary.Put("dos/a.b50", "text");
    ASSERT_EQ(chmod(Host("a.b50").c_str(), c.of), 0);
    fs::remove(Host("copy.b50"));
    if (c.copy != kNoCopyYet) {
      temporary.Put("dos/copy.b50", "old");
      ASSERT_EQ(chmod(Host("copy.b50").c_str(), c.copy), 0);
    }
    ASSERT_TRUE(files.WriteCopy("c:\\copy.b50", "text", "c:\\a.b50"));
    EXPECT_EQ(ModeOf("copy.b50"), c.then) << std::oct << c.of << " " << c.copy;
    EXPECT_EQ(Content("copy.b50"), "text");
  }
  umask(022);
}

TEST_F(HostFilesTest, ACopyOfWhatNobodyKnowsIsItsOwnersAlone) {
  ASSERT_TRUE(files.WriteCopy("c:\\copy.b50", "text", "c:\\gone.b50"));
  EXPECT_EQ(ModeOf("copy.b50"), 0600U);
}

TEST_F(HostFilesTest, ACopyOfAnotherGroupsFileIsNotOpenToTheOwnGroup) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can give a file to any group";
  temporary.Put("dos/a.b50", "text");
  ASSERT_EQ(chown(Host("a.b50").c_str(), 0, 2345), 0);
  ASSERT_EQ(chmod(Host("a.b50").c_str(), 0660), 0);
  ASSERT_TRUE(files.WriteCopy("c:\\copy.b50", "text", "c:\\a.b50"));
  EXPECT_EQ(ModeOf("copy.b50"), 0600U);
}

TEST_F(HostFilesTest, AFileIsTakenAwayAndOfALinkTheLinkAlone) {
  temporary.Put("dos/a.b50", "text");
  fs::create_symlink("a.b50", Host("link.b50"));
  EXPECT_TRUE(files.Delete("c:\\link.b50"));
  EXPECT_EQ(Names(), std::vector<std::string>{"a.b50"});
  EXPECT_TRUE(files.Delete("c:\\A.B50"));
  EXPECT_TRUE(Names().empty());
  EXPECT_EQ(files.Delete("c:\\a.b50").failure().systemCode, ENOENT);
  temporary.Make("dos/folder");
  EXPECT_FALSE(files.Delete("c:\\folder"));
}

TEST_F(HostFilesTest, TheStateTellsOfEachChangeAndOfAFileThatIsNotThere) {
  temporary.Put("dos/a.b50", "one");
  const auto before = files.State("c:\\a.b50");
  ASSERT_TRUE(before);
  EXPECT_EQ(*files.State("c:\\A.B50"), *before);
  temporary.Put("dos/b.b50", "two");
  fs::last_write_time(Host("b.b50"), fs::last_write_time(Host("a.b50")));
  fs::rename(Host("b.b50"), Host("a.b50"));
  ASSERT_TRUE(files.State("c:\\a.b50"));
  EXPECT_NE(*files.State("c:\\a.b50"), *before);
  fs::remove(Host("a.b50"));
  EXPECT_EQ(files.State("c:\\a.b50").failure().number, error::kFileNotFound);
  EXPECT_EQ(files.State("c:\\").failure().number, error::kPathAccess);
}

TEST_F(HostFilesTest, AFolderInTheWayStays) {
  temporary.Make("dos/a.b50");
  EXPECT_EQ(files.Write("c:\\a.b50", "new").failure().number, error::kPathAccess);
  EXPECT_TRUE(files.FolderExists("c:\\a.b50"));
  EXPECT_EQ(Names(), std::vector<std::string>{"a.b50"});
}

TEST_F(HostFilesTest, ADeviceOrPipeIsNotReplaced) {
  ASSERT_EQ(mkfifo(Host("pipe").c_str(), 0600), 0);
  EXPECT_EQ(files.Write("c:\\pipe", "new").failure().number, error::kPathAccess);
  EXPECT_TRUE(fs::is_fifo(Host("pipe")));
}

TEST_F(HostFilesTest, AFileThatIsLargerThanTheLargestIsNotRead) {
  temporary.Put("dos/a.b50", "");
  fs::resize_file(Host("a.b50"), kLargestFile);
  EXPECT_TRUE(files.Read("c:\\a.b50"));
  fs::resize_file(Host("a.b50"), kLargestFile + 1);
  EXPECT_TRUE(IsTooLarge(files.Read("c:\\a.b50").failure()));
  fs::resize_file(Host("a.b50"), std::uintmax_t{1} << 40);
  EXPECT_TRUE(IsTooLarge(files.Read("c:\\a.b50").failure()));
}

TEST_F(HostFilesTest, WritingIntoAMissingFolderFails) {
  EXPECT_EQ(files.Write("c:\\none\\a.b50", "new").failure().number, error::kPathNotFound);
  EXPECT_EQ(files.Write("q:\\a.b50", "new").failure().number, error::kPathNotFound);
  EXPECT_EQ(files.Write("", "new").failure().number, error::kPathNotFound);
}

TEST_F(HostFilesTest, WhenTheDiskTakesNoMoreTheOldFileStaysAndNothingElseIsLeft) {
  temporary.Put("dos/a.b50", "old");
  const pid_t child = fork();
  if (child == 0) {
    const rlimit limit{1000, 1000};
    IgnoreFileSizeSignal();
    setrlimit(RLIMIT_FSIZE, &limit);
    const auto written = files.Write("c:\\a.b50", std::string(5000, 'x'));
    _exit(written ? 0 : written.failure().number);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(WEXITSTATUS(status), error::kDiskFull);
  EXPECT_EQ(Content("a.b50"), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"a.b50"});
}

TEST_F(HostFilesTest, WhatACrashedProcessLeftIsNotTakenOver) {
  const std::string leftover = ".tarvik-" + std::to_string(getpid()) + "-0";
  temporary.Put("dos/" + leftover, "left");
  ASSERT_TRUE(files.Write("c:\\a.b50", "new"));
  EXPECT_EQ(Content(leftover), "left");
  EXPECT_EQ(Content("a.b50"), "new");
}

/// A process that has ended.
pid_t DeadProcess() {
  const pid_t child = fork();
  if (child == 0) _exit(0);
  waitpid(child, nullptr, 0);
  return child;
}

TEST_F(HostFilesTest, AnHourLaterTheTemporaryFilesOfDeadProcessesGoAndNothingElseDoes) {
  const std::string dead = ".tarvik-" + std::to_string(DeadProcess());
  const std::string alive = ".tarvik-" + std::to_string(getpid());
  const std::vector<std::string> kept = {
      alive + "-7", dead,          dead + "-",     dead + "-0x",  "x" + dead + "-0",      ".tarvik-",
      ".tarvik--0", ".tarvik-0-0", ".tarvik-+9-0", dead + "-0-0", ".tarvik-99999999999-0"};
  std::vector<std::string> old = kept;
  old.push_back(dead + "-0");
  old.push_back(dead + "-12");
  for (const std::string& name : old) {
    temporary.Put("dos/" + name, "left");
    fs::last_write_time(Host(name), fs::file_time_type::clock::now() - std::chrono::minutes(61));
  }
  temporary.Put("dos/" + dead + "-1", "fresh");
  ASSERT_TRUE(files.Write("c:\\a.b50", "new"));
  std::vector<std::string> expected = kept;
  expected.push_back(dead + "-1");
  expected.push_back("a.b50");
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(Names(), expected);
}

TEST_F(HostFilesTest, AFolderWithTheNameOfATemporaryFileStays) {
  const std::string name = ".tarvik-" + std::to_string(DeadProcess()) + "-0";
  temporary.Put("dos/" + name + "/a", "");
  fs::last_write_time(Host(name), fs::file_time_type::clock::now() - std::chrono::hours(2));
  ASSERT_TRUE(files.Write("c:\\a.b50", "new"));
  EXPECT_TRUE(fs::exists(Host(name) / "a"));
}

TEST_F(HostFilesTest, OfTwoNamesThatDifferInCaseThePickedOneIsWritten) {
  temporary.Put("dos/a.b50", "lower");
  const std::string path = drives.FromHost(temporary.Put("dos/A.b50", "upper"));
  ASSERT_TRUE(files.Write(path, "new"));
  EXPECT_EQ(Content("A.b50"), "new");
  EXPECT_EQ(Content("a.b50"), "lower");
}

TEST_F(HostFilesTest, AFileThatIsGoneIsNotWrittenIntoOneWhoseNameDiffersInCase) {
  temporary.Put("dos/a.b50", "lower");
  const std::string path = drives.FromHost(Host("a.b50"));
  temporary.Put("dos/A.b50", "upper");
  fs::remove(Host("a.b50"));
  EXPECT_FALSE(files.FileExists(path));
  EXPECT_EQ(files.Read(path).failure().number, error::kFileNotFound);
  ASSERT_TRUE(files.Write(path, "new"));
  EXPECT_EQ(Content("A.b50"), "upper");
  EXPECT_EQ(Content("a.b50"), "new");
}

TEST_F(HostFilesTest, AFileOutsideTheCodePageIsWrittenUnderItsName) {
  const std::string path = drives.FromHost(temporary.Put("dos/\u2603.b50", "old"));
  ASSERT_TRUE(files.Write(path, "new"));
  EXPECT_EQ(Names(), std::vector<std::string>{"\u2603.b50"});
  EXPECT_EQ(*files.Read(path), "new");
}

TEST_F(HostFilesTest, AFolderIsMadeInLowerCaseInAnExistingOne) {
  EXPECT_TRUE(files.MakeFolder("c:\\TM\\"));
  EXPECT_TRUE(fs::is_directory(Host("tm")));
  EXPECT_FALSE(files.MakeFolder("c:\\tm"));
  EXPECT_EQ(files.MakeFolder("c:\\none\\f22").failure().number, error::kPathNotFound);
}

TEST_F(HostFilesTest, TheCurrentDriveDecidesWhereAPathWithoutOneLeads) {
  temporary.Put("dos/a.b50", "");
  EXPECT_TRUE(files.FileExists("\\a.b50"));
  ASSERT_TRUE(files.ChangeDrive("z:\\"));
  EXPECT_FALSE(files.FileExists("\\a.b50"));
  EXPECT_FALSE(files.ChangeDrive("q:\\"));
}

TEST(InstanceLock, OnlyOneOfTwoGetsTheLock) {
  const TemporaryFolder folder;
  InstanceLock second(folder.path() / "tarvik.lock");
  {
    InstanceLock first(folder.path() / "tarvik.lock");
    EXPECT_TRUE(first.Acquire());
    EXPECT_TRUE(first.Acquire());
    EXPECT_FALSE(second.Acquire());
  }
  EXPECT_TRUE(second.Acquire());
}

TEST(InstanceLock, AProcessThatEndsGivesTheLockBack) {
  const TemporaryFolder folder;
  InstanceLock lock(folder.path() / "tarvik.lock");
  const pid_t child = fork();
  if (child == 0) _exit(lock.Acquire() ? 0 : 1);
  int status = 1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(lock.Acquire());
}

TEST(InstanceLock, WhereNoLockFileCanBeMadeTheProgramStartsAllTheSame) {
  InstanceLock lock("/proc/none/tarvik.lock");
  EXPECT_TRUE(lock.Acquire());
}

}  // namespace
}  // namespace tarvik
