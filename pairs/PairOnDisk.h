// A joystick file and its macro file as they stand on the disk, with their models.
#pragma once

#include <filesystem>
#include <string>

#include "language/FilePair.h"
#include "language/JoystickFile.h"
#include "platform/Outcome.h"

namespace tarvik::pairs {

/// A file and what stands in it, in the code page. A file that is not there has no path.
struct FileOnDisk {
  std::filesystem::path path = {};
  std::string text = {};
};

class PairOnDisk {
 public:
  PairOnDisk(FileOnDisk joystick, FileOnDisk macros);

  /// A joystick file together with its macro file, or a macro file alone. The failure names the file.
  [[nodiscard]] static Outcome<PairOnDisk> Read(const std::filesystem::path& file);

  [[nodiscard]] const FileOnDisk& joystick() const { return joystick_; }
  [[nodiscard]] const FileOnDisk& macros() const { return macros_; }

  /// Both with all that is known of them. It refers to this pair.
  [[nodiscard]] model::FilePair View() const;

 private:
  FileOnDisk joystick_;
  FileOnDisk macros_;
  std::string joystickName_;
  std::string macroName_;
  model::JoystickFile joystickModel_;
  model::MacroFile macroModel_;
};

}  // namespace tarvik::pairs
