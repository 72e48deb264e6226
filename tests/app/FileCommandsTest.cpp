#include <gtest/gtest.h>

#include "app/Editor.h"
#include "support/ScriptedPlatform.h"

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
  files.PutFolder("c:\\tarvik");
  files.Put("c:\\my\\former.b50", "the former text\r\n");
  files.Put("c:\\my\\failing.b50", "its own text\r\n");
  session::ScriptedPlatform outside;
  Platform platform = outside.Process(files);
  Application application(platform);
  application.workbench.settings.Write("FileLocations", "FirstTimeUsed", "0");
  application.workbench.settings.Write("FileLocations", "ShowTips", "0");
  application.Start();
  Editor& editor = application.editor();

  editor.OpenPreviouslySavedFiles("c:\\my\\former.b50");
  ASSERT_EQ(editor.JoystickText.Text.Get(), "the former text\r\n");
  files.failing = "c:\\my\\failing.b50";
  editor.OpenPreviouslySavedFiles(files.failing);
  editor.JoystickText.UserReplaced({0, 0}, "more ");
  editor.mnuFileSave_Click();

  EXPECT_EQ(files.Content("c:\\my\\failing.b50"), "its own text\r\n");
  EXPECT_EQ(files.Content("c:\\my\\former.b50"), "the former text\r\n");
  EXPECT_EQ(application.workbench.errors.ErrorText.Get(), "Input/output error");
  EXPECT_EQ(editor.JoystickText.Text.Get(), "more ");
}

}  // namespace
}  // namespace tarvik
