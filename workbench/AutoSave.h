// Saves modified files by the clock: every so many minutes, between events, also under an open dialog.
#pragma once

#include "workbench/ForeignChanges.h"

namespace tarvik {

class AutoSave {
  Documents& documents_;  // the timer is made in it

 public:
  AutoSave(Documents& documents, FileCommands& files, ForeignChanges& foreign);

  Timer timer{documents_, "Timer1"};

  /// Begins to count anew; the timer runs when the setting says so.
  void Restart();
  /// Counts a minute that has passed.
  void CountMinute();
  /// Writes each modified file, an untitled one too, where its path says. What another program wrote there,
  /// or in another encoding, stays, and the document stays modified.
  void AutoSaveFile();

 private:
  FileCommands& files_;
  ForeignChanges& foreign_;
  int minutes_ = 0;
};

}  // namespace tarvik
