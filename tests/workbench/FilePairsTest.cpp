// Which files belong together.
#include <gtest/gtest.h>

#include "support/BareWorkbench.h"
#include "workbench/FilePairs.h"

namespace tarvik {
namespace {

TEST(FilePairs, AreToldByTheLastThreeLetters) {
  EXPECT_TRUE(IsJoystickFile("c:\\tm\\a.b50"));
  EXPECT_TRUE(IsMacroFile("c:\\tm\\a.mdf"));
  EXPECT_FALSE(IsMacroFile("c:\\tm\\a.b50"));
  EXPECT_FALSE(IsJoystickFile("50"));
  EXPECT_EQ(WithEnding("a.b50", "m50"), "a.m50");
  EXPECT_EQ(WithEnding("50", "m50"), "m50");
}

TEST(FilePairs, AMacroFileHasItsJoystickFileUnderItsOwnName) {
  const auto macro = FileAt("C:\\TM\\A.MDF");
  ASSERT_TRUE(macro);
  const auto joystick = JoystickFileBeside(*macro);
  ASSERT_TRUE(joystick);
  EXPECT_EQ(joystick->path, "c:\\tm\\a.adv");
  EXPECT_EQ(joystick->name.Text(), "a.adv");
  EXPECT_FALSE(JoystickFileBeside(*FileAt("c:\\tm\\a.txt"))) << "that is no macro file";
  EXPECT_FALSE(FileAt("c:\\tm\\"));
}

class FileNamedInAJoystickFile : public testing::Test {
 protected:
  std::string Partner(const std::string& path, const std::string& text) {
    bench.joystick.text.SetContent(RichText(text));
    bench.joystick.Path = path;
    bench.joystick.Name = *FileName::Of(path);
    const auto partner = MacroFileNamedIn(bench.joystick);
    return partner ? partner->path : "none";
  }

  BareWorkbench bench;
};

TEST_F(FileNamedInAJoystickFile, IsTheLastOneBesideIt) {
  EXPECT_EQ(Partner("c:\\tm\\a.b50", "Rem MDEF old\r\nUSE MDEF Strike\r\nBTN S1 x"), "c:\\tm\\strike.m50");
  EXPECT_EQ(Partner("c:\\tm\\a.f22", "USE MDEF Strike"), "c:\\tm\\strike.m22");
  EXPECT_EQ(Partner("c:\\tm\\a.b50", "BTN S1 x"), "c:\\tm\\a.");
}

TEST_F(FileNamedInAJoystickFile, IsNoneWhereItLeadsElsewhereOrTheEndingIsNoJoystickFiles) {
  EXPECT_EQ(Partner("c:\\tm\\a.b50", "USE MDEF ..\\strike"), "none");
  EXPECT_EQ(Partner("c:\\tm\\a.txt", "USE MDEF strike"), "none");
}

}  // namespace
}  // namespace tarvik
