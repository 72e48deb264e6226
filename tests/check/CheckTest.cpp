// tarvik-check as a user calls it: the words of a command line, and what comes of them. What it tells of the
// pairs in tests/pairs/ stands in tests/check/pairs.txt, which TARVIK_PROMOTE=1 in the environment writes
// anew.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "check/Arguments.h"
#include "language/Rules.h"
#include "pairs/PairFiles.h"
#include "support/TemporaryFolder.h"

namespace tarvik::check {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

struct Result {
  Status status;
  std::string out;
  std::string error;
};

Result Called(const std::vector<std::string>& words) {
  std::vector<const char*> all = {"tarvik-check"};
  for (const std::string& word : words) all.push_back(word.c_str());
  std::ostringstream out;
  std::ostringstream error;
  const Status status = Run(static_cast<int>(all.size()), all.data(), {out, error});
  return {status, out.str(), error.str()};
}

class Check : public testing::Test {
 protected:
  /// The path of a file with that text.
  std::string Put(const std::string& name, const std::string& text) { return folder_.Put(name, text); }
  [[nodiscard]] std::string Folder() const { return folder_.path(); }

  /// What was written, with nothing but the names of the files for their paths.
  [[nodiscard]] std::string WithoutFolder(std::string text) const {
    const std::string folder = Folder() + "/";
    for (std::size_t at = 0; (at = text.find(folder)) != std::string::npos;) text.erase(at, folder.size());
    return text;
  }

 private:
  TemporaryFolder folder_;
};

TEST_F(Check, AFileThatIsFineSaysNothing) {
  Put("gun.m50", "Gun = SPC\r\n");
  const Result outcome = Called({Put("gun.b50", "MDEF gun\r\nBTN S1 Gun\r\n")});
  EXPECT_EQ(outcome.status, kFine);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.error, "");
}

TEST_F(Check, AnErrorIsALineAndAStatus) {
  Put("gun.m50", "Gun = SPC\r\n");
  const Result outcome = Called({Put("gun.b50", "MDEF gun\r\nBTN S1 Gun Gnu\r\n")});
  EXPECT_EQ(outcome.status, kErrors);
  EXPECT_EQ(WithoutFolder(outcome.out),
            "gun.b50:2:12: error: No macro is called \"Gnu\". Did you mean \"Gun\"? [undefined-macro]\n");
}

TEST_F(Check, WarningsAndHintsAreNoErrors) {
  const Result outcome = Called({Put("a.b50", "BTN S1 a\r\nBTN S1 /I b\r\n")});
  EXPECT_EQ(outcome.status, kFine);
  EXPECT_EQ(WithoutFolder(outcome.out),
            "a.b50:2:5: warning: \"S1\" has a statement further up already. [control-assigned-twice]\n"
            "a.b50:2:8: hint: /O is missing beside /I. [branch-missing]\n");
}

TEST_F(Check, QuietSaysItByItsStatusAlone) {
  const Result outcome = Called({"--quiet", Put("a.b50", "FIRE\r\n")});
  EXPECT_EQ(outcome.status, kErrors);
  EXPECT_EQ(outcome.out + outcome.error, "");
  EXPECT_EQ(Called({"--quiet", "--json", Put("b.b50", "FIRE\r\n")}).out, "");
}

TEST_F(Check, AFileThatCannotBeReadGoesBeforeErrorsAndTheOthersAreChecked) {
  const Result outcome = Called({Put("a.b50", "FIRE\r\n"), Folder() + "/none.b50"});
  EXPECT_EQ(outcome.status, kUnreadable);
  EXPECT_THAT(outcome.out, HasSubstr("[unknown-statement]"));
  EXPECT_EQ(WithoutFolder(outcome.error), "tarvik-check: none.b50: No such file or directory\n");
}

