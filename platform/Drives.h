// Where the drives of the program lie on the host: turns paths such as c:\tm\f22\file.f22 into host paths and
// back. The real files, the file dialogs and the starting of programs use it.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/LogicalNames.h"
#include "platform/LogicalPath.h"
#include "platform/Outcome.h"

namespace tarvik {

/// Whether a folder lies there; false where nobody can tell.
[[nodiscard]] bool IsFolder(const std::filesystem::path& host);

/// Logical paths are in the code page and mean the same in either case; host paths are UTF-8. Each name of a
/// host's folder has a logical name of its own (`LogicalNames`).
class Drives {
 public:
  /// Drive letter to host folder. Drive z is the root of the host's file system, whatever stands here.
  using Folders = std::map<char, std::string>;

  /// What lies in a folder: a file's name, in its own case where that is its logical one, and its place.
  struct Entry {
    std::string name;
    std::filesystem::path host;
  };

  explicit Drives(const Folders& folders);

  /// The existing file or folder of that path. The failure has the system's code: with ENOENT there is none,
  /// with any other that is not known.
  [[nodiscard]] Outcome<std::filesystem::path> ToHost(std::string_view path) const;

  /// Where writing to that path has to go: to the file that the path means, a link without a target included,
  /// and where there is none to a new one with the lower-case name. A failure if the folder is not there, the
  /// name cannot be one, or nobody knows what is there.
  [[nodiscard]] Outcome<std::filesystem::path> ToHostNew(std::string_view path) const;

  /// The path of a host file on the drive whose folder holds it most closely; the path is held to it. One
  /// that is not there yet gets the lower-case name where nobody has that. Empty for the empty path.
  std::string FromHost(const std::filesystem::path& host);

  /// From now on the path means that host file, there or not, and no other one: a file that comes or goes
  /// beside it changes nothing.
  void Hold(std::string_view path, const std::filesystem::path& host);

  /// All that is in the folder, in no order; nothing where it cannot be looked at.
  [[nodiscard]] std::vector<Entry> EntriesOf(std::string_view folder) const;

  /// Makes the drive of `path` the current one. Fails for a drive whose folder does not exist.
  Outcome<> ChangeDrive(std::string_view path);
  /// Makes `path` the current folder of its drive; the current drive stays. Fails for what is no folder.
  Outcome<> ChangeFolder(std::string_view path);
  /// The current folder of the current drive, as "c:\tm"; "c:\" for the root.
  [[nodiscard]] std::string CurrentFolder() const { return FullPath("."); }
  /// The path from the root of its drive, in lower case; it may be relative. Empty for the empty path.
  [[nodiscard]] std::string FullPath(std::string_view path) const;
  /// Gives a drive another folder from now on, or takes it away where `folder` is empty. No path on it is
  /// held any more, and its current folder is its root. Drive z stays what it is.
  void SetFolder(char letter, const std::string& folder);
  /// The host folder of each drive, there or not; that of z too.
  [[nodiscard]] const std::map<char, std::filesystem::path>& HostFolders() const { return folders_; }

 private:
  [[nodiscard]] Outcome<std::filesystem::path> Find(const LogicalPath& path) const;
  [[nodiscard]] std::string NameOf(const LogicalNames& names, LogicalPath folder,
                                   const std::filesystem::path& host) const;

  std::map<char, std::filesystem::path> folders_;
  std::map<std::string, std::filesystem::path> held_;
  CurrentFolders current_;
};

}  // namespace tarvik
