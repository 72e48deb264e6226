// A document beside what another program wrote into its file.
#pragma once

#include "tools/recovery/SideBySide.h"

namespace tarvik {

class CompareTexts : public ToolForm {
 public:
  CompareTexts(Workbench& bench, Shell& shell);

  Label Label1{*this, "Label1"};
  SideBySide texts{*this, bench_, "FileText", "DocumentText"};
  CommandButton Command1{*this, "Command1", "&Next difference", &CompareTexts::Command1_Click};
  CommandButton Command2{*this, "Command2", "&Close", &CompareTexts::Close};

  void Command1_Click() { texts.GoToNext(); }

 private:
  void Fill(const Comparison& comparison);

  Connection shown_;
};

}  // namespace tarvik
