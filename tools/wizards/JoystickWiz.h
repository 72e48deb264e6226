// The joystick wizard: pages that lead a beginner to a first joystick file and work the Composer on the way.
#pragma once

#include "tools/wizards/Wizard.h"

namespace tarvik {

class InsertOptions;

class JoystickWiz : public Wizard {
 public:
  explicit JoystickWiz(Workbench& bench, Shell& shell);

  ControlArray<Frame>& JoyWizFrame = frames;
  ControlArray<CommandButton>& Command1 = buttons;
  ControlArray<CommandButton> BTNinFrame;

  void BTNinFrame_Click(int index);

  // The commands of the buttons.
  void OpenMacroFile() { bench_.files.Load(bench_.documents.macro); }
  void CreateFile() { bench_.NewFile(bench_.documents.joystick); }
  void SaveFile() { bench_.files.Save(bench_.documents.Active()); }
  void ShowComposer();
  void GoToStart();
  void StartOver();
  void ShowMDEF();
  void InsertPortB();
  void ShowRATE();

 private:
  InsertOptions& ComposerAt(int page);
};

}  // namespace tarvik
