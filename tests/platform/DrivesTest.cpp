#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cerrno>
#include <map>
#include <string>
#include <vector>

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

  /// The drives of a program that starts now.
  Drives NextStart() const { return Drives({{'c', (temporary.path() / "dos").string()}}); }

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

TEST_F(DrivesTest, OfTwoNamesThatDifferInCaseTheLowerOneHasTheNameInWhateverCase) {
  temporary.Put("dos/a.b50", "lower");
  const fs::path upper = temporary.Put("dos/A.b50", "upper");
  for (const char* const path : {"c:\\a.b50", "c:\\A.b50", "c:\\A.B50"}) {
    EXPECT_EQ(Seen(path), "lower") << path;
    EXPECT_EQ(New(path), "dos/a.b50") << path;
  }
  EXPECT_EQ(Seen(drives.FromHost(upper)), "upper");
}

TEST_F(DrivesTest, ANameThatTwoCouldHaveIsNobodys) {
  temporary.Put("dos/Flight.b50", "one");
  temporary.Put("dos/FLIGHT.B50", "two");
  EXPECT_EQ(Seen("c:\\flight.b50"), "(none)");
  EXPECT_EQ(Seen("c:\\Flight.b50"), "(none)");
  EXPECT_EQ(New("c:\\Flight.b50"), "dos/flight.b50") << "a third one";
}

/// All of them are seen under paths of their own, also by the next start and by one that looks for one of
/// them alone.
TEST_F(DrivesTest, EachFileHasAPathOfItsOwn) {
  const std::vector<std::string> names = {"Flight.b50",
                                          "flight.b50",
                                          "FLIGHT.B50",
                                          "\u0442\u0435\u0441\u0442.b50",
                                          "\u0444\u0430\u0439\u043B.b50",
                                          "\u00E9.b50",
                                          "e\u0301.b50",
                                          "say \"hi\".b50",
                                          "say *hi*.b50",
                                          "a\\b.b50",
                                          "what?.b50",
                                          "tab\t.b50",
                                          "bad\xFF.b50",
                                          "bad\xFE.b50",
                                          "\u2603",
                                          "\u2605",
                                          ".\u2603",
                                          "\u2603.~1",
                                          "\u2603.\u2605.b50",
                                          "e\u0301"};
  std::map<std::string, std::string> paths;
  for (const std::string& name : names) temporary.Put("dos/" + name, name);
  for (const std::string& name : names) {
    const std::string path = drives.FromHost(temporary.path() / "dos" / name);
    EXPECT_TRUE(paths.emplace(path, name).second) << path << " has " << name << " too";
    EXPECT_EQ(path, LowerCase(path));
    EXPECT_EQ(path.ends_with(".b50"), LowerCase(name).ends_with(".b50")) << path;
  }
  for (const auto& [path, name] : paths) {
    const fs::path host = temporary.path() / "dos" / name;
    EXPECT_EQ(NextStart().ToHost(path).Take(), host) << path;
    EXPECT_EQ(NextStart().ToHostNew(path).Take(), host) << path;
    EXPECT_EQ(NextStart().FromHost(host), path);
  }
}

TEST_F(DrivesTest, AComposedAndADecomposedLetterAreTheSameUntilBothAreThere) {
  temporary.Put("dos/e\u0301.b50", "decomposed");
  EXPECT_EQ(Seen("c:\\\xE9.b50"), "decomposed");
  EXPECT_EQ(New("c:\\\xC9.b50"), "dos/e\u0301.b50");
  temporary.Put("dos/\u00E9.b50", "composed");
  EXPECT_EQ(Seen("c:\\\xE9.b50"), "composed");
  EXPECT_EQ(Seen(drives.FromHost(temporary.path() / "dos/e\u0301.b50")), "decomposed");
}

