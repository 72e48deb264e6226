// The macro wizard: pages that teach a beginner what macros are, and make a macro file on the way.
#pragma once

#include "tools/wizards/MacroMaker.h"
#include "tools/wizards/Wizard.h"

namespace tarvik {

class MacroWizard : public Wizard, public MacroMaker {
 public:
  explicit MacroWizard(Workbench& bench, Shell& shell);

  ControlArray<Frame>& MacroWizFrame = frames;
  ControlArray<CommandButton>& CommandAll = buttons;

 private:
  void Turned() override;
};

}  // namespace tarvik
