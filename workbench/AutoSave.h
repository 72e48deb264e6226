// Saves modified files by the clock: every so many minutes, between events, also under an open dialog.
#pragma once

#include "workbench/FileCommands.h"

namespace tarvik {

class AutoSave {
 public:
  AutoSave(Desk& desk, FileCommands& files, Timer& timer) : desk_(desk), files_(files), timer_(timer) {}

  /// Begins to count anew; the timer runs when the setting says so.
  void Restart();
  /// A minute has passed.
  void Minute();
  /// Writes each modified file, an untitled one too, where its path says.
  void AutoSaveFile();

 private:
  Desk& desk_;
  FileCommands& files_;
  Timer& timer_;
  int minutes_ = 0;
};

}  // namespace tarvik
