#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

#include "platform/ProfileFile.h"
#include "support/MemoryFiles.h"

namespace tarvik {
namespace {

constexpr const char* kPath = "c:\\tarvik\\tarvik.ini";

class ProfileFileTest : public testing::Test {
 protected:
  ProfileFileTest() { files.PutFolder("c:\\tarvik"); }

  std::string Content() const { return files.Content(kPath).value_or("(no file)"); }

  MemoryFiles files;
  ProfileFile file{files, kPath};
};

std::string Get(const std::string& text, std::size_t size = 100) {
  return Profile(text).GetString("Apps", "TextFilePath", "fallback", size);
}

int Number(const std::string& value) {
  return Profile("[Miscellaneous]\r\nUndoMax=" + value + "\r\n").GetInt("Miscellaneous", "UndoMax", 50);
}

std::string Changed(const std::string& text) {
  Profile profile(text);
  profile.Set("Apps", "TextFilePath", "new");
  return profile.text();
}

TEST_F(ProfileFileTest, AMissingFileGivesTheFallbacks) {
  EXPECT_EQ(file.GetString("Apps", "TextFilePath", "none", 100), "none");
  EXPECT_EQ(file.GetInt("Miscellaneous", "UndoMax", 50), 50);
}

TEST(Profile, NamesAreFoundInEitherCase) {
  EXPECT_EQ(Get("[APPS]\r\ntextfilepath=a.txt\r\n"), "a.txt");
  EXPECT_EQ(Profile("[\xC4pfel]\r\n\xD6l=1\r\n").GetString("\xE4PFEL", "\xF6L", "", 10), "1");
}

TEST(Profile, BlanksRoundNamesAndValuesAreDropped) {
  EXPECT_EQ(Get(" [ Apps ] \r\n\t TextFilePath \t=  c:\\my files\\a.txt \t\r\n"), "c:\\my files\\a.txt");
}

TEST(Profile, OnePairOfQuotationMarksIsDropped) {
  EXPECT_EQ(Get("[Apps]\nTextFilePath=\"a b\"\n"), "a b");
  EXPECT_EQ(Get("[Apps]\nTextFilePath=' a '\n"), " a ");
  EXPECT_EQ(Get("[Apps]\nTextFilePath=\"\"a\"\"\n"), "\"a\"");
  EXPECT_EQ(Get("[Apps]\nTextFilePath=\"a'\n"), "\"a'");
  EXPECT_EQ(Get("[Apps]\nTextFilePath=\"\n"), "\"");
}

TEST(Profile, AnEmptyValueIsNotAMissingOne) { EXPECT_EQ(Get("[Apps]\r\nTextFilePath=\r\n"), ""); }

TEST(Profile, AValueMayHoldEqualsSignsAndSemicolons) {
  EXPECT_EQ(Get("[Apps]\r\nTextFilePath=a=b ; c\r\n"), "a=b ; c");
}

TEST(Profile, APathOf120CharactersIsCutAt99) {
  EXPECT_EQ(Get("[Apps]\r\nTextFilePath=" + std::string(120, 'x') + "\r\n"), std::string(99, 'x'));
}

TEST(Profile, QuotationMarksDoNotCountForTheCut) {
  EXPECT_EQ(Get("[Apps]\r\nTextFilePath=\"" + std::string(99, 'x') + "\"\r\n"), std::string(99, 'x'));
}

TEST(Profile, TheFallbackIsCutToo) {
  EXPECT_EQ(Get("", 5), "fall");
  EXPECT_EQ(Get("", 1), "");
  EXPECT_EQ(Get("", 0), "");
}

TEST(Profile, TheFirstSectionAndTheFirstKeyCount) {
  EXPECT_EQ(Get("[Apps]\nTextFilePath=1\nTextFilePath=2\n[Apps]\nTextFilePath=3\n"), "1");
  EXPECT_EQ(Get("[Apps]\nOther=1\n[Apps]\nTextFilePath=3\n"), "fallback");
}

TEST(Profile, AKeyOfAnotherSectionIsNotFound) {
  EXPECT_EQ(Get("TextFilePath=0\n[Games]\nTextFilePath=1\n[Apps]\n[Colours]\nTextFilePath=2\n"), "fallback");
}

TEST(Profile, ACommentIsNoKey) {
  EXPECT_EQ(Get("[Apps]\n;TextFilePath=1\n ; TextFilePath=2\n"), "fallback");
  EXPECT_EQ(Get(";[Apps]\nTextFilePath=1\n"), "fallback");
}

TEST(Profile, ABracketThatNobodyClosedEndsWithItsLine) {
  EXPECT_EQ(Get("[Apps\r\nTextFilePath=1\r\n"), "1");
  EXPECT_EQ(Get("[Games]\r\n[\r\nTextFilePath=1\r\n"), "fallback");
}

TEST(Profile, AByteOrderMarkHidesNoSection) { EXPECT_EQ(Get("\xEF\xBB\xBF[Apps]\nTextFilePath=1\n"), "1"); }

TEST(Profile, TheLastLineNeedsNoEnd) { EXPECT_EQ(Get("[Apps]\nTextFilePath=1"), "1"); }

TEST(Profile, ANumberEndsAtTheFirstCharacterThatIsNoDigit) {
  EXPECT_EQ(Number("42"), 42);
  EXPECT_EQ(Number("-7"), -7);
  EXPECT_EQ(Number("+7"), 7);
  EXPECT_EQ(Number(" 12abc"), 12);
  EXPECT_EQ(Number("\"12\""), 12);
  EXPECT_EQ(Number("0x10"), 0);
}

TEST(Profile, AMalformedNumberIsZero) {
  EXPECT_EQ(Number("many"), 0);
  EXPECT_EQ(Number("--1"), 0);
  EXPECT_EQ(Number("-"), 0);
  EXPECT_EQ(Number(""), 0);
}

TEST(Profile, ANumberBeyond32BitsKeepsItsLowestBits) {
  EXPECT_EQ(Number("2147483648"), -2147483647 - 1);
  EXPECT_EQ(Number("4294967295"), -1);
  EXPECT_EQ(Number("4294967301"), 5);
  EXPECT_EQ(Number("-4294967301"), -5);
  EXPECT_EQ(Number(std::string(1000, '9')), Number(std::string(1000, '9') + "x"));
}

TEST_F(ProfileFileTest, AWriteCreatesFileSectionAndKey) {
  EXPECT_TRUE(file.Write("Apps", "TextFilePath", "a.txt"));
  EXPECT_TRUE(file.Write("Games", "GameArrayNum", "0"));
  EXPECT_TRUE(file.Write("Apps", "CustomAppName1", "x"));
  EXPECT_EQ(Content(), "[Apps]\r\nTextFilePath=a.txt\r\nCustomAppName1=x\r\n[Games]\r\nGameArrayNum=0\r\n");
}

TEST(Profile, AllOtherBytesStay) {
  const std::string before = "; mine\r\n\r\nstray\r\n[Apps]\r\n ; note = 1\r\nImageFilePath = \"x\" \r\n";
  const std::string after = "\r\n\r\n[Games] ; odd\r\nGamePath=\xE4\r\n;end";
  EXPECT_EQ(Changed(before + "TextFilePath=old one" + after), before + "TextFilePath=new" + after);
}

TEST(Profile, LineEndsOfEitherKindStay) {
  EXPECT_EQ(Changed("[Apps]\nTextFilePath=old\nB=1\n"), "[Apps]\nTextFilePath=new\nB=1\n");
  EXPECT_EQ(Changed("[Apps]\r\nTextFilePath=old\r\nB=1\r\n"), "[Apps]\r\nTextFilePath=new\r\nB=1\r\n");
  EXPECT_EQ(Changed("[Apps]\nB=1\n[Games]\n"), "[Apps]\nB=1\nTextFilePath=new\r\n[Games]\n");
  EXPECT_EQ(Changed("[Apps]\rTextFilePath=old\rB=1\r"), "[Apps]\rTextFilePath=new\rB=1\r");
}

TEST(Profile, BlankLinesAtTheEndOfASectionStayBehindANewKey) {
  EXPECT_EQ(Changed("[Apps]\r\nB=1\r\n\r\n \r\n[Games]\r\n"),
            "[Apps]\r\nB=1\r\nTextFilePath=new\r\n\r\n \r\n[Games]\r\n");
  EXPECT_EQ(Changed("[Apps]\r\n\r\n"), "[Apps]\r\nTextFilePath=new\r\n\r\n");
}

TEST(Profile, ALastLineWithoutEndGetsOneBeforeANewKey) {
  EXPECT_EQ(Changed("[Apps]\r\nB=1"), "[Apps]\r\nB=1\r\nTextFilePath=new\r\n");
  EXPECT_EQ(Changed("[Games]"), "[Games]\r\n[Apps]\r\nTextFilePath=new\r\n");
}

TEST(Profile, AnEmptyValueCanBeFilled) {
  EXPECT_EQ(Changed("[Apps]\r\nTextFilePath=\r\nB=1"), "[Apps]\r\nTextFilePath=new\r\nB=1");
  EXPECT_EQ(Changed("[Apps]\r\nTextFilePath = "), "[Apps]\r\nTextFilePath = new");
}

TEST(Profile, OnlyTheFirstOfTwoKeysChanges) {
  EXPECT_EQ(Changed("[Apps]\nTextFilePath=1\nTextFilePath=2\n"),
            "[Apps]\nTextFilePath=new\nTextFilePath=2\n");
}

TEST(Profile, AValueCannotBringLinesIntoTheFile) {
  Profile profile;
  profile.Set("Games", "GameName1", "F22\r\n[Apps]\r\nTextFilePath=evil");
  EXPECT_EQ(profile.text(), "[Games]\r\nGameName1=F22\r\n");
}

TEST_F(ProfileFileTest, WhatAUserEditedMeanwhileStays) {
  EXPECT_TRUE(file.Write("Miscellaneous", "UndoMax", "50"));
  files.Put(kPath, Content() + "; edited\r\nMine=1\r\n");
  EXPECT_TRUE(file.Write("Miscellaneous", "UndoMax", "60"));
  EXPECT_EQ(Content(), "[Miscellaneous]\r\nUndoMax=60\r\n; edited\r\nMine=1\r\n");
}

class CountingFiles : public MemoryFiles {
 public:
  Outcome<> Write(std::string_view path, std::string_view content) override {
    ++writes;
    return MemoryFiles::Write(path, content);
  }
  int writes = 0;
};

TEST(ProfileFile, FortyKeysCostOneWriteOfEachFile) {
  CountingFiles files;
  ProfileFile file(files, "c:\\tarvik.ini");
  std::vector<ProfileEntry> entries;
  for (int i = 0; i < 40; ++i)
    entries.push_back({"Games", "GameName" + std::to_string(i), std::to_string(i)});
  EXPECT_TRUE(file.WriteAll(entries));
  EXPECT_EQ(files.writes, 2) << "the file and its backup";
  const Profile profile = file.Read();
  for (int i = 0; i < 40; ++i) EXPECT_EQ(profile.GetInt("Games", "GameName" + std::to_string(i), -1), i);
}

TEST_F(ProfileFileTest, AWriteThatCannotBeDoneIsAFailureAndTheOldTextStays) {
  const std::string old = "[Apps]\r\nTextFilePath=1\r\n";
  files.Put(kPath, old);
  files.SetReadOnly(kPath);
  EXPECT_EQ(file.Write("Apps", "TextFilePath", "2").failure().number, error::kPathAccess);
  files.SetReadOnly(kPath, false);
  files.FailAfter(5);
  EXPECT_EQ(file.Write("Apps", "TextFilePath", "2").failure().number, error::kDiskFull);
  EXPECT_EQ(Content(), old);
}

class UnreadableFiles : public MemoryFiles {
 public:
  Outcome<std::string> Read(std::string_view) const override { return Failure{error::kPathAccess, "no", 13}; }
};

TEST(ProfileFile, AFileThatCannotBeReadIsNotOverwritten) {
  UnreadableFiles files;
  files.Put("c:\\tarvik.ini", "[Apps]\r\nTextFilePath=1\r\n");
  ProfileFile file(files, "c:\\tarvik.ini");
  EXPECT_EQ(file.Write("Apps", "TextFilePath", "2").failure().number, error::kPathAccess);
  EXPECT_EQ(files.Content("c:\\tarvik.ini"), "[Apps]\r\nTextFilePath=1\r\n");
}

TEST_F(ProfileFileTest, FallbacksForAFileThatCouldNotBeReadDoNotTakeItsPlaceWhenItCanAgain) {
  const std::string text = "[Apps]\r\nTextFilePath=1\r\n";
  files.Put(kPath, text);
  files.SetUnreadable(kPath);
  EXPECT_EQ(file.GetString("Apps", "TextFilePath", "fallback", 100), "fallback");
  files.Remove(kPath);
  files.Put(kPath, text);
  EXPECT_EQ(file.Write("Apps", "TextFilePath", "fallback").failure().number, error::kPathAccess);
  EXPECT_EQ(Content(), text);
}

/// Nobody can look at the settings file at the first call, and everybody at the next ones.
class FilesThatFailOnce : public MemoryFiles {
 public:
  [[nodiscard]] bool FileExists(std::string_view path) const override {
    return !Fails() && MemoryFiles::FileExists(path);
  }
  [[nodiscard]] Outcome<std::string> Read(std::string_view path) const override {
    if (Fails()) return Failure{error::kPathAccess, "Input/output error", EIO};
    return MemoryFiles::Read(path);
  }
  int callsUntilFailure = 0;

