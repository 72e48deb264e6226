// A whole program without a screen, for tests that need its forms: over a disk in memory, and nobody answers
// its boxes.
#pragma once

#include "app/Editor.h"
#include "support/MemoryFiles.h"

namespace tarvik {

class Program {
 public:
  Program() {
    files_.PutFolder("c:\\tarvik");
    application.settings.Write("FileLocations", "FirstTimeUsed", "0");
    application.Start();
  }

 private:
  class NoDialogs : public Dialogs {
   public:
    Answer Show(const MessageBox& box) override {
      return box.buttons == BoxButtons::Ok ? Answer::Ok : Answer::No;
    }
    Outcome<std::string> AskForFile(const FileRequest& /*request*/) override {
      return Failure{error::kDialogCancelled, "Cancel was selected.", 0};
    }
  };
  class OnlyInstance : public SingleInstance {
   public:
    bool Acquire() override { return true; }
  };

  MemoryFiles files_;
  NoDialogs dialogs_;
  OnlyInstance instance_;
  Platform platform_{files_, dialogs_, instance_, {28800, 21600}, "c:\\tarvik", ""};

 public:
  Application application{platform_};
  [[nodiscard]] Editor& editor() const { return *application.editor(); }
};

}  // namespace tarvik
