#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cerrno>
#include <string>

#include "platform/Drives.h"
#include "support/TemporaryFolder.h"
#include "text/CodePage.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

class DrivesTest : public testing::Test {
 protected:
  DrivesTest() {
    temporary.Make("dos/tm/f22");
    temporary.Make("cd");
  }

  /// The file's content, "(none)" if the path leads to none.
  std::string Seen(std::string_view path) const {
    const auto host = drives.ToHost(path);
    return host && fs::is_regular_file(*host) ? TemporaryFolder::Content(*host) : "(none)";
  }

  /// The host path that a new file would get, below the temporary folder.
  std::string New(std::string_view path) const {
    const auto host = drives.ToHostNew(path);
    return host ? host->lexically_relative(temporary.path()).string() : "(none)";
  }

  std::string Root() const { return "z:" + LowerCase(Backslashes(temporary.path().string())); }

  static std::string Backslashes(std::string text) {
    for (char& c : text) c = c == '/' ? '\\' : c;
    return text;
  }

  TemporaryFolder temporary;
  Drives drives{{{'C', (temporary.path() / "dos").string()}, {'d', (temporary.path() / "cd/").string()}}};
};

TEST_F(DrivesTest, AFileIsFoundInEitherCase) {
  temporary.Put("dos/tm/F22/Fire.B50", "upper folder");
  temporary.Put("dos/tm/f22/Fire.B50", "fire");
  EXPECT_EQ(Seen("c:\\tm\\f22\\fire.b50"), "fire");
  EXPECT_EQ(Seen("C:\\TM\\f22\\FIRE.B50"), "fire");
  EXPECT_EQ(Seen("c:/tm/f22/fire.b50"), "fire");
}

TEST_F(DrivesTest, TheExactNameGoesFirstAndTwoOthersAreNone) {
  temporary.Put("dos/a.b50", "lower");
  temporary.Put("dos/A.b50", "upper");
  EXPECT_EQ(Seen("c:\\a.b50"), "lower");
  EXPECT_EQ(Seen("c:\\A.b50"), "upper");
  EXPECT_EQ(Seen("c:\\a.B50"), "(none)");
}

