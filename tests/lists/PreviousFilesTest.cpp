#include <gtest/gtest.h>

#include "app/Program.h"
#include "support/Printers.h"
#include "tools/favourites/Favourites.h"
#include "tools/preferences/CommandLines.h"
#include "workbench/PreviousFiles.h"

namespace tarvik {
namespace {

TEST(Favourites, SuggestTheFilesNameInCapitalisedForm) {
  for (const auto& [path, name] :
       std::initializer_list<std::pair<const char*, const char*>>{{"c:\\tm\\f22\\MYFILE.f22", "Myfile"},
                                                                  {"c:\\tm\\a b.m50", "A b"},
                                                                  {"strike.b50", "Strike"},
                                                                  {"c:\\tm\\.b50", ""},
                                                                  {"c:\\tm\\abc", ""},
                                                                  {"", ""},
                                                                  {"c:\\dir.b50\\", ""}}) {
    EXPECT_EQ(SuggestedName(path), name) << path;
  }
}

TEST(PreviousFiles, KnowWhatIsOnThem) {
  Program program;
  PreviousFiles& lists = program.application.workbench.lists;
  lists.RecentJFToAdd = "c:\\a.b50";
  lists.UpdateRecentJFMenuList();
  lists.RecentMFToAdd = "c:\\a.m50";
  lists.UpdateRecentMFMenuList();
  lists.FavName = "Fly";
  lists.UpdateFavouritesMenu();
  lists.GameName = "Quake";
  lists.UpdateGamesMenu();
  EXPECT_TRUE(lists.IsJFonMenuAlready("c:\\a.b50"));
  EXPECT_FALSE(lists.IsJFonMenuAlready("c:\\A.b50"));
  EXPECT_TRUE(lists.IsMFonMenuAlready("c:\\a.m50"));
  EXPECT_FALSE(lists.IsMFonMenuAlready("c:\\a.b50"));
  EXPECT_TRUE(lists.IsFavOnMenuAlready("Fly"));
  EXPECT_FALSE(lists.IsFavOnMenuAlready("fly"));
  EXPECT_TRUE(lists.IsGameOnMenuAlready("Quake"));
  EXPECT_FALSE(lists.IsGameOnMenuAlready("quake"));
}

TEST(CustomApps, AreStoredWithTheFoldersOfTheViewersAndComeBackCut) {
  Program program;
  PreviousFiles& lists = program.application.workbench.lists;
  lists.CustomApps[0] = {"Not in use", "\"c:\\a b\\x.exe\"", 0};
  lists.CustomApps[3] = {std::string(120, 'n'), std::string(120, 'p'), 1};
  program.application.workbench.settings.ImageFilePath = "c:\\images";
  lists.SaveApps();
  lists.CustomApps = {};
  lists.GetCustomApps();
  EXPECT_EQ(lists.CustomApps[0].name, "Not in use");
  EXPECT_EQ(lists.CustomApps[0].path, "\"c:\\a b\\x.exe\"");
  EXPECT_EQ(lists.CustomApps[0].use, 0);
  EXPECT_EQ(lists.CustomApps[3].name, std::string(99, 'n'));
  EXPECT_EQ(lists.CustomApps[3].path, std::string(99, 'p'));
  EXPECT_EQ(lists.CustomApps[3].use, 1);
  const ProfileFile& file = program.application.workbench.profile;
  EXPECT_EQ(file.GetString("Apps", "ImageFilePath", "", 100), "c:\\images");
  EXPECT_EQ(file.GetString("Apps", "TextFilePath", "", 100), "c:\\tarvik\\readme.txt");
  EXPECT_EQ(file.GetString("Apps", "CustomAppUse2", "", 100), "0");
}

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
