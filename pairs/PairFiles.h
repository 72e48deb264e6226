// Which files on the disk belong together, and what stands in them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/Outcome.h"

namespace tarvik::pairs {

/// What a file is by its ending, in either case.
enum class Role { Joystick, Macros, None };
[[nodiscard]] Role RoleOf(const std::filesystem::path& file);

/// A text as the program reads it: in the code page, whatever the file is in.
[[nodiscard]] Outcome<std::string> ReadText(const std::filesystem::path& file);

/// The macro file of a joystick file: the one beside it that its last MDEF names, no matter in which case,
/// and without an MDEF the one of its own name. Empty where there is none.
[[nodiscard]] std::filesystem::path MacroFileOf(const std::filesystem::path& joystick, std::string_view text);

/// The joystick and macro files in a folder and those below it, sorted.
[[nodiscard]] Outcome<std::vector<std::filesystem::path>> FilesIn(const std::filesystem::path& folder);

}  // namespace tarvik::pairs
