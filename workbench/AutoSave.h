// Saves modified files by the clock: every so many minutes, between events, also under an open dialog.
#pragma once

#include "workbench/FileCommands.h"

namespace tarvik {

class AutoSave {
  Documents& documents_;  // the timer is made in it

 public:
  AutoSave(Documents& documents, FileCommands& files);

  Timer timer{documents_, "Timer1"};

  /// Begins to count anew; the timer runs when the setting says so.
  void Restart();
  /// Counts a minute that has passed.
  void CountMinute();
  /// Writes each modified file, an untitled one too, where its path says.
  void AutoSaveFile();

 private:
  FileCommands& files_;
  int minutes_ = 0;
};

}  // namespace tarvik
