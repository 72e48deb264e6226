// A whole program without a screen, for tests that need its forms: over a disk in memory, and nobody answers
// its boxes.
#pragma once

#include "app/Editor.h"
#include "support/ScriptedPlatform.h"

namespace tarvik {

class Program {
 public:
  Program() : platform_(outside.Process(files_)), application(platform_) {
    files_.PutFolder("c:\\tarvik");
    application.settings.Write("FileLocations", "FirstTimeUsed", "0");
    application.Start();
  }

 private:
  MemoryFiles files_;
  Platform platform_;

 public:
  session::ScriptedPlatform outside;
  Application application;
  [[nodiscard]] Editor& editor() const { return *application.editor(); }
};

}  // namespace tarvik
