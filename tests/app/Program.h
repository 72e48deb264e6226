// A whole program without a screen, for tests that need its forms: over a disk in memory, and nobody answers
// its boxes.
#pragma once

#include "app/Editor.h"
#include "support/ScriptedPlatform.h"

namespace tarvik {

class Program {
 public:
  explicit Program(Printer* printer = nullptr)
      : platform_(outside.Process(files_, outside.instance, printer ? *printer : outside.printer)),
        application(platform_) {
    files_.PutFolder("c:\\tarvik");
    application.workbench.settings.Write("FileLocations", "FirstTimeUsed", "0");
    application.workbench.settings.Write("FileLocations", "ShowTips", "0");
    application.Start();
  }

  session::ScriptedPlatform outside;

 private:
  MemoryFiles files_;
  Platform platform_;

 public:
  Application application;
  [[nodiscard]] MemoryFiles& files() { return files_; }
  [[nodiscard]] Editor& editor() const { return application.editor(); }
};

}  // namespace tarvik
