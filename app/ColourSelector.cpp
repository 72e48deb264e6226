#include "app/ColourSelector.h"

namespace tarvik {

ColourSelector::ColourSelector(Workbench& bench, Shell& shell) : ToolForm("ColourSelector", bench, shell) {
  for (int i = 0; i < kColours; ++i) {
    Command1(i).Caption = kColourChoices[i].caption;
    Command1(i).Click = [this, i] { Command1_Click(i); };
  }
  Activate = [this] { Form_Activate(); };
  Deactivate = [this] { Form_Deactivate(); };
}

void ColourSelector::Form_Activate() {
  for (int i = 0; i < kColours; ++i) Label1(i).BackColor = kColourChoices[i].In(bench_.settings);
}

void ColourSelector::Command1_Click(int index) {
  const Colour colour = Label1(index).BackColor;
  bench_.documents.swatch.BackColor = colour;
  bench_.highlighter.ColourSelection(colour);
  bench_.documents.UpdateSavedIcon();
  bench_.documents.FocusActiveText();
  Visible = false;
}

}  // namespace tarvik
