// A download from end to end: the sample pair, the program's own disk, and a loader in the real DOSBox.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "app/Editor.h"
#include "platform/HostFiles.h"
#include "platform/HostPrograms.h"
#include "support/ScriptedPlatform.h"
#include "support/ScriptedPress.h"
#include "support/TemporaryFolder.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

TEST(Download, TheLoaderInDosBoxReceivesTheSavedFileByteForByte) {
  if (!FindInPath("dosbox")) GTEST_SKIP() << "DOSBox is not installed";
  ::setenv("SDL_VIDEODRIVER", "dummy", 1);
  ::setenv("SDL_AUDIODRIVER", "dummy", 1);
  const TemporaryFolder folder;
  for (const char* const name : {"strike.b50", "strike.m50"}) {
    folder.Put(std::string("c/tm/") + name,
               TemporaryFolder::Content(fs::path(TARVIK_DATA) / "samples" / name));
  }
  folder.Put("c/tm/load.bat", "@echo off\r\ncopy %1 c:\\got.b50 >nul\r\necho %2>c:\\word.txt\r\n");
  folder.Put("c/tarvik/tarvik.ini",
             "[FileLocations]\r\nFirstTimeUsed=0\r\nShowTips=0\r\nB50LoadPath=c:\\tm\\load.bat\r\n"
             "CandCCPath=c:\\tm\\tm.bat\r\n");
  Drives drives({{'c', (folder.path() / "c").string()}});
  HostFiles files(drives);
  HostPrograms programs(drives);
  session::ScriptedPlatform outside;
  Platform platform = outside.Process(files, "c:\\tm\\strike.b50", {.programs = &programs});
  outside.dialogs.next = [end = std::chrono::steady_clock::now() + 30s] {
    std::this_thread::sleep_for(10ms);
    return std::chrono::steady_clock::now() < end;
  };
  session::ScriptedPress press;
  Application application(platform, press);
  ASSERT_TRUE(application.Start());
  Editor& editor = application.editor();
  ASSERT_EQ(editor.Joystick.Name.Get().Text(), "strike.b50");
  editor.JoystickText.SelText = std::string("Rem just written\r\n");
  ASSERT_EQ(editor.Joystick.Dirty, saved::kModified);
  editor.mnuAppsQuiet_Click();
  editor.mnuSendToJoystick_Click();
  const std::string sent = TemporaryFolder::Content(folder.path() / "c" / "GOT.B50");
  EXPECT_TRUE(sent.starts_with("Rem just written\r\n"));
  EXPECT_EQ(sent, editor.JoystickText.Text.Get());
  EXPECT_EQ(sent, TemporaryFolder::Content(folder.path() / "c" / "tm" / "strike.b50"));
  EXPECT_EQ(TemporaryFolder::Content(folder.path() / "c" / "WORD.TXT"), "Q\r\n");
}

}  // namespace
}  // namespace tarvik
