// A workbench without a form, for tests of what edits the two files: over a disk in memory, and nobody
// answers its boxes.
#pragma once

#include "support/ScriptedPlatform.h"
#include "workbench/Workbench.h"

namespace tarvik {

/// Two untitled files, and a disk that holds the program's folder.
class BareWorkbench {
  MemoryFiles own_;

 public:
  /// `disk` takes the place of the disk in memory, and `instead` that of what is scripted.
  explicit BareWorkbench(MemoryFiles* disk = nullptr, const session::Instead& instead = {})
      : files(disk ? *disk : own_), platform(outside.Process(files, "", instead)) {
    files.PutFolder("c:\\tarvik");
    workbench.settings.GetOptions();
    workbench.settings.GetColours();
    workbench.files.BeginUntitled();
  }

  MemoryFiles& files;
  session::ScriptedPlatform outside;
  Platform platform;
  Workbench workbench{platform};
  Document& joystick = workbench.documents.joystick;
  Document& macro = workbench.documents.macro;
};

}  // namespace tarvik
