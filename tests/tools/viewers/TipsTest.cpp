#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <set>

#include "app/Program.h"
#include "tools/viewers/Tips.h"

namespace tarvik {
namespace {

TEST(Tips, AreDrawnFromAllLines) {
  Program program;
  program.files().Put("c:\\tarvik\\Tips.txt", "One\r\n\r\nTwo\r\nThree");
  auto& form = program.application.Tool<frmTip>();
  std::set<std::string> shown;
  for (int i = 0; i < 300; ++i) {
    shown.insert(form.lblTipText.Caption);
    form.cmdNextTip.Click();
  }
  EXPECT_THAT(shown, testing::ElementsAre("", "One", "Three", "Two"));
}

TEST(Tips, ComeAtTheVeryFirstStart) {
  UnstartedProgram program;
  program.application.Start();
  ASSERT_NE(program.application.LoadedTool<frmTip>(), nullptr);
  EXPECT_TRUE(program.application.LoadedTool<frmTip>()->Modal);
}

TEST(Tips, OfTheProgramAreShortAndMany) {
  std::ifstream in(TARVIK_DATA "/Tips.txt", std::ios::binary);
  std::set<std::string> tips;
  int lines = 0;
  for (std::string line; std::getline(in, line); ++lines) {
    ASSERT_TRUE(line.ends_with('\r')) << line;
    EXPECT_LT(line.size(), 160U) << line;
    tips.insert(line);
  }
  EXPECT_GE(lines, 40);
  EXPECT_EQ(tips.size(), static_cast<std::size_t>(lines)) << "a tip stands there twice";
}

}  // namespace
}  // namespace tarvik
