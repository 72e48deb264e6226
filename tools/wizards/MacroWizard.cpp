#include "tools/wizards/MacroWizard.h"

#include "Words.h"

namespace tarvik {
namespace {

constexpr int kMacroPage = 12;

constexpr Wizard::Traits kMacroWizard = {
    "MacroWizard", "Tarvik Macro file wizard", "MacroWizFrame", "CommandAll", "Finish",
    kMacroPage,    words::kMacroWizard};

constexpr MacroMaker::Command kOwnCommands[] = {
    {"New macro file please", &MacroMaker::CreateAndSaveFile},
    {"Insert a title please", &MacroMaker::InsertTitle},
    {"Introduce me to Pimlet", &MacroMaker::ShowPimlet},
};

}  // namespace

MacroWizard::MacroWizard(Workbench& bench, Shell& shell)
    : Wizard(kMacroWizard, bench, shell), MacroMaker(*this, bench, shell, kOwnCommands) {}

void MacroWizard::Turned() {
  if (Page != kMacroPage) return Wizard::Turned();
  PrepareMacro();
}

}  // namespace tarvik
