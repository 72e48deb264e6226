#include "tools/wizards/Speedy.h"

#include "Words.h"

namespace tarvik {
namespace {

constexpr int kMacroTab = 2;

constexpr MacroMaker::Command kSpeedyCommands[] = {
    {"OK", &MacroMaker::CloseForm},
    {"New macro file please", &MacroMaker::CreateFile},
    {"Insert a title please", &MacroMaker::InsertTitle},
};

}  // namespace

Speedy::Speedy(Workbench& bench, Shell& shell)
    : GuidedForm("Speedy", words::kSpeedy, bench, shell), MacroMaker(*this, bench, shell, kSpeedyCommands) {
  Caption = "Speedy - for fast macro files";
  SSTab1.Click = [this] { SSTab1_Click(); };
}

void Speedy::SSTab1_Click() {
  if (SSTab1.Tab == kMacroTab) PrepareMacro();
}

}  // namespace tarvik