TEST_F(DrivesTest, AnAliasIsThatOfItsFileWhateverElseComesAndGoes) {
  const fs::path upper = temporary.Put("dos/Flight.b50", "upper");
  const fs::path lower = temporary.Put("dos/flight.b50", "lower");
  const std::string alias = NextStart().FromHost(upper);
  EXPECT_EQ(alias.substr(0, 5), "c:\\fl");
  EXPECT_EQ(alias.substr(9), "~1.b50");
  temporary.Put("dos/FLIGHT.b50", "another");
  EXPECT_EQ(NextStart().ToHost(alias).Take(), upper);
  fs::remove(lower);
  EXPECT_EQ(NextStart().ToHost(alias).Take(), upper);
  fs::remove(upper);
  EXPECT_FALSE(NextStart().ToHost(alias));
  EXPECT_EQ(NextStart().ToHostNew(alias)->filename().string(), alias.substr(3)) << "nobody's file";
}

TEST_F(DrivesTest, AnAliasThatIsARealNameIsAnotherOne) {
  const fs::path host = temporary.Put("dos/\u2603.b50", "snow");
  const std::string first = NextStart().FromHost(host);
  temporary.Put("dos/" + first.substr(3), "real");
  const std::string second = NextStart().FromHost(host);
  EXPECT_NE(second, first);
  EXPECT_THAT(second, testing::EndsWith("~2.b50"));
  EXPECT_EQ(Seen(first), "real");
  EXPECT_EQ(Seen(second), "snow");
  temporary.Put("dos/" + LowerCase(second.substr(3)), "real too");
  EXPECT_THAT(NextStart().FromHost(host), testing::EndsWith("~3.b50"));
}

TEST_F(DrivesTest, AFolderThatComesLaterIsTheOneThatWasMeant) {
  const fs::path stick = temporary.path() / "dos/STICK";
  const std::string path = drives.FromHost(stick / "a.b50");
  EXPECT_EQ(path, "c:\\stick\\a.b50");
  EXPECT_FALSE(fs::exists(stick));
  temporary.Put("dos/STICK/a.b50", "stick");
  EXPECT_EQ(Seen(path), "stick");
  temporary.Put("dos/STICK/a.m50", "macros");
  EXPECT_EQ(Seen("c:\\stick\\a.m50"), "macros");
}

