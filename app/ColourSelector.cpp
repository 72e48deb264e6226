#include "app/ColourSelector.h"

#include "app/Editor.h"
#include "app/Mum.h"

namespace tarvik {

ColourSelector::ColourSelector(Application& application) : Form("ColourSelector"), application_(application) {
  for (int i = 0; i < kColours; ++i) {
    Command1(i).Caption = kColourChoices[i].caption;
    Command1(i).Click = [this, i] { Command1_Click(i); };
  }
  Activate = [this] { Form_Activate(); };
  Deactivate = [this] { Form_Deactivate(); };
}

void ColourSelector::Form_Activate() {
  for (int i = 0; i < kColours; ++i) Label1(i).BackColor = kColourChoices[i].In(application_.settings);
}

void ColourSelector::Command1_Click(int index) {
  const Colour colour = Label1(index).BackColor;
  application_.mum().Picture1.BackColor = colour;
  if (Editor& editor = application_.editor(); editor.Visible) editor.ColourSelection(colour);
  Visible = false;
}

}  // namespace tarvik