/// As long as it lives no file and no folder can be opened.
class NothingOpens {
 public:
  NothingOpens() {
    getrlimit(RLIMIT_NOFILE, &before_);
    const rlimit none{0, before_.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
  }
  ~NothingOpens() { setrlimit(RLIMIT_NOFILE, &before_); }
  NothingOpens(const NothingOpens&) = delete;
  NothingOpens& operator=(const NothingOpens&) = delete;

 private:
  rlimit before_{};
};

TEST_F(DrivesTest, WhatCannotBeLookedAtIsNotTakenForMissing) {
  temporary.Put("dos/Tarvik.ini", "settings");
  fs::create_symlink("loop.b50", temporary.path() / "dos/loop.b50");
  EXPECT_EQ(drives.ToHost("c:\\none.ini").failure().systemCode, ENOENT);
  EXPECT_EQ(drives.ToHost("c:\\loop.b50").failure().systemCode, ELOOP);
  {
    const NothingOpens poor;
    EXPECT_EQ(drives.ToHost("c:\\tarvik.ini").failure().systemCode, EMFILE);
    EXPECT_EQ(drives.ToHostNew("c:\\tarvik.ini").failure().systemCode, EMFILE);
  }
  EXPECT_EQ(New("c:\\tarvik.ini"), "dos/Tarvik.ini");
}

TEST_F(DrivesTest, AccentedNamesAreFoundInEitherCase) {
  temporary.Put("dos/\u00DCbung \u20AC.b50", "accents");
  EXPECT_EQ(Seen("c:\\\xFC"
                 "bung \x80.b50"),
            "accents");
}

TEST_F(DrivesTest, TheFileThatWasPickedIsTheFileThatIsOpened) {
  temporary.Put("dos/a.b50", "lower");
  const fs::path upper = temporary.Put("dos/A.b50", "upper");
  EXPECT_EQ(drives.FromHost(upper), "c:\\a.b50");
  EXPECT_EQ(Seen("c:\\a.b50"), "upper");
  EXPECT_EQ(New("c:\\a.b50"), "dos/A.b50");
  fs::remove(upper);
  EXPECT_EQ(Seen("c:\\a.b50"), "lower");
}

TEST_F(DrivesTest, ANewNameThatWasPickedNeverOverwritesAnother) {
  temporary.Put("dos/Fire.b50", "old");
  EXPECT_EQ(drives.FromHost(temporary.path() / "dos/FIRE.b50"), "c:\\fire.b50");
  EXPECT_EQ(New("c:\\fire.b50"), "dos/FIRE.b50");
}

TEST_F(DrivesTest, ANameOutsideTheCodePageCanBePicked) {
  const fs::path snow = temporary.Put("dos/\u2603.b50", "snow");
  const fs::path star = temporary.Put("dos/\u2605.b50", "star");
  EXPECT_EQ(Seen("c:\\?.b50"), "(none)");
  EXPECT_EQ(drives.FromHost(snow), "c:\\?.b50");
  EXPECT_EQ(Seen("c:\\?.b50"), "snow");
  EXPECT_EQ(drives.FromHost(star), "c:\\?.b50");
  EXPECT_EQ(Seen("C:\\?.B50"), "star");
}

TEST_F(DrivesTest, TheOnlyNameOutsideTheCodePageIsFoundWithoutBeingPicked) {
  temporary.Put("dos/\u2603.b50", "snow");
  temporary.Put("dos/xy.b50", "not this");
  EXPECT_EQ(Seen("c:\\?.b50"), "snow");
  EXPECT_EQ(Seen("c:\\??.b50"), "(none)");
}

TEST_F(DrivesTest, NamesThatNoDriveCanHoldAreReachedToo) {
  for (const char* name : {"say \"hi\".b50", "a\\b.b50", "what?.b50", "tab\t.b50", "bad\xFF.b50"}) {
    const fs::path host = temporary.Put(std::string("dos/") + name, name);
    const std::string path = drives.FromHost(host);
    EXPECT_EQ(Seen(path), name);
    const Drives nextStart({{'c', (temporary.path() / "dos").string()}});
    EXPECT_EQ(nextStart.ToHost(path).Take(), host);
    fs::remove(host);
  }
}

TEST_F(DrivesTest, ANewFileOutsideTheCodePageGetsThePickedName) {
  const std::string path = drives.FromHost(temporary.path() / "dos/\u2603.b50");
  EXPECT_EQ(New(path), "dos/\u2603.b50");
  EXPECT_EQ(New("c:\\x?.b50"), "(none)");
}

TEST_F(DrivesTest, AFileBesideAPickedOneIsFoundWhereSeveralFoldersHaveThatName) {
  temporary.Put("dos/\u2603/a.b50", "a");
  temporary.Put("dos/\u2603/a.m50", "macros");
  temporary.Put("dos/\u2605/a.m50", "others");
  EXPECT_EQ(Seen("c:\\?\\a.m50"), "(none)");
  EXPECT_EQ(drives.FromHost(temporary.path() / "dos/\u2603/a.b50"), "c:\\?\\a.b50");
  EXPECT_EQ(Seen("c:\\?\\a.m50"), "macros");
}

TEST_F(DrivesTest, ANewFileGetsTheLowerCaseName) {
  EXPECT_EQ(New("c:\\TM\\New \xC4.B50"), "dos/tm/new \u00E4.b50");
  EXPECT_EQ(New("c:\\none\\new.b50"), "(none)");
  EXPECT_EQ(New("c:\\tm\\"), "(none)");
  EXPECT_EQ(New("c:\\"), "(none)");
}

TEST_F(DrivesTest, WritingGoesToTheFileThatIsThere) {
  temporary.Put("dos/Fire.B50", "");
  EXPECT_EQ(New("c:\\fire.b50"), "dos/Fire.B50");
}

TEST_F(DrivesTest, NamesThatCannotBeFilesDoNotExist) {
  temporary.Put("dos/a.b50", "a");
  for (const char* name :
       {"", "\"c:\\a.b50\"", "c:\\*.b50", "c:\\?.b50", "c:\\<", "c:\\>", "c:\\a|b", "c:\\\x01"}) {
    EXPECT_FALSE(drives.ToHost(name)) << name;
    EXPECT_FALSE(drives.ToHostNew(name)) << name;
  }
  EXPECT_FALSE(drives.ToHost(std::string("c:\\a.b50\0", 9)));
  EXPECT_FALSE(drives.ToHost("c:\\" + std::string(5000, 'x')));
  EXPECT_FALSE(drives.ToHost("c:\\a.b50\\"));
  EXPECT_FALSE(drives.ToHost("q:\\a.b50"));
}

TEST_F(DrivesTest, RelativePathsFollowTheCurrentFolderOfTheirDrive) {
  temporary.Put("dos/tm/a.b50", "c");
  temporary.Put("cd/a.b50", "d");
  ASSERT_TRUE(drives.ChangeFolder("C:\\TM\\f22"));
  EXPECT_EQ(drives.CurrentFolder(), "c:\\tm\\f22");
  EXPECT_EQ(Seen("..\\a.b50"), "c");
  EXPECT_EQ(Seen("\\tm\\.\\a.b50"), "c");
  EXPECT_EQ(Seen("d:a.b50"), "d");
  ASSERT_TRUE(drives.ChangeDrive("d:\\whatever"));
  EXPECT_EQ(drives.CurrentFolder(), "d:\\");
  EXPECT_EQ(Seen("a.b50"), "d");
  EXPECT_EQ(Seen("c:..\\a.b50"), "c");
  EXPECT_EQ(Seen("c:..\\..\\..\\tm\\a.b50"), "c");
}

TEST_F(DrivesTest, ADriveOrFolderThatIsNotThereCannotBecomeCurrent) {
  Drives gone({{'e', (temporary.path() / "gone").string()}});
  EXPECT_EQ(gone.ChangeDrive("e:").failure().number, error::kPathNotFound);
  EXPECT_EQ(gone.ChangeDrive("q:").failure().number, error::kPathNotFound);
  EXPECT_EQ(drives.ChangeFolder("c:\\none").failure().number, error::kPathNotFound);
  EXPECT_EQ(drives.CurrentFolder(), "c:\\");
}

TEST_F(DrivesTest, ZIsTheRootOfTheHostWhateverIsSaid) {
  const Drives other({{'z', temporary.path().string()}});
  EXPECT_EQ(other.ToHost("z:\\").Take(), fs::path("/"));
  temporary.Put("outside.b50", "outside");
  EXPECT_EQ(Seen(Root() + "\\OUTSIDE.B50"), "outside");
}

TEST_F(DrivesTest, APickedPathIsShownUnderTheClosestDrive) {
  temporary.Make("dos-old");
  Drives nested({{'c', (temporary.path() / "dos").string()}, {'e', (temporary.path() / "dos/tm").string()}});
  EXPECT_EQ(nested.FromHost(temporary.path() / "dos/tm/F22/X.b50"), "e:\\f22\\x.b50");
  EXPECT_EQ(nested.FromHost(temporary.path() / "dos/X.b50"), "c:\\x.b50");
  EXPECT_EQ(nested.FromHost(temporary.path() / "dos/"), "c:\\");
  EXPECT_EQ(nested.FromHost(temporary.path() / "dos-old/x.b50"), Root() + "\\dos-old\\x.b50");
  EXPECT_EQ(nested.FromHost("/"), "z:\\");
  EXPECT_EQ(nested.FromHost("//usr//lib/../Bin/"), "z:\\usr\\bin");
  EXPECT_EQ(nested.FromHost(""), "");
}

TEST_F(DrivesTest, ADriveIsRecognisedThroughALinkToItsFolder) {
  fs::create_symlink(temporary.path() / "dos", temporary.path() / "link");
  const fs::path target = temporary.Put("dos/tm/f22/A.b50", "a");
  EXPECT_EQ(drives.FromHost(temporary.path() / "link/tm/f22/A.b50"), "c:\\tm\\f22\\a.b50");
  Drives linked({{'c', (temporary.path() / "link").string()}});
  EXPECT_EQ(linked.FromHost(target), "c:\\tm\\f22\\a.b50");
  EXPECT_EQ(Seen("c:\\tm\\f22\\a.b50"), "a");
}

TEST_F(DrivesTest, OutsideTheDrivesAPickedPathKeepsItsLinks) {
  temporary.Put("data/a.b50", "a");
  fs::create_symlink("data", temporary.path() / "mine");
  EXPECT_EQ(drives.FromHost(temporary.path() / "mine/a.b50"), Root() + "\\mine\\a.b50");
}

TEST_F(DrivesTest, ALinkThatLeadsNowhereIsNotFound) {
  fs::create_symlink("b.b50", temporary.path() / "dos/a.b50");
  fs::create_symlink("a.b50", temporary.path() / "dos/b.b50");
  fs::create_symlink("missing", temporary.path() / "dos/Dangling");
  EXPECT_FALSE(drives.ToHost("c:\\a.b50"));
  EXPECT_FALSE(drives.ToHost("c:\\A.b50\\x"));
  EXPECT_FALSE(drives.ToHost("c:\\dangling"));
  EXPECT_EQ(New("c:\\dangling"), "dos/Dangling");
}

}  // namespace
}  // namespace tarvik
