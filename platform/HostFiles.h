// The host's disk behind the `Files` interface, for the running program.
#pragma once

#include <string>
#include <string_view>

#include "platform/Drives.h"
#include "platform/Files.h"
#include "platform/Outcome.h"

namespace tarvik {

/// Failures carry the system's errno and its text.
class HostFiles : public Files {
 public:
  explicit HostFiles(Drives& drives) : drives_(drives) {}

  [[nodiscard]] bool FileExists(std::string_view path) const override;
  [[nodiscard]] bool FolderExists(std::string_view path) const override;
  [[nodiscard]] std::vector<std::string> FilesIn(std::string_view folder,
                                                 std::string_view ending) const override;
  [[nodiscard]] std::vector<std::string> FoldersIn(std::string_view folder) const override;
  [[nodiscard]] std::string DriveLetters() const override;
  [[nodiscard]] Outcome<FileState> State(std::string_view path) const override;
  [[nodiscard]] Outcome<std::string> Read(std::string_view path) const override;

  /// A link stays a link: the file it leads to is replaced. A file keeps its mode and, as far as the system
  /// lets us, its owner and group, its access list and its attributes. One that has other names too, or that
  /// nothing may take the place of, is written in place. A file whose mode forbids writing is a failure, also
  /// for those whom no mode stops, and so is a new one in a folder of that kind. Temporary files that a
  /// process left beside it when it died go away an hour later.
  Outcome<> Write(std::string_view path, std::string_view content) override;

  Outcome<> WriteCopy(std::string_view path, std::string_view content, std::string_view of) override;
  Outcome<> Delete(std::string_view path) override;
  Outcome<> MakeFolder(std::string_view path) override;
  Outcome<> ChangeDrive(std::string_view path) override;
  Outcome<> ChangeFolder(std::string_view path) override;

 private:
  Drives& drives_;
};

}  // namespace tarvik