TEST_F(Check, AFileOfAnotherKindCannotBeRead) {
  EXPECT_EQ(Called({Put("notes.txt", "")}).status, kUnreadable);
  EXPECT_EQ(Called({Folder() + "/none.txt"}).status, kUnreadable);
  fs::create_directory(Folder() + "/folder.m50");
  Put("a.b50", "MDEF folder\r\nBTN S1 a\r\n");
  EXPECT_EQ(Called({Folder() + "/a.b50"}).status, kUnreadable);
}

TEST_F(Check, ACommandLineThatIsNotUnderstoodIsTold) {
  for (const auto& words : std::vector<std::vector<std::string>>{{}, {"--fast", "a.b50"}, {"--json"}}) {
    const Result outcome = Called(words);
    EXPECT_EQ(outcome.status, kUnreadable);
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.error, "");
  }
  EXPECT_THAT(Called({"--fast"}).error, HasSubstr("--fast"));
}

TEST_F(Check, AFileWithNamesAndWithoutAnyMacroFileWantsAnMdef) {
  EXPECT_THAT(Called({Put("a.b50", "BTN S1 Gun\r\n")}).out, HasSubstr("[no-mdef]"));
}

TEST_F(Check, PlaysATrace) {
  const std::string file = Put("a.b50", "BTN S1 a\r\n");
  const Result outcome = Called({"--play", file, Put("run.trace", "S1 down\n50ms\nS1 up\n")});
  EXPECT_EQ(outcome.status, kFine);
  EXPECT_EQ(outcome.out, "0.000 S1 a down a.b50:1\n0.050 S1 a up a.b50:1\n");
}

TEST_F(Check, ATraceThatComesOtherwiseIsAnError) {
  const std::string file = Put("a.b50", "BTN S1 a\r\n");
  const std::string fine = "S1 down\n> 0.000 S1 a down a.b50:1\n50ms\nS1 up\n> 0.050 S1 a up a.b50:1\n";
  EXPECT_EQ(Called({"--play", file, Put("fine.trace", fine)}).status, kFine);
  const std::string wrong = "S1 down\n> 0.000 S1 b down a.b50:1\n";
  const Result outcome = Called({"--play", file, Put("wrong.trace", wrong)});
  EXPECT_EQ(outcome.status, kErrors);
  EXPECT_EQ(WithoutFolder(outcome.out),
            "wrong.trace:2: expected 0.000 S1 b down a.b50:1, came 0.000 S1 a down a.b50:1\n");
  EXPECT_EQ(Called({"--play", file, Put("short.trace", "S1 down\n> 0.000 S1 a down a.b50:1\n")}).status,
            kErrors);
}

TEST_F(Check, ATraceThatCannotBeReadTellsItsLine) {
  const std::string file = Put("a.b50", "BTN S1 a\r\n");
  const Result outcome = Called({"--play", file, Put("run.trace", "S1 down\nS1 sideways\n")});
  EXPECT_EQ(outcome.status, kUnreadable);
  EXPECT_THAT(outcome.error, HasSubstr("run.trace:2: "));
  EXPECT_EQ(Called({"--play", file}).status, kUnreadable);
  EXPECT_EQ(Called({"--play", file, Folder() + "/none.trace"}).status, kUnreadable);
}

TEST_F(Check, HelpAndVersionAreWritten) {
  const Result help = Called({"--help"});
  EXPECT_EQ(help.status, kFine);
  for (const char* option : {"--json", "--quiet", "--version", "FILE"})
    EXPECT_THAT(help.out, HasSubstr(option));
  for (const Job& job : Jobs()) EXPECT_THAT(help.out, HasSubstr(job.option));
  EXPECT_THAT(Called({"--version"}).out, StartsWith("tarvik-check "));
  EXPECT_EQ(Called({"--version"}).status, kFine);
}

TEST_F(Check, TheFirstJobIsDoneWhereNoneIsAskedFor) {
  std::ostringstream out;
  const auto jobOf = [&](std::vector<const char*> words) {
    return std::get<Arguments>(ReadArguments(static_cast<int>(words.size()), words.data(), {out, out})).job;
  };
  EXPECT_EQ(jobOf({"tarvik-check", "a.b50"}), &Jobs()[0]);
  for (const Job& job : Jobs()) EXPECT_EQ(jobOf({"tarvik-check", job.option, "a.b50"}), &job);
}

