// tarvik_saver FOLDER FILE CONTENT [--loop OTHER]: the whole program without a screen, on the real disk, for
// `run` beside it. FOLDER is drive c, its folder tarvik the program's. Somebody opens the joystick FILE, puts
// the text of the file CONTENT in its place, saves, changes a setting and leaves. With --loop OTHER they
// alternate between the two texts, and between the setting's values, until the process is killed. Ends with 0
// when the program came through to its end, whatever the disk did, and with 65 when it could not open the
// file.
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "app/Editor.h"
#include "platform/HostFiles.h"
#include "platform/InstanceLock.h"
#include "platform/Process.h"
#include "support/ScriptedPlatform.h"
#include "support/ScriptedPress.h"

namespace {

namespace fs = std::filesystem;
using namespace tarvik;

constexpr int kWrongUse = 64;
constexpr int kNotOpened = 65;
constexpr int kStuck = 66;

/// Not read by the calls that are made to fail for the program.
std::string ContentOf(const std::string& path) {
  std::string content;
  std::FILE* const file = std::fopen(path.c_str(), "rb");
  for (int c = 0; file && (c = std::fgetc(file)) != EOF;) content += static_cast<char>(c);
  if (file) std::fclose(file);
  return content;
}

class User {
 public:
  explicit User(Application& application) : application_(application), editor_(application.editor()) {}

  /// The file dialog is to give the file's path. False when the text did not come.
  bool Opens(const std::string& path) {
    editor_.menus("mnuFileJoystickLoad").Click();
    return editor_.Joystick.Path.Get() == path;
  }

  void Saves(const std::string& text) {
    Pane& pane = editor_.JoystickText;
    pane.UserReplaced({0, pane.Characters().size()}, text);
    editor_.menus("mnuFileSave").Click();
  }

  void ChangesASetting() { editor_.mnuInsertWithColour.Click(); }

  bool Leaves() { return application_.CloseMum(); }

 private:
  Application& application_;
  Editor& editor_;
};

}  // namespace

int main(int count, char** arguments) {
  IgnoreFileSizeSignal();
  const std::vector<std::string> given(arguments + 1, arguments + count);
  const bool loop = given.size() == 5 && given[3] == "--loop";
  if (given.size() != 3 && !loop) return kWrongUse;
  const std::vector<std::string> texts = {ContentOf(given[2]), loop ? ContentOf(given[4]) : ""};

  Drives drives({{'c', given[0]}});
  HostFiles files(drives);
  session::ScriptedPlatform outside;
  InstanceLock lock(fs::path(given[0]) / "tarvik" / "tarvik.lock");
  Platform platform = outside.Process(files, "", {.instance = &lock});
  session::ScriptedPress press;
  Application application(platform, press);
  if (!application.Start()) return kStuck;

  User user(application);
  const std::string path = drives.FromHost(given[1]);
  outside.dialogs.choices.push_back(path);
  if (!user.Opens(path)) return user.Leaves() ? kNotOpened : kStuck;
  if (loop) std::cout << "saving" << std::endl;
  for (std::size_t turn = 0; loop || turn == 0; ++turn) {
    user.Saves(texts[turn % 2]);
    user.ChangesASetting();
  }
  return user.Leaves() ? 0 : kStuck;
}
