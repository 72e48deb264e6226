// The colours of the settings by the kinds of text that have them, in the order in which the user picks one.
#pragma once

#include "workbench/Settings.h"

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

}  // namespace tarvik