TEST_F(Check, WhatStandsBehindTwoHyphensIsAFile) {
  EXPECT_THAT(Called({"--", "--json"}).error, HasSubstr("--json: No such file"));
}

TEST_F(Check, TheMacroFileIsTheOneThatMdefNamesInAnyCase) {
  Put("STRIKE.M50", "Gun = SPC\r\n");
  Put("other.m50", "Flare = f\r\n");
  EXPECT_EQ(Called({Put("other.b50", "MDEF strike\r\nBTN S1 Gun\r\n")}).out, "");
  EXPECT_EQ(pairs::MacroFileOf(Folder() + "/other.b50", "MDEF Strike.m50").filename(), "STRIKE.M50");
  EXPECT_EQ(pairs::MacroFileOf(Folder() + "/other.b50", "").filename(), "other.m50");
  EXPECT_EQ(pairs::MacroFileOf(Folder() + "/other.b50", "MDEF a\nMDEF strike\n").filename(), "STRIKE.M50");
  EXPECT_EQ(pairs::MacroFileOf(Folder() + "/other.adv", "MDEF strike"), fs::path());
}

TEST_F(Check, OfNamesThatDifferInCaseTheFirstIsTaken) {
  for (const char* name : {"b.m50", "a.M50", "A.m50", "A.M50", "a.m50"}) Put(name, "");
  EXPECT_EQ(pairs::MacroFileOf(Folder() + "/c.b50", "MDEF a").filename(), "A.M50");
  fs::remove(Folder() + "/A.M50");
  EXPECT_EQ(pairs::MacroFileOf(Folder() + "/c.b50", "MDEF a").filename(), "A.m50");
}

TEST_F(Check, NoMacroFileIsFoundOutsideTheFolder) {
  Put("gun.m50", "Gun = SPC\r\n");
  Put("deep/a.b50", "MDEF ../gun\r\nBTN S1 Gun\r\n");
  EXPECT_EQ(pairs::MacroFileOf(Folder() + "/deep/a.b50", "MDEF ../gun\r\n"), fs::path());
  EXPECT_THAT(Called({Folder() + "/deep/a.b50"}).out, HasSubstr("[macro-file-missing]"));
}

TEST_F(Check, AFolderStandsForAllPairsInIt) {
  Put("a.b50", "FIRE\r\n");
  Put("more/B.ADV", "FIRE\r\n");
  Put("more/alone.m22", "Gun\r\n");
  Put("more/notes.txt", "FIRE\r\n");
  const Result outcome = Called({Folder()});
  EXPECT_EQ(outcome.status, kErrors);
  EXPECT_EQ(WithoutFolder(outcome.out),
            "a.b50:1:1: error: No statement begins with \"FIRE\". [unknown-statement]\n"
            "more/B.ADV:1:1: error: No statement begins with \"FIRE\". [unknown-statement]\n"
            "more/alone.m22:1:1: error: This line is no remark, and has no \"=\" as a macro has. "
            "[not-a-definition]\n");
}

TEST_F(Check, AMacroFileOfTwoJoystickFilesIsToldOfOnce) {
  Put("both.m50", "Gun = SPC\r\nGun = ENT\r\n");
  const std::string one = Put("one.b50", "MDEF both\r\nBTN S1 Gun\r\n");
  const std::string two = Put("two.b50", "MDEF both\r\nBTN S1 Gun\r\n");
  EXPECT_EQ(WithoutFolder(Called({two, one, one}).out),
            "both.m50:2:1: warning: \"Gun\" is defined further up already. [macro-defined-twice]\n");
}

