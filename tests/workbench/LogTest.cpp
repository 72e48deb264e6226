// The log: what somebody who looks for a fault finds in it, and what never stands in it.
#include <gmock/gmock.h>

#include "support/BareWorkbench.h"

namespace tarvik {
namespace {

using testing::ElementsAre;

class LogTest : public testing::Test {
 protected:
  Programs& programs() { return bench.workbench.platform.programs; }
  Outcome<> Start(const std::string& commandLine) {
    return programs().Start(commandLine, WindowStyle::Normal);
  }
  /// What was started in these words, as the log names it.
  std::string Told(const std::string& commandLine) {
    EXPECT_TRUE(Start(commandLine));
    return log.Lines().back();
  }

  BareWorkbench bench;
  Log& log = bench.workbench.log;
};

TEST_F(LogTest, IsEmptyAsLongAsNothingHappens) { EXPECT_THAT(log.Lines(), ElementsAre()); }

TEST_F(LogTest, TellsEachErrorWithItsTagItsNumberAndItsText) {
  Errors& errors = bench.workbench.errors;
  errors.Record("ED_Save", {75, "Path/File access error", 13});
  errors.Record("ED_Load", {53, "File not found", 0});
  errors.Record("ED_Any", {5, "", 0});
  EXPECT_THAT(log.Lines(), ElementsAre("16:00:00 ED_Save: error 75, Path/File access error, system error 13",
                                       "16:00:00 ED_Load: error 53, File not found",  //
                                       "16:00:00 ED_Any: error 5"));
}

TEST_F(LogTest, KeepsTheNewestLines) {
  for (std::size_t i = 0; i <= Log::kMost; ++i) log.Write(std::to_string(i));
  EXPECT_EQ(log.Lines().size(), Log::kMost);
  EXPECT_EQ(log.Lines().front(), "16:00:00 1");
  EXPECT_EQ(log.Lines().back(), "16:00:00 " + std::to_string(Log::kMost));
}

TEST_F(LogTest, AnnouncesEachLineAlsoOneThatAListenerWrites) {
  std::vector<std::string> heard;
  const Connection first = log.Written.Connect([this](const std::string& line) {
    if (line.ends_with("one")) log.Write("two");
  });
  const Connection second = log.Written.Connect([&heard](const std::string& line) { heard.push_back(line); });
  log.Write("one");
  EXPECT_THAT(heard, ElementsAre("16:00:00 two", "16:00:00 one"));
}

TEST_F(LogTest, TellsOfProgramsThatStartAndOfThoseThatDoNot) {
  EXPECT_TRUE(Start("c:\\tm\\tmscope.exe"));
  bench.outside.programs.fails = 53;
  EXPECT_FALSE(Start("c:\\none.exe c:\\my\\a.b50 Q"));
  EXPECT_THAT(log.Lines(), ElementsAre("16:00:00 started c:\\tm\\tmscope.exe (arguments: 0)",
                                       "16:00:00 could not start c:\\none.exe (arguments: 2): error 53, The "
                                       "program did not start"));
  EXPECT_EQ(bench.outside.programs.started.back().commandLine, "c:\\none.exe c:\\my\\a.b50 Q");
}

TEST_F(LogTest, TellsHowAWaitForAProgramEnds) {
  for (const ProgramState state : {ProgramState::Ended, ProgramState::Abandoned, ProgramState::Running}) {
    const auto program = programs().StartToWait("c:\\tm\\load.exe c:\\a.b50", WindowStyle::Normal);
    ASSERT_TRUE(program);
    bench.outside.programs.state = state;
    EXPECT_EQ((*program)->State(), state);
  }
  const std::string started = "16:00:00 started c:\\tm\\load.exe (arguments: 1)";
  EXPECT_THAT(log.Lines(),
              ElementsAre(started, "16:00:00 c:\\tm\\load.exe has ended",  //
                          started, "16:00:00 c:\\tm\\load.exe was stopped before it was through", started,
                          "16:00:00 c:\\tm\\load.exe is ended, since nobody waits for it any "
                          "more"));
}

TEST_F(LogTest, NamesTheProgramAndNothingThatItIsTold) {
  const std::string kNoProgram = "16:00:00 started something that is no program ";
  bench.files.Put("c:\\program files\\tm\\load.exe", "MZ");
  EXPECT_EQ(Told("c:\\program files\\tm\\load.exe c:\\my diary.b50 Q"),
            "16:00:00 started c:\\program files\\tm\\load.exe (arguments: 3)");
  EXPECT_EQ(Told("\"c:\\my games\\fly.exe\" c:\\diary.b50"), kNoProgram + "(arguments: 1)");
  bench.files.Put("c:\\my games\\fly.exe", "MZ");
  EXPECT_EQ(Told("\"c:\\my games\\fly.exe\" c:\\diary.b50"),
            "16:00:00 started c:\\my games\\fly.exe (arguments: 1)");
  EXPECT_EQ(Told("\"c:\\fly.exe c:\\diary.b50\""), kNoProgram + "(arguments: 0)");
  EXPECT_EQ(Told("c:\\fly.exe/load=c:\\diary.b50"), kNoProgram + "(arguments: 0)");
  EXPECT_EQ(Told("c:\\letter.txt"), kNoProgram + "(arguments: 0)");
  EXPECT_EQ(Told("\"c:\\fly.exe c:\\diary.b50"), "16:00:00 started \"c:\\fly.exe (arguments: 1)");
  bench.files.Put("c:\\diary.b50", "Dear diary");
  EXPECT_EQ(Told(" c:\\diary.b50"), kNoProgram + "(arguments: 1)");
  EXPECT_EQ(Told("c:\\fly/load=c:\\diary"), kNoProgram + "(arguments: 0)");
  EXPECT_EQ(Told(""), kNoProgram + "(arguments: 0)");
}

TEST_F(LogTest, TellsWhatTheDesktopOpensAndNotWhatItIsCalled) {
  Desktop& desktop = bench.workbench.platform.desktop;
  EXPECT_TRUE(desktop.Open("c:\\my diary\\diary.BMP"));
  EXPECT_TRUE(desktop.Open("c:\\my.txt\\diary"));
  EXPECT_TRUE(desktop.Open("c:\\a.diary"));
  EXPECT_TRUE(desktop.Open("c:\\a.my d"));
  EXPECT_TRUE(desktop.ShowSystemInformation());
  bench.outside.desktop.opensFiles = bench.outside.desktop.tellsAboutTheMachine = false;
  EXPECT_FALSE(desktop.Open("c:\\diary.bmp"));
  EXPECT_FALSE(desktop.ShowSystemInformation());
  EXPECT_THAT(log.Lines(),
              ElementsAre("16:00:00 had the desktop open a file that ends in .bmp",
                          "16:00:00 had the desktop open a file",  //
                          "16:00:00 had the desktop open a file",  //
                          "16:00:00 had the desktop open a file",
                          "16:00:00 had the desktop open its system information",
                          "16:00:00 the desktop could not open a file that ends in .bmp: error 53, "
                          "File not found",
                          "16:00:00 the desktop could not open its system information: error 53, "
                          "File not found"));
}

TEST_F(LogTest, TellsOnceThatTheSettingsFileCannotBeRead) {
  bench.files.Put("c:\\tarvik\\Tarvik.ini", "[Miscellaneous]\r\nUndoMax=7\r\n");
  bench.files.SetUnreadable("c:\\tarvik\\Tarvik.ini");
  bench.workbench.settings.GetOptions();
  bench.workbench.settings.GetColours();
  EXPECT_THAT(
      log.Lines(),
      ElementsAre(testing::StartsWith("16:00:00 Tarvik.ini can't be read, and is left alone: error 7")));
}

TEST_F(LogTest, TellsWhichSettingsCouldNotBeReadAndNotWhatTheyAre) {
  bench.files.Put(
      "c:\\tarvik\\Tarvik.ini",
      "[Miscellaneous]\r\nUndoMax=many\r\nAutoSaveTime=12\r\nMacroFrameWidth=185x\r\nCompOnTop=-\r\n"
      "[Colours]\r\nBTNColour=blue\r\nTextFontSize=large\r\n");
  bench.workbench.settings.GetOptions();
  EXPECT_THAT(
      log.Lines(),
      ElementsAre("16:00:00 Tarvik.ini: UndoMax in [Miscellaneous] can't be read as a number",
                  "16:00:00 Tarvik.ini: CompOnTop in [Miscellaneous] can't be read as a number",
                  "16:00:00 Tarvik.ini: MacroFrameWidth in [Miscellaneous] can't be read as a number"));
  bench.workbench.settings.GetColours();
  EXPECT_THAT(std::vector(log.Lines().begin() + 3, log.Lines().end()),
              ElementsAre("16:00:00 MODULE GetColours: error 13, Type mismatch",
                          "16:00:00 Tarvik.ini: BTNColour in [Colours] can't be read as a number",
                          "16:00:00 MODULE GetColours: error 13, Type mismatch",
                          "16:00:00 Tarvik.ini: TextFontSize in [Colours] can't be read as a number"));
}

}  // namespace
}  // namespace tarvik
