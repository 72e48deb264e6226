// The small window that stands while a program is waited for. Its button, or closing it, stops the program.
#pragma once

#include "workbench/ToolForm.h"

namespace tarvik {

class ProgramWait : public ToolForm {
 public:
  explicit ProgramWait(Workbench& bench, Shell& shell);

  Label Label1{*this, "Label1"};
  CommandButton Command1{*this, "Command1", "&Stop the program"};
  /// At each tick the wait looks whether the program still runs.
  Timer Timer1{*this, "Timer1"};

  /// For how many milliseconds the window has stood.
  Property<int> Waited{*this, "Waited", 0};

  void Command1_Click() { Close(); }
  void Timer1_Timer() { Waited = Waited + Timer1.Interval; }
};

}  // namespace tarvik
