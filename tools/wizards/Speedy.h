// Speedy: what the macro wizard works with, on three tabs and without the lessons.
#pragma once

#include "tools/wizards/GuidedForm.h"
#include "tools/wizards/MacroMaker.h"

namespace tarvik {

class Speedy : public GuidedForm, public MacroMaker {
 public:
  explicit Speedy(Workbench& bench, Shell& shell);

  TabPages SSTab1{*this, "SSTab1", {"Toolbox", "Macro heading", "Create macro"}};

  void SSTab1_Click();
};

}  // namespace tarvik
