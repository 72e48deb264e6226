// Files of a given size, made of what users write.
#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "text/RichText.h"

namespace tarvik::bench {

/// A real joystick file over and over, up to about `bytes`.
inline std::string JoystickFile(std::size_t bytes) {
  std::ifstream in(TARVIK_DATA "/samples/strike.b50", std::ios::binary);
  const std::string file{std::istreambuf_iterator<char>(in), {}};
  std::string text;
  while (text.size() < bytes) text += file.substr(0, bytes - text.size());
  return text.substr(0, text.rfind('\n') + 1);
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
