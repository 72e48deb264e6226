#include <gtest/gtest.h>

#include "app/PaneInput.h"
#include "app/Program.h"

namespace tarvik {
namespace {

class PaneInputTest : public testing::Test {
 protected:
  static Key Press(Pane& pane, char letter, int shifts = shift::kCtrl) {
    Key key{letter, shifts};
    pane.KeyDown(key);
    return key;
  }

  Program program;
  Editor& editor = program.editor();
  Mum& mum = program.application.mum();
  Pane& pane = editor.JoystickText;
};

struct Shortcut {
  char key;
  const char* entry;
};

constexpr Shortcut kShortcuts[] = {
    {'Z', "mnuEditUndo"},
    {'X', "mnuEditCut"},
    {'C', "mnuEditCopy"},
    {'V', "mnuEditPaste"},
    {'A', "mnuEditSelectAll"},
    {'F', "mnuEditFind"},
    {'G', "mnuEditGoto"},
    {'R', "mnuEditReplace"},
    {'K', "mnuSendToKeyTest"},
    {'N', "mnuFileNewJoystick"},
    {'O', "mnuFileJoystickLoad"},
    {'S', "mnuFileSave"},
    {'P', "mnuFilePrintJoystick"},
    {'Y', "mnuEditRedo"},
    {'U', "mnuEditUpdateMacros"},
    {'H', "mnuViewReformat"},
    {'B', "mnuViewApplyColourBothFiles"},
    {'L', "mnuViewHighlightLine"},
};

TEST_F(PaneInputTest, EachShortcutStandsAtItsEntry) {
  for (const Shortcut& shortcut : kShortcuts) {
    EXPECT_EQ(editor.menus(shortcut.entry).Shortcut.Get(), std::string("Ctrl+") + shortcut.key);
  }
}

TEST_F(PaneInputTest, AShortcutRunsItsEntryOnceAndNeverReachesTheTextControl) {
  for (Pane* each : {&editor.JoystickText, &editor.MacroText}) {
    for (const Shortcut& shortcut : kShortcuts) {
      int runs = 0;
      MenuItem& item = editor.menus(shortcut.entry);
      item.Click = [&runs] { ++runs; };
      item.Enabled = true;
      const Key key = Press(*each, shortcut.key);
      EXPECT_EQ(runs, 1) << shortcut.key;
      EXPECT_EQ(key.code, 0) << shortcut.key;
      EXPECT_EQ(key.shift, 0) << shortcut.key;
    }
  }
}

TEST_F(PaneInputTest, ADisabledEntrysKeyIsSwallowedAndDoesNothing) {
  for (const Shortcut& shortcut : kShortcuts) {
    MenuItem& item = editor.menus(shortcut.entry);
    item.Click = [&shortcut] { ADD_FAILURE() << shortcut.key; };
    item.Enabled = false;
    EXPECT_EQ(Press(pane, shortcut.key).code, 0) << shortcut.key;
  }
}

TEST_F(PaneInputTest, AShortcutNeedsCtrlAlone) {
  editor.menus("mnuEditUndo").Click = [] { ADD_FAILURE(); };
  editor.mnuEditUndo.Enabled = true;
  for (const int shifts : {0, shift::kShift, shift::kCtrl | shift::kShift, shift::kCtrl | shift::kAlt}) {
    EXPECT_EQ(Press(pane, 'Z', shifts).code, 'Z') << shifts;
  }
  EXPECT_EQ(Press(pane, 'J').code, 'J') << "no entry's key";
}

TEST_F(PaneInputTest, KeysAndClicksKeepTheCaretTheSelectionAndTheLineNumber) {
  pane.Text = "ab\r\ncd";
  pane.Select({4, 2});
  Press(pane, 'D', 0);
  EXPECT_EQ(editor.Joystick.Caret, 4U);
  EXPECT_EQ(mum.StatusBar.Panels(3).Text.Get(), "Line no: 2");
  pane.Select({1, 3});
  Key key{'D', 0};
  pane.KeyUp(key);
  EXPECT_EQ(editor.Joystick.Caret, 1U);
  EXPECT_EQ(editor.Joystick.SelLength, 3U);
  EXPECT_EQ(mum.StatusBar.Panels(3).Text.Get(), "Line no: 1");
  pane.Select({5, 1});
  pane.Click();
  EXPECT_EQ(editor.Joystick.Caret, 5U);
  EXPECT_EQ(editor.Joystick.SelLength, 1U);
  pane.Select({0, 2});
  pane.MouseUp({1, 0, {}, {}});
  EXPECT_EQ(editor.Joystick.Caret, 0U);
  EXPECT_EQ(editor.Joystick.SelLength, 2U);
  EXPECT_EQ(mum.StatusBar.Panels(3).Text.Get(), "Line no: 1");
}

TEST_F(PaneInputTest, LosingTheFocusRemembersTheSelection) {
  pane.Text = "abcd";
  pane.SetFocus();
  pane.Select({1, 3});
  editor.Combo1.SetFocus();
  EXPECT_EQ(editor.Joystick.SelLength, 3U);
}

TEST_F(PaneInputTest, AChangeForgetsTheSelectionAlsoWhileAFileIsLoaded) {
  pane.Text = "abcd";
  for (const int loading : {0, 1}) {
    editor.Joystick.SelLength = 3;
    program.application.workbench.values.LoadingFile = loading;
    pane.SelText = "x";
    EXPECT_EQ(editor.Joystick.SelLength, 0U);
  }
  program.application.workbench.values.LoadingFile = 0;
}

TEST_F(PaneInputTest, WhatCodeWritesWhileAFileIsLoadedIsNoEdit) {
  program.application.workbench.values.LoadingFile = 1;
  pane.Text = "abcd";
  program.application.workbench.values.LoadingFile = 0;
  EXPECT_EQ(editor.Joystick.Dirty, saved::kNoText);
  EXPECT_FALSE(editor.mnuEditUndo.Enabled);
  pane.SelText = "x";
  EXPECT_EQ(editor.Joystick.Dirty, saved::kModified);
  EXPECT_TRUE(editor.mnuEditUndo.Enabled);
}

TEST_F(PaneInputTest, TheMacroFilesHandlersKeepTheMacroFilesMemories) {
  editor.MacroText.Text = "ab\r\ncd";
  editor.MacroText.SetFocus();
  editor.MacroText.Select({4, 1});
  editor.MacroText.Click();
  EXPECT_EQ(editor.Macro.Caret, 4U);
  EXPECT_EQ(editor.Macro.SelLength, 1U);
  EXPECT_EQ(editor.Joystick.Caret, 0U);
  EXPECT_EQ(mum.StatusBar.Panels(3).Text.Get(), "Line no: 2");
}

TEST_F(PaneInputTest, ADragWithinAFileIsOneStepOfUndo) {
  pane.Text = "one two";
  const int before = editor.Joystick.Undo.UndoSteps();
  pane.UserMoved({0, 4}, 7);
  EXPECT_EQ(pane.Text.Get(), "twoone ");
  EXPECT_EQ(editor.Joystick.Undo.UndoSteps(), before + 1);
  editor.mnuEditUndo_Click();
  EXPECT_EQ(pane.Text.Get(), "one two");
}

}  // namespace
}  // namespace tarvik
