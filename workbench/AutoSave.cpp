#include "workbench/AutoSave.h"

namespace tarvik {

void AutoSave::Restart() {
  minutes_ = 0;
  if (desk_.settings.AutoSaveEnabled == 1) timer_.Enabled = true;
}

void AutoSave::Minute() {
  if (++minutes_ < desk_.settings.AutoSaveTime) return;
  minutes_ = 0;
  AutoSaveFile();
}

void AutoSave::AutoSaveFile() {
  for (Document* document : {&desk_.joystick, &desk_.macro}) {
    // The history stays as it is, whatever is set for a save by hand.
    if (document->Dirty == saved::kModified) files_.WriteToDisk(*document, "ED_AutoSaveFile");
  }
}

}  // namespace tarvik
