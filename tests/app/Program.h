// A whole program without a screen, for tests that need its forms: over a disk in memory, and nobody answers
// its boxes.
#pragma once

#include "app/Editor.h"
#include "support/MemoryFiles.h"
#include "support/ScriptedPrinter.h"

namespace tarvik {

class Program {
 public:
  explicit Program(Printer* printer = nullptr)
      : platform_{files_,    dialogs_,     instance_, {28800, 21600}, printer ? *printer : scripted_,
                  calendar_, "c:\\tarvik", ""} {
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
  ScriptedPrinter scripted_;
  FixedCalendar calendar_;
  Platform platform_;

 public:
  Application application{platform_};
  [[nodiscard]] Editor& editor() const { return *application.editor(); }
};

}  // namespace tarvik
