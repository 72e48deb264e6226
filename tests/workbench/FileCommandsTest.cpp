#include <gtest/gtest.h>

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

}  // namespace
}  // namespace tarvik
