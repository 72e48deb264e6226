#include "tools/recovery/CompareTexts.h"

namespace tarvik {

CompareTexts::CompareTexts(Workbench& bench, Shell& shell) : ToolForm("CompareTexts", bench, shell) {
  Caption = "Two versions of a file";
  Explanation.BackColor = ToggleLabel::kOff;
  Done.ToolTipText = "Leaves both as they are";
  Done.Cancel = true;
  shown_ = bench.foreign.WantsComparison.Connect([this](const Comparison& comparison) { Fill(comparison); });
}

void CompareTexts::Fill(const Comparison& comparison) {
  texts.Show(comparison.inFile, comparison.here);
  NextDifference.Enabled = texts.Differ();
  Explanation.Caption =
      comparison.file + (texts.Differ() ? " differs in the marked lines from the text in the editor."
                                        : " holds the same text as the editor.");
}

}  // namespace tarvik
