// The workbench outlives the editor: what a user did before he closed it is nowhere to be found afterwards.
#include <gtest/gtest.h>

#include "app/Program.h"
#include "workbench/Workbench.h"

namespace tarvik {
namespace {

/// Every property below a component by its path. The place of a hidden pane tells nothing.
void Describe(const Component& part, const std::string& path, std::map<std::string, std::string>& state) {
  for (const PropertyBase* const property : part.Properties()) {
    state[path + "." + std::string(property->Name())] = property->ToText();
  }
  for (const Component* const child : part.Children())
    Describe(*child, path + "." + child->FullName(), state);
}

std::map<std::string, std::string> StateOf(const Program& program) {
  std::map<std::string, std::string> state;
  Describe(program.editor(), "Editor", state);
  Describe(program.application.workbench.documents, "Documents", state);
  return state;
}

TEST(Workbench, IsAsAtTheStartWhenTheEditorIsShownAgain) {
  Program program;
  const auto atFirst = StateOf(program);
  Editor& editor = program.editor();
  editor.JoystickText.SelText = std::string("BTN S1 Fire\r\nBTN S2 Gear\r\n");
  editor.mnuViewTileVertically_Click();
  editor.mnuViewWordWrap_Click();
  editor.mnuViewMacros_Click();
  editor.mnuAppsQuiet_Click();
  editor.mnuFileNewMacro_Click();
  editor.MacroText.SelText = std::string("Fire = f\r\nGear = g\r\n");
  editor.mnuPreferencesProtectMacroFile_Click();
  program.files().Put("c:\\tarvik\\a.m50", "Fire = f\r\n");
  program.application.workbench.files.OpenFavourite("c:\\tarvik\\a.m50");
  editor.mnuViewHighlightLine_Click();
  Key insert{45, 0};
  editor.MacroText.KeyDown(insert);
  program.outside.dialogs.answers = {Answer::No, Answer::No};
  ASSERT_NE(StateOf(program), atFirst);

  ASSERT_TRUE(program.application.CloseEditor());
  const StatusBar& status = program.application.mum().StatusBar;
  EXPECT_EQ(status.Panels(2).Picture, 1);  // nothing is there to be saved
  EXPECT_TRUE(status.Panels(5).Enabled);
  program.application.ShowEditor();
  const auto again = StateOf(program);
  for (const auto& [property, value] : atFirst) {
    const auto found = again.find(property);
    ASSERT_NE(found, again.end()) << property;
    EXPECT_EQ(found->second, value) << property;
  }
  EXPECT_EQ(again.size(), atFirst.size());
}

TEST(Workbench, ToolsMayHoldOnToItsDocuments) {
  Program program;
  Document& joystick = program.application.workbench.documents.joystick;
  joystick.text.SelText = std::string("BTN S1 Fire");
  program.outside.dialogs.answers = {Answer::No};
  ASSERT_TRUE(program.application.CloseEditor());
  EXPECT_EQ(joystick.text.Characters(), "");
  EXPECT_EQ(joystick.Dirty, saved::kNoText);
  EXPECT_EQ(joystick.Undo.UndoSteps(), 0);
  EXPECT_EQ(&program.editor().Joystick, &joystick);
}

}  // namespace
}  // namespace tarvik
