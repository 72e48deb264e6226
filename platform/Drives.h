// Where the drives of the program lie on the host: turns paths such as c:\tm\f22\file.f22 into host paths and
// back. The real files, the file dialogs and the starting of programs use it.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "platform/LogicalPath.h"
#include "platform/Outcome.h"

namespace tarvik {

/// Logical paths are in the code page and found in either case; host paths are UTF-8. A character of a host
/// name that no logical name can hold stands as "?" in it.
class Drives {
 public:
  /// Drive letter to host folder. Drive z is the root of the host's file system, whatever stands here.
  using Folders = std::map<char, std::string>;

  explicit Drives(const Folders& folders);

  /// The existing file or folder of that path: the one that `FromHost` gave the path to; else, name by name,
  /// the exact name, or the only one that is the same but for its case. A "?" finds only what `FromHost`
  /// writes as "?". The failure has the system's code: with ENOENT there is none, with any other that is not
  /// known.
  [[nodiscard]] Outcome<std::filesystem::path> ToHost(std::string_view path) const;

  /// Where writing to that path has to go: to the file that is there, a link without a target included, and
  /// otherwise to a new one with the lower-case name. A path from `FromHost` never leads to another file
  /// that is there already than the one it was given for. A failure if the folder is not there, the name
  /// cannot be one, or nobody knows what is there.
  [[nodiscard]] Outcome<std::filesystem::path> ToHostNew(std::string_view path) const;

  /// The path of a host file, existing or not, in lower case, on the drive whose folder holds it most
  /// closely. Since two files may get the same path, `host` is remembered: that path means this file until it
  /// means a later one. Empty for the empty path.
  std::string FromHost(const std::filesystem::path& host);

  /// Makes the drive of `path` the current one. Fails for a drive whose folder does not exist.
  Outcome<> ChangeDrive(std::string_view path);
  /// Makes `path` the current folder of its drive; the current drive stays. Fails for what is no folder.
  Outcome<> ChangeFolder(std::string_view path);
  /// The current folder of the current drive, as "c:\tm"; "c:\" for the root.
  [[nodiscard]] std::string CurrentFolder() const { return FullPath("."); }
  /// The path from the root of its drive, in lower case; it may be relative. Empty for the empty path.
  [[nodiscard]] std::string FullPath(std::string_view path) const;
  /// Gives a drive another folder from now on, or takes it away where `folder` is empty. What was picked on
  /// it is forgotten, and its current folder is its root. Drive z stays what it is.
  void SetFolder(char letter, const std::string& folder);
  /// The host folder of each drive, there or not; that of z too.
  [[nodiscard]] const std::map<char, std::filesystem::path>& HostFolders() const { return folders_; }

 private:
  [[nodiscard]] Outcome<std::filesystem::path> Find(const LogicalPath& path) const;

  std::map<char, std::filesystem::path> folders_;
  std::map<std::string, std::filesystem::path> picked_;
  std::map<std::string, std::filesystem::path> holders_;  ///< of picked files: the folders on the way to them
  CurrentFolders current_;
};

}  // namespace tarvik
