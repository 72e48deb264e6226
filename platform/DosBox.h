// A DOS program in DOSBox: with the drives under their letters, where the program left them, and its command
// line as it stands.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/CommandLine.h"
#include "platform/Descriptor.h"
#include "platform/Drives.h"
#include "platform/Process.h"

namespace tarvik {

/// A folder of our own for one run: DOSBox's settings, the batch file that it runs, and the drives. It goes
/// away with this object.
class DosBoxFolder {
 public:
  static Outcome<std::unique_ptr<DosBoxFolder>> Make();
  /// Removes the folders of processes that were killed.
  static void RemoveLeftOvers();
  ~DosBoxFolder();
  DosBoxFolder(const DosBoxFolder&) = delete;
  DosBoxFolder& operator=(const DosBoxFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }
  /// DOSBox's exit status tells nothing: the batch file ends with leaving a mark here.
  [[nodiscard]] bool HasMark() const;
  /// Leaves the folder to somebody else.
  void Release();

 private:
  explicit DosBoxFolder(std::filesystem::path path);

  std::filesystem::path path_;
  Descriptor own_;  ///< the folder, locked as long as we live
};

/// A run of DOSBox that is ready to start. Failure 5 for what DOS cannot be told: a program or current folder
/// whose names are not 8.3, a command line that is too long for DOS, or one with < > | or control characters.
struct DosBoxRun {
  std::unique_ptr<DosBoxFolder> folder;
  std::filesystem::path dosBox;
};
Outcome<DosBoxRun> PrepareDosBox(const ParsedCommand& command, const Drives& drives, WindowStyle style);

Outcome<> StartDosBox(DosBoxRun run);
Outcome<std::unique_ptr<RunningProgram>> StartDosBoxToWait(DosBoxRun run);

}  // namespace tarvik
