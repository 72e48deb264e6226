// A document beside what another program wrote into its file.
#pragma once

#include "tools/recovery/SideBySide.h"

namespace tarvik {

class CompareTexts : public ToolForm {
 public:
  CompareTexts(Workbench& bench, Shell& shell);

  Label Explanation{*this, "Explanation"};
  SideBySide texts{*this, bench_, "FileText", "DocumentText"};
  CommandButton NextDifference{*this, "NextDifference", "&Next difference",
                               &CompareTexts::NextDifference_Click};
  CommandButton Done{*this, "Done", "&Close", &CompareTexts::Close};

  void NextDifference_Click() { texts.GoToNext(); }

 private:
  void Fill(const Comparison& comparison);

  Connection shown_;
};

}  // namespace tarvik
