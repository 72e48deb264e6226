#include "tools/programs/ProgramWait.h"

namespace tarvik {

ProgramWait::ProgramWait(Workbench& bench, Shell& shell) : ToolForm("ProgramWait", bench, shell) {
  constexpr int kLook = 50;  // milliseconds
  Caption = "Please wait ...";
  Label1.BackColor = ToggleLabel::kOff;
  Command1.ToolTipText = "Ends a program that does not end by itself";
  Command1.Click = [this] { Command1_Click(); };
  Timer1.Interval = kLook;
  Timer1.Elapsed = [this] { Timer1_Timer(); };
  Form::Load = [this] { Timer1.Enabled = true; };
}

}  // namespace tarvik
