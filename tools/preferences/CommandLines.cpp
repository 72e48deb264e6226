#include "tools/preferences/CommandLines.h"

#include "text/CodePage.h"

namespace tarvik {
namespace {

// The folder that Windows has on a drive of a single user's machine. There is no system here to ask for it:
// what runs such a path, an emulator or a Windows next door, looks for its programs there.
constexpr const char* kWindowsFolder = "c:\\windows";

/// A kind of path that can't be started alone.
struct Guard {
  const char* ending;
  const char* program;
  const char* title;
  const char* question;  ///< up to the path
};

constexpr Guard kGuards[] = {
    {"cpl", "\\control.exe ", "Information for using control panel applets",
     "I see you're trying to run one of the control panel's programs. If you want to do this, say for "
     "Thrustmaster's ProPanel (downloadable from their site and a must have!), then you need to add "},
    {"hlp", "\\winhlp32.exe ", "Information for using help files",
     "I see you're trying to use a help file. If you want to do this, say for F22 ADF, then you need to "
     "add "},
};

}  // namespace

std::string CustomAppPathUse(Dialogs& dialogs, const std::string& path) {
  for (const Guard& guard : kGuards) {
    const std::string program = std::string(kWindowsFolder) + guard.program;
    if (!LowerCase(path).ends_with(guard.ending) || path.starts_with(program)) continue;
    const std::string whole = program + path;
    std::string question = guard.question;
    question.append(program).append("to your path so that it looks like this: ").append(whole);
    question += ". Would you like me to do this for you now?";
    const Answer answer = dialogs.Show({guard.title, question, BoxIcon::Information, BoxButtons::YesNo});
    return answer == Answer::Yes ? whole : path;
  }
  return path;
}

}  // namespace tarvik
