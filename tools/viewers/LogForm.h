// The log as it grows, for somebody who looks for a fault.
#pragma once

#include "controls/Controls.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class LogForm : public ToolForm {
 public:
  LogForm(Workbench& bench, Shell& shell);

  Label Label1{*this, "Label1"};
  ListBox List1{*this, "List1"};
  CommandButton cmdCopy{*this, "cmdCopy", "&Copy", &LogForm::cmdCopy_Click};
  CommandButton cmdOK{*this, "cmdOK", "&OK", &LogForm::Close};

  /// Copies the whole log, for a message to somebody else.
  void cmdCopy_Click();

 private:
  void ShowLines();

  Connection written_;
};

}  // namespace tarvik
