// The small window beside the toolbar's swatch, in which the user picks a colour for the selected text.
#pragma once

#include "workbench/ColourChoices.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class ColourSelector : public ToolForm {
 public:
  static constexpr int kColours = std::size(kColourChoices);

  explicit ColourSelector(Workbench& bench, Shell& shell);

  ControlArray<CommandButton> Command1{*this, "Command1", kColours};
  ControlArray<Label> Label1{*this, "Label1", kColours};

  void Form_Activate();
  void Form_Deactivate() { Visible = false; }
  void Form_LostFocus() { Visible = false; }
  void Command1_Click(int index);
};

}  // namespace tarvik
