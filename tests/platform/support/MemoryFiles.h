// A disk in memory with the rules of the real one, for tests and scripted sessions. It fails on demand.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Files.h"
#include "platform/LogicalPath.h"

namespace tarvik {

/// Starts with an empty drive c, which is the current one. Paths come back in lower case.
class MemoryFiles : public Files {
 public:
  MemoryFiles();

  /// Places a file with all folders above it, whatever the disk otherwise refuses.
  void Put(std::string_view path, std::string_view content);
  /// Places a folder with all folders above it; "d:\" is an empty drive.
  void PutFolder(std::string_view path);
  /// Takes away a file, or a folder with all that is in it.
  void Remove(std::string_view path);
  /// For a file, or a folder in which nothing new may then be written.
  void SetReadOnly(std::string_view path, bool readOnly = true);
  /// The file is there, and every `Read` of it fails.
  void SetUnreadable(std::string_view path);
  /// The disk takes that many more bytes. A `Write` of more fails and leaves the old content.
  void FailAfter(std::size_t bytes) { room_ = bytes; }
  void StopFailing() { room_.reset(); }

  /// The bytes of a file, nothing where there is none.
  [[nodiscard]] std::optional<std::string> Content(std::string_view path) const;
  /// All files, sorted.
  [[nodiscard]] std::vector<std::string> List() const;
  [[nodiscard]] char currentDrive() const { return current_.drive(); }
  /// Of the current drive, as "c:\tm"; "c:\" for the root.
  [[nodiscard]] std::string CurrentFolder() const { return current_.Complete(".")->Text(); }

  [[nodiscard]] bool FileExists(std::string_view path) const override;
  [[nodiscard]] bool FolderExists(std::string_view path) const override;
  [[nodiscard]] std::vector<std::string> FilesIn(std::string_view folder,
                                                 std::string_view ending) const override;
  [[nodiscard]] std::vector<std::string> FoldersIn(std::string_view folder) const override;
  [[nodiscard]] std::string DriveLetters() const override;
  [[nodiscard]] Outcome<FileState> State(std::string_view path) const override;
  [[nodiscard]] Outcome<std::string> Read(std::string_view path) const override;
  Outcome<> Write(std::string_view path, std::string_view content) override;
  /// This disk has no permissions to bound.
  Outcome<> WriteCopy(std::string_view path, std::string_view content, std::string_view) override {
    return Write(path, content);
  }
  Outcome<> Delete(std::string_view path) override;
  Outcome<> MakeFolder(std::string_view path) override;
  Outcome<> ChangeDrive(std::string_view path) override;
  Outcome<> ChangeFolder(std::string_view path) override;

 private:
  struct Entry {
    bool isFolder = false;
    bool readOnly = false;
    bool unreadable = false;
    std::string content{};
    std::int64_t written = 0;
  };

  [[nodiscard]] std::vector<std::string> NamesIn(std::string_view folder, bool folders) const;
  [[nodiscard]] const Entry* Find(std::string_view path) const;
  [[nodiscard]] Entry* Find(std::string_view path);
  /// The place of a new file or folder, or why there can be none.
  [[nodiscard]] Outcome<LogicalPath> PlaceFor(std::string_view path) const;

  std::map<std::string, Entry> entries_;  ///< by whole path in lower case
  std::int64_t writes_ = 0;               ///< the clock of the disk
  std::optional<std::size_t> room_;
  CurrentFolders current_;
};

}  // namespace tarvik
