// A joystick file and a macro file that belong together, as all that judges them or looks names up is handed
// them. It refers to texts and models, which must outlive it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "language/MacroFile.h"

namespace tarvik::model {

enum class FileKind : std::uint8_t { Joystick, Macros };

/// What is attached, by the numbers of Controllers.h. Nothing stands for what is not known.
struct Hardware {
  std::optional<int> joystick = {};
  std::optional<int> throttle = {};
  std::optional<int> rudders = {};

  friend bool operator==(const Hardware&, const Hardware&) = default;
};

/// What the two files are called on the disk, with their endings and without a folder. Empty for a file that
/// has no name yet.
struct FileNames {
  std::string_view joystick = {};
  std::string_view macros = {};
  bool noMacroFile = false;  ///< it was looked for beside the joystick file, and is not there
};

struct FilePair {
  const JoystickFile& joystick;
  std::string_view joystickText;
  const MacroFile& macros;
  std::string_view macroText;
  Hardware hardware = {};
  FileNames names = {};
};

/// What the USE statements of the file say is attached, and what `known` says of all they leave open. Where
/// they contradict each other nothing is known.
[[nodiscard]] Hardware AttachedHardware(const JoystickFile& file, std::string_view text, Hardware known);

}  // namespace tarvik::model
