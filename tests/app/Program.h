// A whole program without a screen, for tests that need its forms: over a disk in memory, and nobody answers
// its boxes.
#pragma once

#include <string>

#include "app/Editor.h"
#include "support/ScriptedPlatform.h"
#include "support/ScriptedPress.h"

namespace tarvik {

/// Its disk holds its empty folder, and it has not started, so that a test can still put files there, or a
/// screen in front of it.
class UnstartedProgram {
 public:
  explicit UnstartedProgram(std::string commandLine = "", const session::Instead& instead = {})
      : platform_(outside.Process(files_, std::move(commandLine), instead)), application(platform_, press) {
    files_.PutFolder("c:\\tarvik");
  }

  /// On an ordinary day: it is not the first one, and no tip comes.
  void Start() {
    application.workbench.settings.Write("FileLocations", "FirstTimeUsed", "0");
    application.workbench.settings.Write("FileLocations", "ShowTips", "0");
    application.Start();
  }

  session::ScriptedPlatform outside;
  session::ScriptedPress press;

 private:
  MemoryFiles files_;
  Platform platform_;

 public:
  Application application;
  [[nodiscard]] MemoryFiles& files() { return files_; }
  [[nodiscard]] Editor& editor() const { return application.editor(); }
};

/// It has started.
class Program : public UnstartedProgram {
 public:
  explicit Program(Printer* printer = nullptr) : UnstartedProgram("", {.printer = printer}) { Start(); }
};

}  // namespace tarvik
