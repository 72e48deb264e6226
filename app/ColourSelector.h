// The small window beside the toolbar's swatch, in which the user picks a colour for the selected text.
#pragma once

#include "app/Application.h"
#include "controls/Controls.h"

namespace tarvik {

/// A kind of text, and the setting with its colour.
struct ColourChoice {
  const char* caption;
  Property<Colour> Settings::*setting;  ///< null: black

  [[nodiscard]] Colour In(const Settings& settings) const {
    return setting ? (settings.*setting).Get() : kBlack;
  }
};

inline constexpr ColourChoice kColourChoices[] = {
    {"Buttons", &Settings::BTNColour},  {"Slash", &Settings::SlashColour},
    {"Raw, Dly", &Settings::RAWColour}, {"Misc", &Settings::MiscellaneousColour},
    {"Rem", &Settings::RemStatements},  {"Black", nullptr},
};

class ColourSelector : public Form {
 public:
  static constexpr int kColours = std::size(kColourChoices);

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
