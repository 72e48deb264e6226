// The disk as the program sees it: paths with drive letters and backslashes, as in c:\tm\f22\file.f22, in the
// Windows-1252 code page. Names are looked up without regard to case.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Outcome.h"

namespace tarvik {

/// What the disk tells of a file without reading it: where one of these is another one, the file may be.
struct FileState {
  std::uint64_t size = 0;
  std::uint64_t identity = 0;  ///< another one where a file took its place
  std::int64_t modified = 0;   ///< nanoseconds, and the next one too
  std::int64_t changed = 0;    ///< also at what only touches its times or its permissions

  bool operator==(const FileState&) const = default;
};

class Files {
 public:
  virtual ~Files() = default;

  /// True for an existing file that is not a folder. A name that cannot be one (with quotation marks,
  /// wildcards, empty) is simply a file that does not exist. False as well where the system does not tell:
  /// who would write over the file asks `Read`, whose failure 53 alone says that there is none.
  [[nodiscard]] virtual bool FileExists(std::string_view path) const = 0;
  [[nodiscard]] virtual bool FolderExists(std::string_view path) const = 0;

  /// The names of the folder's files that end so, as ".rtf", in whatever case; sorted. None where there is no
  /// such folder.
  [[nodiscard]] virtual std::vector<std::string> FilesIn(std::string_view folder,
                                                         std::string_view ending) const = 0;

  /// The names of the folder's folders, sorted.
  [[nodiscard]] virtual std::vector<std::string> FoldersIn(std::string_view folder) const = 0;

  /// The letters of the drives that are there.
  [[nodiscard]] virtual std::string DriveLetters() const = 0;

  /// The failure of a file that is not there is `error::kFileNotFound`; after any other one nobody knows.
  [[nodiscard]] virtual Outcome<FileState> State(std::string_view path) const = 0;

  /// The whole content, byte for byte. A file that is larger than `kLargestFile` is a failure.
  [[nodiscard]] virtual Outcome<std::string> Read(std::string_view path) const = 0;

  /// Replaces or creates the file in one step: afterwards the disk holds the whole old content or the whole
  /// new one. A file that may not be written, a folder of that name and a missing folder are failures.
  virtual Outcome<> Write(std::string_view path, std::string_view content) = 0;

  /// As `Write`. Afterwards nobody may read or write the file who may not do so with the file `of`, but its
  /// owner.
  virtual Outcome<> WriteCopy(std::string_view path, std::string_view content, std::string_view of) = 0;

  /// Takes a file away; of a link the link alone. A folder is a failure.
  virtual Outcome<> Delete(std::string_view path) = 0;

  /// Creates one folder; its parent must exist.
  virtual Outcome<> MakeFolder(std::string_view path) = 0;

  /// Makes the drive of `path` the current one. Fails for a drive that is not there.
  virtual Outcome<> ChangeDrive(std::string_view path) = 0;
  /// Makes `path` the current folder of its drive; the current drive stays. Fails for what is no folder.
  virtual Outcome<> ChangeFolder(std::string_view path) = 0;
};

/// As `Files::Write`, and has succeeded when the file, read again, holds the content.
[[nodiscard]] Outcome<> WriteAndRead(Files& files, std::string_view path, std::string_view content);
/// The same with `Files::WriteCopy`.
[[nodiscard]] Outcome<> WriteAndReadCopy(Files& files, std::string_view path, std::string_view content,
                                         std::string_view of);

}  // namespace tarvik
