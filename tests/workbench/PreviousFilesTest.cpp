#include <gtest/gtest.h>

#include "support/BareWorkbench.h"

namespace tarvik {
namespace {

TEST(PreviousFiles, KnowWhatIsOnThem) {
  BareWorkbench bare;
  PreviousFiles& lists = bare.workbench.lists;
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
  BareWorkbench bare;
  PreviousFiles& lists = bare.workbench.lists;
  lists.CustomApps[0] = {"Not in use", "\"c:\\a b\\x.exe\"", 0};
  lists.CustomApps[3] = {std::string(120, 'n'), std::string(120, 'p'), 1};
  bare.workbench.settings.ImageFilePath = "c:\\images";
  bare.workbench.settings.TextFilePath = "c:\\texts";
  lists.SaveApps();
  lists.CustomApps = {};
  lists.GetCustomApps();
  EXPECT_EQ(lists.CustomApps[0].name, "Not in use");
  EXPECT_EQ(lists.CustomApps[0].path, "\"c:\\a b\\x.exe\"");
  EXPECT_EQ(lists.CustomApps[0].use, 0);
  EXPECT_EQ(lists.CustomApps[3].name, std::string(99, 'n'));
  EXPECT_EQ(lists.CustomApps[3].path, std::string(99, 'p'));
  EXPECT_EQ(lists.CustomApps[3].use, 1);
  const ProfileFile& file = bare.workbench.profile;
  EXPECT_EQ(file.GetString("Apps", "ImageFilePath", "", 100), "c:\\images");
  EXPECT_EQ(file.GetString("Apps", "TextFilePath", "", 100), "c:\\texts");
  EXPECT_EQ(file.GetString("Apps", "CustomAppUse2", "", 100), "0");
}

}  // namespace
}  // namespace tarvik
