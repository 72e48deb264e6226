#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "app/Program.h"
#include "tools/pimlet/RAWform.h"

namespace tarvik {
namespace {

class Pimlet : public testing::Test {
 protected:
  Program program;
  RAWform& form = program.application.Tool<RAWform>();
};

TEST_F(Pimlet, HasAButtonForEachOfAHundredAndOneKeys) {
  EXPECT_EQ(form.Command1.Count(), 101);
  EXPECT_EQ(kKeys.size(), 101U);
  for (const KeyRow& row : kKeys) EXPECT_TRUE(form.FindChild("Command1", row.key)) << row.key;
  EXPECT_FALSE(form.FindChild("Command1", 54)) << "no key has this number";
}

/// Two may share the pixel of their borders.
TEST_F(Pimlet, LaysItsKeysSideBySide) {
  constexpr float kBorder = 15;  // twips
  const auto overlap = [](const CommandButton& one, const CommandButton& other) {
    const float width =
        std::min(one.Left + one.Width, other.Left + other.Width) - std::max<float>(one.Left, other.Left);
    const float height =
        std::min(one.Top + one.Height, other.Top + other.Height) - std::max<float>(one.Top, other.Top);
    return width > kBorder && height > kBorder;
  };
  for (const KeyRow& row : kKeys) {
    for (const KeyRow& other : kKeys) {
      if (row.key >= other.key) continue;
      EXPECT_FALSE(overlap(form.Command1(row.key), form.Command1(other.key)))
          << row.name << " and " << other.name;
    }
  }
}

/// A key that comes up sends what it sent going down, behind F0. These differ, and Pause has no break.
TEST_F(Pimlet, SendsABreakThatFitsTheMake) {
  std::set<std::string_view> odd;
  for (const KeyRow& row : kKeys) {
    std::string fitting(row.make);
    fitting.insert(fitting.rfind('#'), "#F0 ");
    if (row.breaks != fitting) odd.insert(row.name);
  }
  EXPECT_THAT(odd, testing::UnorderedElementsAre("m", "KP*", "F2", kNotSupported));
}

TEST_F(Pimlet, ShowsOnEachKeyWhatTheTableSaysOfIt) {
  form.CheckUseSHFUK.Value = 1;
  for (const KeyRow& row : kKeys) {
    form.Command1(row.key).Click();
    EXPECT_EQ(form.SelectedKey, row.key);
    EXPECT_EQ(form.SyntaxText.Text.Get(), (row.mark == Mark::Aux ? "AUX" : "") + std::string(row.name));
    EXPECT_EQ(form.RMakeText.Text.Get(), row.make);
    EXPECT_EQ(form.RBreakText.Text.Get(), row.breaks);
    EXPECT_EQ(form.RCombinedText.Text.Get(), std::string(row.make) + " " + std::string(row.breaks));
  }
}

TEST_F(Pimlet, HasNothingToShowForANumberThatNoKeyHas) {
  form.Command1(20).Click();
  form.SelectedKey = 54;
  form.CheckUseSHFUK.Value = 1;
  EXPECT_EQ(form.SyntaxText.Text.Get(), "");
  EXPECT_EQ(form.RCombinedText.Text.Get(), "");
}

TEST_F(Pimlet, ShowsTheFacesOfShiftAndBack) {
  form.ToggleButton1_Click();
  for (const KeyRow& row : kKeys) {
    EXPECT_EQ(form.Command1(row.key).Caption.Get(), *row.shiftCaption ? row.shiftCaption : row.caption);
  }
  form.ToggleButton1_Click();
  for (const KeyRow& row : kKeys) {
    EXPECT_EQ(form.Command1(row.key).Caption.Get(), row.key == 47 ? std::string(".") : row.caption);
  }
}

TEST_F(Pimlet, InsertsALineOfAnyLengthAsItIs) {
  std::string line;
  while (line.size() < 10240) line += "say \"\xE9t\xE9\" 'n' & %s \\ ";
  for (const char c : line)
    form.TotalCombinedText.UserReplaced({form.TotalCombinedText.SelStart, 0}, {&c, 1});
  form.CommandINS_Click(0);
  EXPECT_EQ(program.editor().JoystickText.Text.Get(), line + " ");
  program.editor().mnuEditUndo_Click();
  EXPECT_EQ(program.editor().JoystickText.Text.Get(), "");
}

/// Nothing shows the menu yet that runs these.
TEST_F(Pimlet, ReplacesTheSelectionOfEitherFileByTheLine) {
  Editor& editor = program.editor();
  editor.JoystickText.Text = std::string("BTN S1 Fire");
  editor.JoystickText.Select({7, 4});
  form.mnuPasteJ_Click();
  EXPECT_EQ(editor.JoystickText.Text.Get(), "BTN S1 Fire");
  form.TotalCombinedText.Text = std::string("RAW (#1C)");
  form.mnuPasteJ_Click();
  EXPECT_EQ(editor.JoystickText.Text.Get(), "BTN S1 RAW (#1C)");
  EXPECT_EQ(editor.JoystickText.SelStart, 16U);
  EXPECT_EQ(editor.Joystick.Caret, 16U);
  form.mnuPasteM_Click();
  EXPECT_EQ(editor.MacroText.Text.Get(), "RAW (#1C)");
  EXPECT_EQ(editor.Macro.Caret, 9U);
}

}  // namespace
}  // namespace tarvik
