// Files of a given size, made of what users write.
#pragma once

#include <string>
#include <vector>

#include "panes/RichText.h"

namespace tarvik::bench {

/// A joystick file: the lines of a real one, over and over, up to about `bytes`.
inline std::string JoystickFile(std::size_t bytes) {
  constexpr const char* kLines[] = {
      "Rem ------------------------------------------\r\n",
      "Rem          Weapons and countermeasures\r\n",
      "Rem ------------------------------------------\r\n",
      "\r\n",
      "USE TQS\r\n",
      "MDEF strike\r\n",
      "RATE 30\r\n",
      "BTN S1 /P Fire_Cannon /R RAW (1E 9E) DLY(60)\r\n",
      "BTN H1U /U Look_Forward /M Look_Up /D Map_Zoom_In\r\n",
      "BTN H2L /I Radar_Left /O Target_Previous        Rem S3 is the second shift\r\n",
      "BTN TG1 /T /P Gear_Down DLY(120) Flaps_Down /R Airbrake_Close\r\n",
      "RNG 1 8 Radar_Range_Up Radar_Range_Down\r\n",
      "ANT 1 12 Antenna_Up Antenna_Down Antenna_Centre\r\n",
      "DEF X5 X4 AND NOT X3 OR DELAY(1000)\r\n",
      "BTN X5 RPT(3) Chaff_Release\r\n",
      "PortB1 IS TG1\r\n",
      "~ a line that nobody reads\r\n",
  };
  std::string text;
  for (std::size_t i = 0; text.size() < bytes; ++i) text += kLines[i * 7 % std::size(kLines)];
  return text;
}

inline std::vector<std::string> Names(std::size_t count) {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < count; ++i)
    names.push_back("Macro_" + std::to_string(i * 7919 % count) + "_Key");
  return names;
}

/// Headings of the ruled kind with the macros evenly below them.
inline std::string MacroFile(std::size_t macros, std::size_t headings) {
  const std::vector<std::string> names = Names(macros);
  std::string text;
  for (std::size_t i = 0; i < macros; ++i) {
    if (i % (macros / headings) == 0) {
      text += "Rem -----------\r\nRem          HEADING " + std::to_string(i) + "\r\nRem -----------\r\n";
    }
    text += names[i] + " = SHF a DLY(60)\r\n";
  }
  return text;
}

}  // namespace tarvik::bench
