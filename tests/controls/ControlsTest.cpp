// What the forms of all tools rely on: controls that are found by name and tell of every change, once.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controls/Controls.h"
#include "controls/Menu.h"

namespace tarvik {
namespace {

using ::testing::ElementsAre;

struct Window : Form {
  Window() : Form("Window") {}
  void Run() { ++runs; }
  void Pick(int index) { picked = index; }

  static constexpr MenuRow<Window> kMenus[] = {
      {0, "mnuFile", "&File"},   {1, "mnuSave", "&Save", "Ctrl+S", &Window::Run},
      {1, "mnuLater", "&Later"}, {1, "mnuRecent", "", "", nullptr, 0, &Window::Pick},
      {1, "mnuExit", "E&xit"},
  };
  Menus menus{*this, kMenus};
  ControlArray<Label> labels{*this, "Label1", {"one", "two"}};
  CommandButton ok{*this, "ok", "&OK", &Window::Run};
  CommandButton cancel{*this, "cancel", "Cancel", &Window::Run};
  OptionButton left{*this, "left", "Left"};
  OptionButton right{*this, "right", "Right"};
  OptionButton other{*this, "other", "Of another group", 1};
  TextBox box{*this, "box"};
  ListBox list{*this, "list"};
  Toolbar bar{*this, "bar", 2};

  int runs = 0;
  int picked = -1;
};

class Controls : public testing::Test {
 protected:
  Window window;
};

TEST_F(Controls, AreFoundByTheirPaths) {
  EXPECT_EQ(window.Resolve("Label1(1)"), &window.labels(1));
  EXPECT_EQ(window.Resolve("bar.Buttons(2)"), &window.bar.Buttons(2));
  EXPECT_EQ(window.Resolve("Label1"), nullptr);
  EXPECT_EQ(window.Resolve("Label1(2)"), nullptr);
  EXPECT_EQ(window.Resolve("bar.Buttons(3)"), nullptr);
  window.labels.Unload(1);
  EXPECT_EQ(window.Resolve("Label1(1)"), nullptr) << "it has gone";
}

TEST_F(Controls, TellOfChangesAlone) {
  int changes = 0;
  const Connection connection = window.labels(0).Caption.Changed.Connect([&] { ++changes; });
  window.labels(0).Caption = "one";
  EXPECT_EQ(changes, 0) << "it was that before";
  window.labels(0).Caption = "three";
  EXPECT_EQ(changes, 1);
}

TEST_F(Controls, KeepTheirValueWhereATextIsNone) {
  EXPECT_TRUE(window.list.ListIndex.FromText("3"));
  EXPECT_FALSE(window.list.ListIndex.FromText("three"));
  EXPECT_FALSE(window.list.Enabled.FromText("maybe"));
  EXPECT_EQ(window.list.ListIndex.ToText(), "3");
  EXPECT_EQ(window.list.Enabled.ToText(), "True");
}

TEST_F(Controls, CallNobodyWhoHasGone) {
  std::string heard;
  Connection first;
  Connection second;
  first = window.Caption.Changed.Connect([&] {
    heard += "first ";
    second.reset();  // in the middle of the call
  });
  second = window.Caption.Changed.Connect([&] { heard += "second "; });
  window.Caption = "new";
  EXPECT_EQ(heard, "first ");
  first.reset();
  window.Caption = "newer";
  EXPECT_EQ(heard, "first ");
}

TEST_F(Controls, HaveOneDefaultButtonOnAForm) {
  window.ok.MakeDefault();
  window.cancel.MakeDefault();
  EXPECT_FALSE(window.ok.Default);
  EXPECT_TRUE(window.cancel.Default);
}

TEST_F(Controls, TakeTheMarkFromTheOthersOfTheirGroup) {
  window.left.Value = true;
  window.other.Value = true;
  window.right.Value = true;
  EXPECT_FALSE(window.left.Value);
  EXPECT_TRUE(window.other.Value);
}

TEST_F(Controls, ReplaceWhatIsSelectedInABox) {
  window.box.Text = "Fire_Gun";
  window.box.SelStart = 5;
  window.box.SelLength = 3;
  window.box.SelText = "Missile";
  EXPECT_EQ(window.box.Text.Get(), "Fire_Missile");
  EXPECT_EQ(window.box.SelStart.Get(), 12U) << "behind the new text";
}

TEST_F(Controls, SortAListWithNothingPickedAndNothingTicked) {
  window.list.FillInOrder({"b", "a"});
  EXPECT_THAT(window.list.List(), ElementsAre("b", "a"));
  window.list.ListIndex = 1;
  window.list.Tick({true, true});
  window.list.Fill({"Beta", "alpha"});
  EXPECT_EQ(window.list.Items.Get(), "alpha\r\nBeta");
  EXPECT_EQ(window.list.ListIndex.Get(), -1);
  EXPECT_EQ(window.list.Ticked.Get(), "");
}

TEST_F(Controls, ComeBackWithAFormThatWasMinimised) {
  constexpr int kMinimised = 1;
  window.Visible = true;
  window.WindowState = kMinimised;
  window.Visible = true;
  EXPECT_EQ(window.WindowState.Get(), 0);
}

TEST_F(Controls, AreDisabledInAMenuWhereNothingHandlesThem) {
  EXPECT_TRUE(window.menus("mnuFile").Enabled);
  EXPECT_TRUE(window.menus("mnuSave").Enabled);
  EXPECT_FALSE(window.menus("mnuLater").Enabled);
}

TEST_F(Controls, GrowAndShrinkWithTheTextsOfAMenu) {
  window.menus.Fill("mnuRecent", {"a.b50", "b.b50"});
  EXPECT_FALSE(window.menus("mnuRecent", 0).Visible);
  EXPECT_EQ(window.menus("mnuRecent", 2).Caption.Get(), "b.b50");
  window.menus("mnuRecent", 2).Click();
  EXPECT_EQ(window.picked, 2);
  std::vector<std::string> names;
  for (const MenuEntry& entry : window.menus.Entries()) names.emplace_back(entry.item->FullName());
  EXPECT_THAT(names, ElementsAre("mnuFile", "mnuSave", "mnuLater", "mnuRecent(0)", "mnuRecent(1)",
                                 "mnuRecent(2)", "mnuExit"));
  window.menus.Fill("mnuRecent", {"a.b50"});
  EXPECT_EQ(window.Resolve("mnuRecent(2)"), nullptr);
}

TEST_F(Controls, RunAnEntryByItsCtrlLetter) {
  EXPECT_TRUE(window.menus.RunCtrlLetter({'S', shift::kCtrl}));
  EXPECT_FALSE(window.menus.RunCtrlLetter({'S', shift::kCtrl | shift::kShift}));
  EXPECT_FALSE(window.menus.RunCtrlLetter({'T', shift::kCtrl}));
  EXPECT_EQ(window.runs, 1);
  window.menus("mnuSave").Enabled = false;
  EXPECT_TRUE(window.menus.RunCtrlLetter({'S', shift::kCtrl})) << "nobody else gets it";
  EXPECT_EQ(window.runs, 1);
}

}  // namespace
}  // namespace tarvik
