// The small window that stands while a program is waited for. Its button, or closing it, stops the program.
#pragma once

#include "controls/Controls.h"
#include "workbench/Shell.h"

namespace tarvik {

class ProgramWait : public Form {
 public:
  explicit ProgramWait(Workbench& bench, Shell& shell);

  Label Label1{*this, "Label1"};
  CommandButton Command1{*this, "Command1", "&Stop the program"};
  /// Has the wait look at the program.
  Timer Timer1{*this, "Timer1"};

  /// Milliseconds that it has stood.
  Property<int> Waited{*this, "Waited", 0};

  void Command1_Click() { shell_.Unload(*this); }
  void Timer1_Timer() { Waited = Waited + Timer1.Interval; }

 private:
  Shell& shell_;
};

}  // namespace tarvik
