#include <gmock/gmock.h>

#include "app/Layout.h"
#include "app/Program.h"

namespace tarvik {
namespace {

struct KeptPlace {
  float left;
  float top;
  float width;
  float height;
  friend bool operator==(const KeptPlace&, const KeptPlace&) = default;
  friend std::ostream& operator<<(std::ostream& out, const KeptPlace& place) {
    return out << place.left << " " << place.top << " " << place.width << " " << place.height;
  }
};

KeptPlace PlaceOf(const Control& control) {
  return {control.Left, control.Top, control.Width, control.Height};
}

class LayoutTest : public testing::Test {
 protected:
  LayoutTest() {
    editor.ScaleWidth = 1000;
    editor.ScaleHeight = 600;
    editor.Form_Resize();
  }

  Program program;
  Editor& editor = program.editor();
};

TEST_F(LayoutTest, TheTabStripStandsRightOfTheMacroFrame) {
  EXPECT_EQ(PlaceOf(editor.FrameMacros), (KeptPlace{0, 0, 185, 600}));
  EXPECT_EQ(PlaceOf(editor.TabStrip1), (KeptPlace{185, 0, 815, 600}));
}

TEST_F(LayoutTest, WithoutTheFrameTheTabStripHasTheWholeForm) {
  editor.mnuViewMacros_Click();
  EXPECT_EQ(PlaceOf(editor.TabStrip1), (KeptPlace{0, 0, 1000, 600}));
  EXPECT_EQ(PlaceOf(editor.JoystickText), (KeptPlace{3, 23, 994, 578}));
}

TEST_F(LayoutTest, BothPanesStandOnOnePlaceInsideTheStrip) {
  EXPECT_EQ(PlaceOf(editor.JoystickText), (KeptPlace{188, 23, 809, 578}));
  EXPECT_EQ(PlaceOf(editor.MacroText), PlaceOf(editor.JoystickText));
}

TEST_F(LayoutTest, TiledThePanesShareTheStrip) {
  editor.mnuViewTileVertically_Click();
  EXPECT_EQ(PlaceOf(editor.JoystickText), (KeptPlace{188, 23, 403.5, 578}));
  EXPECT_EQ(PlaceOf(editor.MacroText), (KeptPlace{592.5, 23, 403.5, 578}));
  editor.ScaleWidth = 585;
  editor.Form_Resize();
  EXPECT_EQ(PlaceOf(editor.JoystickText), (KeptPlace{188, 23, 196, 578}));
  editor.mnuViewTileVertically_Click();
  EXPECT_EQ(PlaceOf(editor.JoystickText), (KeptPlace{188, 23, 394, 578}));
}

TEST_F(LayoutTest, TiledTheUserChoosesHowMuchEachFileGets) {
  editor.mnuViewTileVertically_Click();
  editor.TileTo(Pixels{185 + 815 * 0.25F});
  EXPECT_EQ(PlaceOf(editor.JoystickText), (KeptPlace{188, 23, 199.75, 578}));
  EXPECT_EQ(PlaceOf(editor.MacroText), (KeptPlace{388.75, 23, 607.25, 578}));
  Settings& settings = program.application.workbench.settings;
  EXPECT_EQ(settings.TileShare, 250);
  editor.KeepTiles();
  EXPECT_THAT(program.files().Content("c:\\tarvik\\Tarvik.ini").value_or(""),
              testing::HasSubstr("TileShare=250"));
  editor.TileTo(Pixels{-1000});
  EXPECT_EQ(settings.TileShare, 150);
  editor.TileEvenly();
  EXPECT_EQ(PlaceOf(editor.JoystickText), (KeptPlace{188, 23, 403.5, 578}));
  settings.TileShare = 32000;
  editor.Form_Resize();
  EXPECT_GT(PlaceOf(editor.MacroText).width, 100);
}

TEST_F(LayoutTest, TheFrameIsFilledInTwips) {
  EXPECT_EQ(editor.Combo1.Width, 2535);
  const ListBox& list = editor.List1(0);
  EXPECT_EQ(list.Width, 2535);
  EXPECT_EQ(list.Height, 9000 - 840 - editor.Combo1.Height - 680);
}

TEST_F(LayoutTest, TheModifierButtonsStandInTwoRowsBelowTheLists) {
  const ListBox& list = editor.List1(0);
  const float upper = list.Top + list.Height + 30;
  const float lower = upper + editor.Command1(0).Height + 30;
  for (int i = 0; i <= 5; ++i) EXPECT_EQ(editor.Command1(i).Top, upper) << i;
  for (int i = 6; i <= 11; ++i) EXPECT_EQ(editor.Command1(i).Top, lower) << i;
  EXPECT_EQ(editor.Command1(12).Top, upper);
}

TEST_F(LayoutTest, ButtonsOfARowStandSideBySideWithinTheFrame) {
  const auto right = [this](int i) { return editor.Command1(i).Left + editor.Command1(i).Width; };
  for (const int i : {1, 2, 3, 4, 5, 7, 8, 9, 10, 11}) EXPECT_GE(editor.Command1(i).Left, right(i - 1)) << i;
  EXPECT_GE(editor.Command1(12).Left, right(5));
  EXPECT_LE(right(12), 185 * kTwipsPerPixel);
  EXPECT_LE(right(11), 185 * kTwipsPerPixel);
}

TEST_F(LayoutTest, AFormTooLowForItsListsDoesNotTurnThemOver) {
  editor.ScaleHeight = 50;
  editor.Form_Resize();
  EXPECT_EQ(editor.List1(0).Height, 0);
}

}  // namespace
}  // namespace tarvik
