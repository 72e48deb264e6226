// Paths as the program writes them, c:\tm\f22\file.f22 in the code page, taken apart. Every kind of `Files`
// reads the paths it is given through this.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

/// A path from the root of its drive. `names` are spelled as given.
struct LogicalPath {
  char drive = 'c';  ///< lower case
  std::vector<std::string> names{};
  bool mustBeFolder = false;  ///< it ended in a separator

  /// The text of the path in lower case: "c:\" for the root, "c:\tm\f22" for a folder.
  [[nodiscard]] std::string Text() const;
};

[[nodiscard]] bool IsDriveLetter(char character);

/// False for a character that no name on a drive can hold: quotation marks, wildcards, < > | and control
/// characters. The colon is not among them, since hosts have it in ordinary names.
[[nodiscard]] bool IsNameCharacter(char character);
[[nodiscard]] bool IsName(std::string_view name);

/// The current drive, and the current folder of each drive.
class CurrentFolders {
 public:
  /// The whole path of `path`, which may be relative: "name" to the current folder of the current drive,
  /// "\name" to that drive's root, "d:name" to the current folder of drive d. Nothing for the empty path.
  [[nodiscard]] std::optional<LogicalPath> Complete(std::string_view path) const;

  [[nodiscard]] char drive() const { return drive_; }
  void SetDrive(char drive) { drive_ = drive; }
  /// Makes `folder` the current one of its drive. The current drive stays.
  void SetFolder(const LogicalPath& folder);

 private:
  char drive_ = 'c';
  std::array<std::vector<std::string>, 26> folders_;
};

}  // namespace tarvik
