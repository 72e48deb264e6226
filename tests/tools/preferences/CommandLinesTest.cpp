#include <gtest/gtest.h>

#include "support/Printers.h"
#include "support/ScriptedPlatform.h"
#include "tools/preferences/CommandLines.h"

namespace tarvik {
namespace {

class CustomAppPath : public testing::Test {
 protected:
  std::string Take(const std::string& path, Answer answer) {
    dialogs.boxes.clear();
    dialogs.answers = {answer};
    return CustomAppPathUse(dialogs, path);
  }
  session::ScriptedDialogs dialogs;
};

TEST_F(CustomAppPath, OfAnAppletGetsTheControlPanelInFront) {
  EXPECT_EQ(Take("c:\\win\\JOY.CPL", Answer::Yes), "c:\\windows\\control.exe c:\\win\\JOY.CPL");
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  const MessageBox& box = dialogs.boxes.front();
  EXPECT_EQ(box.title, "Information for using control panel applets");
  EXPECT_EQ(box.text,
            "I see you're trying to run one of the control panel's programs. If you want to do this, say for "
            "Thrustmaster's ProPanel (downloadable from their site and a must have!), then you need to add "
            "c:\\windows\\control.exe to your path so that it looks like this: c:\\windows\\control.exe "
            "c:\\win\\JOY.CPL. Would you like me to do this for you now?");
  EXPECT_EQ(box.icon, BoxIcon::Information);
  EXPECT_EQ(box.buttons, BoxButtons::YesNo);
}

TEST_F(CustomAppPath, OfAHelpFileGetsTheHelpProgramInFront) {
  EXPECT_EQ(Take("c:\\adf.hlp", Answer::Yes), "c:\\windows\\winhlp32.exe c:\\adf.hlp");
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes.front().title, "Information for using help files");
  EXPECT_EQ(dialogs.boxes.front().text,
            "I see you're trying to use a help file. If you want to do this, say for F22 ADF, then you need "
            "to add c:\\windows\\winhlp32.exe to your path so that it looks like this: "
            "c:\\windows\\winhlp32.exe c:\\adf.hlp. Would you like me to do this for you now?");
}

TEST_F(CustomAppPath, StaysWhenTheUserWantsNoChange) {
  EXPECT_EQ(Take("c:\\a.cpl", Answer::No), "c:\\a.cpl");
  EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(CustomAppPath, IsNotAskedAboutWhenItCanBeStarted) {
  for (const char* const path : {"c:\\windows\\control.exe c:\\joy.cpl", "c:\\windows\\winhlp32.exe a.HLP",
                                 "c:\\calc.exe", "", "pl"}) {
    EXPECT_EQ(Take(path, Answer::Yes), path);
    EXPECT_TRUE(dialogs.boxes.empty()) << path;
  }
}

}  // namespace
}  // namespace tarvik
