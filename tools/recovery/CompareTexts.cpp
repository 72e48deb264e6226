#include "tools/recovery/CompareTexts.h"

namespace tarvik {

CompareTexts::CompareTexts(Workbench& bench, Shell& shell) : ToolForm("CompareTexts", bench, shell) {
  Caption = "Two versions of a file";
  Label1.BackColor = ToggleLabel::kOff;
  Command2.ToolTipText = "Leaves both as they are";
  Command2.Cancel = true;
  shown_ = bench.foreign.WantsComparison.Connect([this](const Comparison& comparison) { Fill(comparison); });
}

void CompareTexts::Fill(const Comparison& comparison) {
  texts.Show(comparison.inFile, comparison.here);
  Command1.Enabled = texts.Differ();
  Label1.Caption =
      comparison.file + (texts.Differ() ? " differs in the marked lines from the text in the editor."
                                        : " holds the same text as the editor.");
}

}  // namespace tarvik
