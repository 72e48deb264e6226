// The log of a whole program: a user's work with failures on the way leaves nothing of it there.
#include <gmock/gmock.h>

#include "app/Program.h"
#include "text/CodePage.h"

namespace tarvik {
namespace {

using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

class LogOfAProgram : public testing::Test {
 protected:
  void Type(Pane& pane, const std::string& text) { pane.ReplaceSelection(RichText(text)); }
  void SaveAs(const std::string& path) {
    program.outside.dialogs.choices.push_back(path);
    program.editor().mnuFileSaveAs_Click();
  }

  Program program;
  const Log& log = program.application.workbench.log;
};

TEST_F(LogOfAProgram, IsEmptyAfterAStart) { EXPECT_THAT(log.Lines(), testing::IsEmpty()); }

TEST_F(LogOfAProgram, HasNothingOfTheUsersTextNorOfTheNamesOfHisFiles) {
  MemoryFiles& files = program.files();
  Settings& settings = program.application.workbench.settings;
  files.Put("c:\\diary\\hidden.m50", "Diary=hidden\r\n");
  files.SetReadOnly("c:\\diary");
  program.application.workbench.documents.tabs.Select(1);
  Type(program.editor().JoystickText, "BTN S1 Diary_hidden\r\n");
  SaveAs("c:\\diary\\hidden.b50");
  files.FailAfter(10);
  SaveAs("c:\\hidden.b50");
  files.StopFailing();
  SaveAs("c:\\hidden.b50");
  files.SetUnreadable("c:\\hidden.b50");
  program.outside.dialogs.choices.emplace_back("c:\\hidden.b50");
  program.editor().mnuFileJoystickLoad_Click();
  settings.B50LoadPath = "c:\\tm\\load.exe";
  settings.CandCCPath = "c:\\tm\\tm.bat";
  program.outside.programs.fails = 53;
  program.editor().mnuSendToJoystick_Click();
  program.editor().mnuSendToJoystick_Click();
  EXPECT_GE(log.Lines().size(), 5U);
  EXPECT_THAT(log.Lines(), testing::Contains(HasSubstr("ED_SaveJoystickText: error 75")));
  EXPECT_THAT(log.Lines(), testing::Contains(HasSubstr("load.exe has ended")));
  for (const std::string& line : log.Lines())
    EXPECT_THAT(LowerCase(line), Not(AnyOf(HasSubstr("diary"), HasSubstr("hidden"))));
}

}  // namespace
}  // namespace tarvik
