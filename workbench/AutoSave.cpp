#include "workbench/AutoSave.h"

namespace tarvik {
namespace {

constexpr int kMinute = 60000;  // milliseconds

}  // namespace

AutoSave::AutoSave(Documents& documents, FileCommands& files, ForeignChanges& foreign)
    : documents_(documents), files_(files), foreign_(foreign) {
  timer.Interval = kMinute;
}

void AutoSave::Restart() {
  minutes_ = 0;
  if (documents_.settings.AutoSaveEnabled == 1) timer.Enabled = true;
}

void AutoSave::CountMinute() {
  if (++minutes_ < documents_.settings.AutoSaveTime) return;
  minutes_ = 0;
  AutoSaveFile();
}

void AutoSave::AutoSaveFile() {
  for (Document* document : {&documents_.joystick, &documents_.macro}) {
    if (document->Dirty != saved::kModified || document->IsForeign()) continue;
    if (foreign_.HasChanged(*document)) continue;
    // The history stays as it is, whatever is set for a save by hand.
    files_.WriteToDisk(*document, "ED_AutoSaveFile");
  }
}

}  // namespace tarvik