TEST_F(DrivesTest, AFolderOnTheWayHasANameOfItsOwnToo) {
  for (const char* const folder : {"Maps", "maps", "\u0442\u0435\u0441\u0442", "say \"hi\""}) {
    const fs::path host = temporary.Put(std::string("dos/") + folder + "/A.b50", folder);
    temporary.Put(std::string("dos/") + folder + "/a.m50", std::string(folder) + " macros");
    const std::string path = drives.FromHost(host);
    EXPECT_EQ(Seen(path), folder);
    const Drives next = NextStart();
    EXPECT_EQ(next.ToHost(path).Take(), host);
    EXPECT_EQ(next.ToHost(path.substr(0, path.size() - 3) + "m50").Take(), host.parent_path() / "a.m50");
    EXPECT_EQ(next.ToHostNew(path.substr(0, path.rfind('\\')) + "\\New.b50").Take(),
              host.parent_path() / "new.b50");
  }
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

TEST_F(DrivesTest, WhereAFolderCannotBeLookedAtAPathLeadsToItsFileAllTheSame) {
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
  GTEST_SKIP() << "the sanitizers too need to open something";
#endif
#endif
  const fs::path upper = temporary.Put("dos/Flight.b50", "upper");
  const fs::path snow = temporary.Put("dos/\u2603/A.b50", "snow");
  std::string path;
  std::string snowy;
  {
    const NothingOpens poor;
    path = drives.FromHost(upper);
    snowy = drives.FromHost(snow);
    EXPECT_EQ(drives.ToHost(path).Take(), upper);
    EXPECT_EQ(drives.ToHostNew(snowy).Take(), snow);
  }
  temporary.Put("dos/flight.b50", "lower");
  EXPECT_EQ(Seen(path), "upper");
  EXPECT_EQ(Seen(snowy), "snow");
}

TEST_F(DrivesTest, AccentedNamesAreFoundInEitherCase) {
  temporary.Put("dos/\u00DCbung \u20AC.b50", "accents");
  EXPECT_EQ(Seen("c:\\\xFC"
                 "bung \x80.b50"),
            "accents");
}

TEST_F(DrivesTest, APathThatIsHeldMeansNoOtherFileWhateverComesAndGoes) {
  const fs::path upper = temporary.Put("dos/A.b50", "upper");
  EXPECT_EQ(drives.FromHost(upper), "c:\\a.b50");
  const fs::path lower = temporary.Put("dos/a.b50", "lower");
  EXPECT_EQ(Seen("c:\\a.b50"), "upper");
  EXPECT_EQ(New("c:\\a.b50"), "dos/A.b50");
  const std::string other = drives.FromHost(lower);
  EXPECT_EQ(Seen(other), "lower");
  EXPECT_EQ(Seen("c:\\a.b50"), "upper");
  fs::remove(upper);
  EXPECT_EQ(Seen("c:\\a.b50"), "(none)");
  EXPECT_EQ(New("c:\\a.b50"), "dos/A.b50");
  EXPECT_EQ(NextStart().ToHost("c:\\a.b50").Take(), lower);
}

TEST_F(DrivesTest, APathWhoseFileIsGoneCanBeHeldToAnotherOne) {
  const fs::path upper = temporary.Put("dos/A.b50", "upper");
  EXPECT_EQ(drives.FromHost(upper), "c:\\a.b50");
  fs::rename(upper, temporary.path() / "dos/a.b50");
  EXPECT_EQ(drives.FromHost(temporary.path() / "dos/a.b50"), "c:\\a.b50");
  EXPECT_EQ(Seen("c:\\a.b50"), "upper");
}

TEST_F(DrivesTest, ANewNameThatWasPickedNeverOverwritesAnother) {
  temporary.Put("dos/Fire.b50", "old");
  EXPECT_EQ(drives.FromHost(temporary.path() / "dos/FIRE.b50"), "c:\\fire.b50");
  EXPECT_EQ(New("c:\\fire.b50"), "dos/fire.b50");
  temporary.Put("dos/fire.b50", "older");
  const std::string third = drives.FromHost(temporary.path() / "dos/FIRE.b50");
  EXPECT_EQ(New(third), "dos/FIRE.b50");
  EXPECT_EQ(Seen(third), "(none)");
}

TEST_F(DrivesTest, ANewFileOutsideTheCodePageGetsThePickedName) {
  const std::string path = drives.FromHost(temporary.path() / "dos/\u2603.b50");
  EXPECT_EQ(New(path), "dos/\u2603.b50");
  const fs::path host = temporary.Put("dos/\u2603.b50", "snow");
  EXPECT_EQ(NextStart().ToHost(path).Take(), host);
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
  temporary.Make("dos/tm/Maps");
  Drives nested({{'c', (temporary.path() / "dos").string()}, {'e', (temporary.path() / "dos/tm").string()}});
  EXPECT_EQ(nested.FromHost(temporary.path() / "dos/tm/Maps/X.b50"), "e:\\maps\\x.b50");
  EXPECT_EQ(nested.FromHost(temporary.path() / "dos/X.b50"), "c:\\x.b50");
  EXPECT_EQ(nested.FromHost(temporary.path() / "dos/"), "c:\\");
  EXPECT_EQ(nested.FromHost(temporary.path() / "dos-old/x.b50"), Root() + "\\dos-old\\x.b50");
  EXPECT_EQ(nested.FromHost("/"), "z:\\");
  EXPECT_EQ(nested.FromHost("//usr//lib/../bin/"), "z:\\usr\\bin");
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