TEST_F(Check, TheHardwareIsThatOfTheFilesEnding) {
  EXPECT_THAT(Called({Put("a.f22", "BTN UB a\r\n")}).out, HasSubstr("[control-not-here]"));
  EXPECT_EQ(Called({Put("a.ADV", "BTN UB a\r\n")}).out, "");
}

TEST_F(Check, ANameThatDosDoesNotKnowIsTold) {
  EXPECT_THAT(Called({Put("much_too_long.b50", "BTN S1 a\r\n")}).out, HasSubstr("[name-not-dos]"));
}

TEST_F(Check, AUnicodeFileIsReadAsTheProgramReadsIt) {
  const Result outcome = Called({Put("a.b50",
                                     "\xEF\xBB\xBF"
                                     "Rem h\xC3\xB6her\nBTN S1 \xC3\xB6 FIRE USE\n")});
  EXPECT_THAT(WithoutFolder(outcome.out),
              HasSubstr("a.b50:2:8: hint: Whether the loaders read \"\xC3\xB6\""));
  EXPECT_THAT(WithoutFolder(outcome.out), HasSubstr("a.b50:2:15: warning: \"USE\""));
}

TEST_F(Check, JsonHoldsAllOfAProblem) {
  Put("gun.m50", "Gun = SPC\r\n");
  const Result outcome = Called({"--json", Put("gun.b50", "MDEF gun\r\nBTN S1 Gun Gnu\r\n")});
  EXPECT_EQ(outcome.status, kErrors);
  const auto all = nlohmann::json::parse(outcome.out);
  ASSERT_EQ(all.size(), 1u);
  EXPECT_EQ(all[0]["file"], Folder() + "/gun.b50");
  EXPECT_EQ(all[0]["line"], 2);
  EXPECT_EQ(all[0]["column"], 12);
  EXPECT_EQ(all[0]["length"], 3);
  EXPECT_EQ(all[0]["severity"], "error");
  EXPECT_EQ(all[0]["rule"], "undefined-macro");
  EXPECT_EQ(all[0]["text"], "No macro is called \"Gnu\". Did you mean \"Gun\"?");
  EXPECT_EQ(all[0]["advice"], "Define it in the macro file, or write another name.");
}

TEST_F(Check, JsonOfNoProblemIsAnEmptyList) {
  EXPECT_EQ(nlohmann::json::parse(Called({"--json", Put("a.b50", "BTN S1 a\r\n")}).out),
            nlohmann::json::array());
}

TEST_F(Check, AFilesNameNeedNotBeUtf8ForJson) {
  const Result outcome = Called({"--json", Put("\xF6.b50", "FIRE\r\n")});
  EXPECT_FALSE(nlohmann::json::parse(outcome.out).empty());
}

TEST(CheckPairs, WhatIsToldIsTheGoldenText) {
  const std::string folder = TARVIK_DATA "/../tests/pairs";
  const Result outcome = Called({folder});
  std::string told;
  std::istringstream lines(outcome.out);
  for (std::string line; std::getline(lines, line);) {
    ASSERT_THAT(line, StartsWith(folder + "/"));
    told.append(line, folder.size() + 1).append("\n");
  }
  const fs::path golden = TARVIK_DATA "/../tests/check/pairs.txt";
  if (std::getenv("TARVIK_PROMOTE") != nullptr) std::ofstream(golden, std::ios::binary) << told;
  std::ifstream in(golden, std::ios::binary);
  EXPECT_EQ(told, std::string(std::istreambuf_iterator<char>(in), {}));
  EXPECT_EQ(outcome.status, kErrors);
  EXPECT_EQ(outcome.error, "");
}

TEST(CheckPairs, TheTidyOnesAndTheSamplesAreFine) {
  for (const char* folder : {TARVIK_DATA "/../tests/pairs/tidy", TARVIK_DATA "/samples"}) {
    const Result outcome = Called({folder});
    EXPECT_EQ(outcome.status, kFine);
    EXPECT_EQ(outcome.out.find(": warning: "), std::string::npos) << outcome.out;
  }
}

}  // namespace
}  // namespace tarvik::check
