// The log as it grows, for somebody who looks for a fault.
#pragma once

#include "controls/Controls.h"
#include "workbench/Shell.h"

namespace tarvik {

class LogForm : public Form {
 public:
  explicit LogForm(Workbench& bench, Shell& shell);

  Label Label1{*this, "Label1"};
  ListBox List1{*this, "List1"};
  CommandButton cmdCopy{*this, "cmdCopy", "&Copy"};
  CommandButton cmdOK{*this, "cmdOK", "&OK"};

  /// All of it, for a message to somebody else.
  void cmdCopy_Click();

 private:
  void ShowLines();

  Workbench& bench_;
  Connection written_;
};

}  // namespace tarvik
