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

  // What they do.
  void OpenMacroFile();
  void CreateFile();
  void SaveFile();
  void ShowComposer();
  void GoToStart();
  void StartOver();
  void ShowMDEF();
  void InsertPortB();
  void ShowRATE();

 private:
  InsertOptions& ComposerAt(int page);

  Workbench& bench_;
  Shell& shell_;
};

}  // namespace tarvik
