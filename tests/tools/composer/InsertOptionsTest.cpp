#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "app/Program.h"
#include "tools/composer/InsertOptions.h"

namespace tarvik {
namespace {

class InsertOptionsTest : public testing::Test {
 protected:
  InsertOptions& Composer() { return program.application.Tool<InsertOptions>(); }

  Program program;
  Editor& editor = program.editor();
  Settings& settings = program.application.workbench.settings;
};

TEST_F(InsertOptionsTest, APlaceOutsideTheScreenIsLeftForTheCorner) {
  const auto placed = [this](const char* top, const char* left) {
    settings.Write("Miscellaneous", "ComposerTop", top);
    settings.Write("Miscellaneous", "ComposerLeft", left);
    InsertOptions& composer = Composer();
    const std::pair place(composer.Top.Get().count, composer.Left.Get().count);
    program.application.Unload(composer);
    return place;
  };
  EXPECT_EQ(placed("-5", "28801"), std::pair(10.F, 10.F));
  EXPECT_EQ(placed("21600", "0"), std::pair(21600.F, 0.F));
  EXPECT_EQ(placed("21601", "300"), std::pair(10.F, 300.F));
  EXPECT_EQ(program.application.workbench.profile.GetInt("Miscellaneous", "ComposerTop", 0), 10);
  EXPECT_EQ(program.application.workbench.profile.GetInt("Miscellaneous", "ComposerLeft", 0), 300);
}

TEST_F(InsertOptionsTest, AMinimisedWindowHasNoPlaceToKeep) {
  InsertOptions& composer = Composer();
  composer.Top = Twips{900};
  composer.WindowState = 1;
  program.application.Unload(composer);
  EXPECT_EQ(program.application.workbench.profile.GetInt("Miscellaneous", "ComposerTop", -1), -1);
  EXPECT_EQ(program.application.workbench.profile.GetInt("Miscellaneous", "NumberOfBlanks", -1), 5);
}

TEST_F(InsertOptionsTest, TheMacroInHandIsFoundInTheJoystickFile) {
  editor.JoystickText.Text = std::string("BTN S1 Fired\r\nBTN S2 Fire");
  InsertOptions& composer = Composer();
  composer.List1(0).Fill({"Fire"});
  composer.List1(0).ListIndex = 0;
  editor.TabStrip1.Select(2);
  composer.macros.FindMacriInJfile();
  EXPECT_EQ(editor.TabStrip1.SelectedIndex(), 1);
  EXPECT_EQ(editor.JoystickText.SelStart, 21U);
  EXPECT_EQ(editor.Joystick.Caret, 21U);
  EXPECT_EQ(editor.Joystick.SelLength, 4U);
}

TEST_F(InsertOptionsTest, FieldsTakeTenThousandCharactersAndWhatIsPasted) {
  InsertOptions& composer = Composer();
  const std::string large(10'240, '\xE9');
  composer.RemTextBox.Text = large;
  composer.CommandREM_Click();
  composer.boxes("Text1(0)").Text = large + "\"";
  composer.buttons("Command3").Click();
  const std::string text = editor.JoystickText.Text;
  EXPECT_TRUE(text.starts_with("Rem " + large));
  EXPECT_NE(text.find("RNG 1 " + large + "\""), std::string::npos);
}

TEST_F(InsertOptionsTest, TwoThousandTemplatesAndALargeOneAreListedAndShown) {
  for (int i = 0; i < 2000; ++i) {
    program.files().Put("c:\\tarvik\\templates\\t" + std::to_string(i) + ".txt", "BTN S1 x\r\n");
  }
  std::string large;
  while (large.size() < 20'000'000) large += "BTN T10 A_macro_with_a_name Rem and a note\r\n";
  program.files().Put("c:\\tarvik\\templates\\z.txt", large);
  InsertOptions& composer = Composer();
  ASSERT_EQ(composer.Templates.ListCount(), 2001);
  composer.Templates.ListIndex = 2000;
  EXPECT_EQ(composer.TemplatesPreview.Characters().size(), large.size());
  composer.Command11_Click(0);
  EXPECT_EQ(editor.JoystickText.Characters().size(), large.size());
}

TEST_F(InsertOptionsTest, AValueOfTheSettingsThatIsNoTickIsTakenForOne) {
  settings.Write("Miscellaneous", "AlwaysInsert", "7");
  settings.Write("Miscellaneous", "NumberOfBlanks", "-40000");
  InsertOptions& composer = Composer();
  EXPECT_EQ(composer.AlwaysInsert, 1);
  EXPECT_EQ(composer.NumberOfBlanks, 25536) << "cut off at 16 bits";
  program.application.Unload(composer);
  settings.Write("Miscellaneous", "NumberOfBlanks", "0");
  EXPECT_EQ(Composer().NumberOfBlanks, 5);
}

TEST_F(InsertOptionsTest, EveryControlOfThePicturesHasItsPlaceInOneDrawing) {
  const std::map<tables::Picture, std::string> drawings = {{tables::Picture::Stick, "stick-flcs"},
                                                           {tables::Picture::PlainStick, "stick-fcs"},
                                                           {tables::Picture::Tqs, "throttle-tqs"},
                                                           {tables::Picture::Wcs, "throttle-wcs"}};
  for (const tables::HardwareRow& row : tables::kHardware) {
    std::ifstream file(std::string(TARVIK_DATA) + "/devices/" + drawings.at(row.picture) + ".svg");
    const std::string svg(std::istreambuf_iterator<char>(file), {});
    std::string id(row.array);
    if (row.index >= 0) id += "-" + std::to_string(row.index);
    EXPECT_NE(svg.find("id=\"" + id + "-box\""), std::string::npos) << id;
  }
}

}  // namespace
}  // namespace tarvik
