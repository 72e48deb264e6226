#include <gtest/gtest.h>

#include <new>

#include "support/BareWorkbench.h"

namespace tarvik {
namespace {

/// A disk of which a file can be read once more, and then no longer.
class FailingFiles : public MemoryFiles {
 public:
  Outcome<std::string> Read(std::string_view path) const override {
    if (path == failing && left-- <= 0) return Failure{error::kPathAccess, "Input/output error", 5};
    return MemoryFiles::Read(path);
  }
  std::string failing;
  mutable int left = 1;
};

TEST(FileCommands, AFileThatFailsWhileItIsOpenedIsNotOverwrittenWithTheFormerText) {
  FailingFiles files;
  files.Put("c:\\my\\former.b50", "the former text\r\n");
  files.Put("c:\\my\\failing.b50", "its own text\r\n");
  BareWorkbench bare(&files);
  FileCommands& commands = bare.workbench.files;
  const Document& joystick = bare.joystick;
  const auto open = [&commands](const std::string& path) {
    commands.OpenWithoutDialog(path);
    commands.OpenPair();
  };

  open("c:\\my\\former.b50");
  ASSERT_EQ(joystick.text.Text.Get(), "the former text\r\n");
  files.failing = "c:\\my\\failing.b50";
  open(files.failing);
  joystick.text.UserReplaced({0, 0}, "more ");
  bare.workbench.documents.TextChanged(bare.joystick);
  commands.Save(bare.joystick);

  EXPECT_EQ(files.Content("c:\\my\\failing.b50"), "its own text\r\n");
  EXPECT_EQ(files.Content("c:\\my\\former.b50"), "the former text\r\n");
  EXPECT_EQ(bare.workbench.errors.ErrorText.Get(), "Input/output error");
  EXPECT_EQ(joystick.text.Text.Get(), "more ");
}

TEST(FileCommands, AFileThatIsSavedAsItWasHasOneVersionWhateverItsLinesEndWith) {
  for (const char* const bytes : {"BTN S1\r\n", "BTN S1\nBTN S2\n", "BTN S1\rBTN S2\n"}) {
    MemoryFiles files;
    files.Put("c:\\my\\a.b50", bytes);
    BareWorkbench bare(&files);
    bare.workbench.files.OpenFavourite("c:\\my\\a.b50");
    bare.workbench.files.Save(bare.joystick);
    EXPECT_EQ(files.Content("c:\\my\\a.b50"), bytes);
    EXPECT_EQ(bare.workbench.versions.Of(bare.joystick).size(), 1U);
  }
}

/// A disk of which the failing file takes more memory than there is, from the second reading on.
class EndlessFiles : public FailingFiles {
 public:
  Outcome<std::string> Read(std::string_view path) const override {
    auto read = FailingFiles::Read(path);
    if (!read && path == failing) throw std::bad_alloc();
    return read;
  }
};

TEST(FileCommands, MemoryThatRunsOutWhileOneDocumentIsOpenedLeavesTheOtherAlive) {
  for (const char* const failing : {"c:\\my\\big.b50", "c:\\my\\big.m50"}) {
    for (int readings = 0; readings < 3; ++readings) {
      EndlessFiles files;
      for (const char* const ending : {"b50", "m50"}) {
        files.Put(std::string("c:\\my\\former.") + ending, "the former text\r\n");
        files.Put(std::string("c:\\my\\big.") + ending, "its own text\r\n");
      }
      BareWorkbench bare(&files);
      FileCommands& commands = bare.workbench.files;
      Documents& documents = bare.workbench.documents;
      commands.OpenFavourite("c:\\my\\former.b50");
      commands.OpenFavourite("c:\\my\\former.m50");
      files.failing = failing;
      files.left = readings;
      bool thrown = false;
      try {
        commands.OpenFavourite(failing);
      } catch (const std::bad_alloc&) {
        thrown = true;
      }
      const bool isJoystick = files.failing.ends_with("b50");
      Document& opened = isJoystick ? documents.joystick : documents.macro;
      Document& other = isJoystick ? documents.macro : documents.joystick;
      EXPECT_TRUE(thrown || opened.text.Text.Get() == "its own text\r\n") << failing << readings;
      EXPECT_EQ(other.text.Text.Get(), "the former text\r\n");
      files.failing.clear();
      for (Document* const document : {&opened, &other}) {
        document->text.UserReplaced({0, 0}, "more ");
        documents.TextChanged(*document);
        if (!document->IsUntitled()) commands.Save(*document);
      }
      EXPECT_NE(files.Content(failing), "more the former text\r\n") << failing << readings;
      EXPECT_EQ(files.Content(other.Path.Get()), "more the former text\r\n");
    }
  }
}

TEST(FileCommands, WhatAnotherProgramWritesRightBehindASaveIsNoSaveAndIsKeptByTheNextOne) {
  class SharedDisk : public MemoryFiles {
   public:
    Outcome<> Write(std::string_view path, std::string_view content) override {
      auto written = MemoryFiles::Write(path, content);
      if (path == "c:\\my\\a.b50" && std::exchange(isDisturbed, false)) Put(path, "theirs");
      return written;
    }
    bool isDisturbed = true;
  } disk;
  disk.Put("c:\\my\\a.b50", "old");
  disk.PutFolder("c:\\tarvik\\backup");
  BareWorkbench bare(&disk);
  bare.workbench.values.BackupDir = Folder("c:\\tarvik\\backup\\");
  FileCommands& commands = bare.workbench.files;
  commands.OpenWithoutDialog("c:\\my\\a.b50");
  commands.Load(bare.joystick);
  bare.joystick.text.UserReplaced({0, 3}, "mine");
  commands.Save(bare.joystick);
  EXPECT_NE(bare.workbench.notices.Of(bare.joystick), nullptr);
  std::vector<std::string> kept;
  const Connection told = commands.KeptOthers.Connect(
      [&kept](const Document&, const std::string& path) { kept.push_back(path); });
  commands.Save(bare.joystick);
  EXPECT_EQ(disk.Content("c:\\my\\a.b50"), "mine");
  ASSERT_EQ(kept.size(), 1U);
  EXPECT_EQ(disk.Content(kept.front()), "theirs");
}

}  // namespace
}  // namespace tarvik