 private:
  [[nodiscard]] bool Fails() const { return passed_++ == callsUntilFailure; }

  mutable int passed_ = 0;
};

TEST(ProfileFile, OnePassingErrorWipesNoSettings) {
  for (int call = 0; call < 6; ++call) {
    FilesThatFailOnce files;
    files.callsUntilFailure = call;
    files.Put(kPath, "[Apps]\r\nTextFilePath=1\r\n[Miscellaneous]\r\nUndoMax=7\r\n");
    ProfileFile file(files, kPath);
    static_cast<void>(file.Write("Miscellaneous", "UndoMax", "8"));
    static_cast<void>(file.Write("Miscellaneous", "UndoMax", "9"));
    EXPECT_EQ(Profile(*files.Content(kPath)).GetInt("Apps", "TextFilePath", 0), 1) << "call " << call;
  }
}

constexpr const char* kBackup = "c:\\tarvik\\tarvik.bak";
constexpr const char* kAside = "c:\\tarvik\\tarvik.damaged";

TEST_F(ProfileFileTest, TheBackupHoldsTheSame) {
  ASSERT_TRUE(file.Write("Miscellaneous", "UndoMax", "7"));
  ASSERT_TRUE(file.Write("Miscellaneous", "UndoMax", "8"));
  EXPECT_EQ(files.Content(kBackup), Content());
}

TEST_F(ProfileFileTest, ABackupThatCannotBeWrittenIsNoFailure) {
  files.Put(kBackup, "[Apps]\r\n");
  files.SetReadOnly(kBackup);
  EXPECT_TRUE(file.Write("Miscellaneous", "UndoMax", "7"));
}

/// What a damaged file holds.
class DamagedProfile : public ProfileFileTest, public testing::WithParamInterface<std::string> {
 protected:
  DamagedProfile() {
    file.fileDamaged = [this] { ++told; };
    file.fileUnreadable = [this](const Failure&) { ++unreadable; };
    files.Put(kPath, GetParam());
  }
  int told = 0;
  int unreadable = 0;
};

TEST_P(DamagedProfile, IsReplacedByTheBackupAndPutAside) {
  files.Put(kBackup, "[Miscellaneous]\r\nUndoMax=7\r\nMine=1\r\n");
  EXPECT_EQ(file.GetInt("Miscellaneous", "UndoMax", 50), 7);
  EXPECT_EQ(file.GetInt("Miscellaneous", "UndoMax", 50), 7);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(Content(), GetParam()) << "reading changes nothing";
  ASSERT_TRUE(file.Write("Miscellaneous", "UndoMax", "8"));
  EXPECT_EQ(Content(), "[Miscellaneous]\r\nUndoMax=8\r\nMine=1\r\n");
  EXPECT_EQ(files.Content(kAside).value_or(""), GetParam());
}

TEST_P(DamagedProfile, IsNotWrittenOverWhereItCannotBePutAside) {
  if (GetParam().empty()) return;
  files.Put(kBackup, "[Miscellaneous]\r\nUndoMax=7\r\n");
  files.Put(kAside, "");
  files.SetReadOnly(kAside);
  EXPECT_FALSE(file.Write("Miscellaneous", "UndoMax", "8"));
  EXPECT_EQ(Content(), GetParam());
}

TEST_P(DamagedProfile, KeepsItsBytesWithoutABackup) {
  static_cast<void>(file.Write("Miscellaneous", "Other", "8"));
  EXPECT_TRUE(Content().starts_with(GetParam()));
  EXPECT_EQ(told, 0);
}

INSTANTIATE_TEST_SUITE_P(All, DamagedProfile,
                         testing::Values("", "\r\n", "UndoMax=3\r\n", std::string(1094, '\0'),
                                         std::string("[Miscellaneous]\r\nUndoMax=\0\r\n", 28),
                                         "[Miscellaneous]\r\n" + std::string(1 << 20, 'x')));

TEST_F(ProfileFileTest, OfTwoDamagedFilesTheFirstCounts) {
  files.Put(kPath, "UndoMax=3\r\n");
  files.Put(kBackup, "");
  ASSERT_TRUE(file.Write("Miscellaneous", "UndoMax", "8"));
  EXPECT_EQ(Content(), "UndoMax=3\r\n[Miscellaneous]\r\nUndoMax=8\r\n");
}

TEST_F(ProfileFileTest, AFileThatTheUserTookAwayIsNotBroughtBack) {
  files.Put(kBackup, "[Miscellaneous]\r\nUndoMax=7\r\n");
  EXPECT_EQ(file.GetInt("Miscellaneous", "UndoMax", 50), 50);
}

TEST_F(ProfileFileTest, TheBackupIsReadWhereTheFileCannotBe) {
  files.Put(kPath, "[Miscellaneous]\r\nUndoMax=9\r\n");
  files.Put(kBackup, "[Miscellaneous]\r\nUndoMax=7\r\n");
  files.SetUnreadable(kPath);
  EXPECT_EQ(file.GetInt("Miscellaneous", "UndoMax", 50), 7);
  EXPECT_FALSE(file.Write("Miscellaneous", "UndoMax", "8"));
  EXPECT_EQ(Content(), "[Miscellaneous]\r\nUndoMax=9\r\n");
}

TEST_F(ProfileFileTest, AFileThatIsTooLongIsToldAndLeftAlone) {
  const std::string text = "[Miscellaneous]\r\nUndoMax=7\r\n" + std::string(50 << 20, '\n');
  files.Put(kPath, text);
  Failure told;
  file.fileUnreadable = [&told](const Failure& failure) { told = failure; };
  EXPECT_EQ(file.GetInt("Miscellaneous", "UndoMax", 50), 50);
  EXPECT_EQ(told.text, "The file is too long");
  EXPECT_FALSE(file.Write("Miscellaneous", "UndoMax", "8"));
  EXPECT_TRUE(Content() == text);
}

TEST_F(ProfileFileTest, AFileThatWasMissingWhenItWasReadIsCreated) {
  EXPECT_EQ(file.GetInt("Miscellaneous", "UndoMax", 50), 50);
  ASSERT_TRUE(file.Write("Miscellaneous", "UndoMax", "50"));
  EXPECT_EQ(file.GetInt("Miscellaneous", "UndoMax", 0), 50);
}

class GarbageProfile : public testing::TestWithParam<std::string> {};

TEST_P(GarbageProfile, IsKeptAndTakesANewKey) {
  EXPECT_EQ(Get(GetParam()), "fallback");
  const std::string changed = Changed(GetParam());
  EXPECT_TRUE(changed.starts_with(GetParam()));
  EXPECT_EQ(Get(changed), "new");
}

INSTANTIATE_TEST_SUITE_P(All, GarbageProfile,
                         testing::Values("", "\r", "\n\r\n\r", "[", "]", "[]", "=", "===\r\n=", ";", "[Apps",
                                         "\xEF\xBB\xBF", "\xEF\xBB", "\xFF\xFE[\0A\0p\0p\0s\0",
                                         std::string("\0[Apps]\0\r\nA\0=\0", 15), std::string(100000, '['),
                                         std::string(100000, 'x') + "=" + std::string(100000, 'y'),
                                         std::string(100000, '\n') + "x", "]Apps[\r\nTextFilePath=1",
                                         "[Games]\r\nTextFilePath=1\r\n"));

}  // namespace
}  // namespace tarvik
