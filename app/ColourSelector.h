// The small window beside the toolbar's swatch, in which the user picks a colour for the selected text.
#pragma once

#include "app/Application.h"
#include "controls/Controls.h"

namespace tarvik {

class ColourSelector : public Form {
 public:
  static constexpr int kColours = 6;

  explicit ColourSelector(Application& application);

  ControlArray<CommandButton> Command1{*this, "Command1", kColours};
  ControlArray<Label> Label1{*this, "Label1", kColours};

  void Form_Activate();
  void Form_Deactivate() { Visible = false; }
  void Form_LostFocus() { Visible = false; }
  void Command1_Click(int index);

 private:
  Application& application_;
};

}  // namespace tarvik
