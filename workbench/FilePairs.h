// Which two files belong together. They lie side by side: a macro file has its joystick file under its own
// name, and a joystick file says which macro file it uses.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "workbench/Document.h"

namespace tarvik {

/// A file by its path, and its name there.
struct NamedFile {
  std::string path;
  FileName name;
};

/// The file of a path in lower case; nothing where it names none.
[[nodiscard]] std::optional<NamedFile> FileAt(const std::string& path);

/// The last three characters, whatever they are: how the program tells files apart.
[[nodiscard]] std::string_view Ending(std::string_view name);
[[nodiscard]] std::string WithEnding(std::string name, std::string_view ending);
/// Whether the name has the ending that this file has with any of the controllers.
[[nodiscard]] bool IsJoystickFile(std::string_view name);
[[nodiscard]] bool IsMacroFile(std::string_view name);

/// Where the joystick file of a macro file would be.
[[nodiscard]] std::optional<NamedFile> JoystickFileBeside(const NamedFile& macro);
/// The word after the last "MDEF" in the joystick file, also one in a comment, names the macro file beside
/// it, and nothing beyond its folder: a word that is no name of a file names none. Without the word the path
/// ends in a point, and such a file does not normally exist. The caret goes behind what was found.
[[nodiscard]] std::optional<NamedFile> MacroFileNamedIn(Document& joystick);

}  // namespace tarvik
