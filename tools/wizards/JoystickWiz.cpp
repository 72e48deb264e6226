#include "tools/wizards/JoystickWiz.h"

#include "Words.h"
#include "tools/composer/InsertOptions.h"

namespace tarvik {
namespace {

constexpr Wizard::Traits kTraits = {
    "JoystickWiz",         "Tarvik Joystick wizard", "JoyWizFrame", "Command1", "Finished", 10,
    words::kJoystickWizard};

struct Command {
  const char* toolTip;
  void (JoystickWiz::*run)();
};

constexpr Command kCommands[] = {
    {"Open up a macro file", &JoystickWiz::OpenMacroFile},
    {"Give me a new joystick file please", &JoystickWiz::CreateFile},
    {"Save this joystick file please", &JoystickWiz::SaveFile},
    {"Show me this Composer thing you're so proud of then", &JoystickWiz::ShowComposer},
    {"Put me in the correct position in the joystick file please.", &JoystickWiz::GoToStart},
    {"Clear the joystick file and insert a title please", &JoystickWiz::StartOver},
    {"Show the Composer and its MDEF section please ", &JoystickWiz::ShowMDEF},
    {"Insert a Port B thangy statement, oh whatever!", &JoystickWiz::InsertPortB},
    {"Show the Composer and its RATE section please ", &JoystickWiz::ShowRATE},
    {"Show the Composer with the main Composer tab selected please", &JoystickWiz::ShowComposer},
};

}  // namespace

JoystickWiz::JoystickWiz(Workbench& bench, Shell& shell)
    : Wizard(kTraits, bench, shell), BTNinFrame(*this, "BTNinFrame", std::size(kCommands)) {
  for (int i = 0; i < BTNinFrame.Count(); ++i) {
    BTNinFrame(i).Caption = std::string(kCommands[i].toolTip);
    BTNinFrame(i).ToolTipText = std::string(kCommands[i].toolTip);
    BTNinFrame(i).Click = [this, i] { BTNinFrame_Click(i); };
  }
}

void JoystickWiz::BTNinFrame_Click(int index) { (this->*kCommands[index].run)(); }

void JoystickWiz::GoToStart() {
  bench_.documents.tabs.Select(1);
  bench_.documents.joystick.text.SelStart = 0;
  bench_.documents.joystick.Caret = 0;
  bench_.documents.joystick.text.SetFocus();
}

/// One undo brings the text back.
void JoystickWiz::StartOver() {
  bench_.documents.joystick.Undo.BeginCommand(bench_.settings.UndoMax);
  bench_.documents.joystick.text.Text = std::string();
  GoToStart();
  shell_.Show(ToolId::Title);
}

InsertOptions& JoystickWiz::ComposerAt(int page) {
  shell_.Show(ToolId::Composer);
  auto& composer = shell_.Tool<InsertOptions>();
  composer.SSTab1.Tab = page;
  return composer;
}

void JoystickWiz::ShowComposer() { ComposerAt(InsertOptions::kComposer); }

void JoystickWiz::ShowMDEF() {
  InsertOptions& composer = ComposerAt(InsertOptions::kUse);
  composer.boxes("Text1(4)").SetFocus();
  composer.Command2(1).MakeDefault();
}

void JoystickWiz::ShowRATE() {
  InsertOptions& composer = ComposerAt(InsertOptions::kUse);
  composer.boxes("Text1(3)").Text = std::string("80");
  composer.boxes("Text1(3)").SetFocus();
  composer.Command2(0).MakeDefault();
}

/// Writes the game port's trigger for the first trigger and a line end, and hides the Composer.
void JoystickWiz::InsertPortB() {
  InsertOptions& composer = ComposerAt(InsertOptions::kComposer);
  composer.ArmPort();
  composer.mnuPort_Click(0);
  composer.mnuTrig_Click(0);
  composer.Command7_Click(0);
  composer.Command6_Click();
  bench_.documents.joystick.text.SetFocus();
}

}  // namespace tarvik
