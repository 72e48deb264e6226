#include "hardware/Download.h"

#include "app/Editor.h"
#include "app/Mum.h"
#include "hardware/Shell32.h"

namespace tarvik {
namespace {

constexpr MessageBox Information(const char* title, const std::string& text) {
  return {title, text, BoxIcon::Information, BoxButtons::Ok};
}

constexpr const char* kWhereIsIt = "Where is it?";
constexpr const char* kNoControlCentre =
    "You need to enter the path in preferences for the Thrustmaster Control Centre";
constexpr const char* kNothingToSend =
    "The Joystick file is empty, so there's not much point in me sending that off to your joystick. Load up "
    "a joystick file, or create one, or just put your feet up and watch TV.";
constexpr const char* kNotSaved =
    "The joystick file isn't saved, so you won't be sending the currently edited file to your Thrustmaster "
    "hardware. Do you want to continue anyway?";

struct F22Row {
  const char* program;
  const char* nameInText;
  const char* tag;
};

/// In the order of F22Utility.
constexpr F22Row kF22Utilities[] = {
    {"f22setup.exe", "Setup", "EDITOR mnuF22Setup_Click"},
    {"f22clear.exe", "f22clear", "EDITOR mnuF22Clear_Click"},
    {"f22reset.exe", "F22Reset", "EDITOR mnuF22Reset_Click"},
    {"f22dly2.exe", "F22dly2", "EDITOR mnuF22Delay_Click"},
};

/// Whether the Control Centre is known; the user is told where it is not.
bool IsControlCentreKnown(Application& application, const std::string& text) {
  if (!application.settings.CandCCPath.Get().empty()) return true;
  application.platform.dialogs.Show(Information(kWhereIsIt, text));
  return false;
}

bool MaySendAsSaved(Application& application) {
  return application.platform.dialogs.Show({"Hang on a minute ...", kNotSaved, BoxIcon::Exclamation,
                                            BoxButtons::YesNo, Answer::No}) == Answer::Yes;
}

}  // namespace

std::string FolderOfControlCentre(const Settings& settings) {
  const std::string& path = settings.CandCCPath.Get();
  return path.substr(0, path.rfind('\\') + 1);
}

void ChangeToControlCentre(Application& application, const std::string& path, const Trap& trap) {
  Files& files = application.platform.files;
  trap(files.ChangeDrive(path.substr(0, 1) + ":"));
  trap(files.ChangeFolder(FolderOfControlCentre(application.settings)));
}

void ChangeToRootOf(Application& application, const std::string& path, const Trap& trap) {
  Files& files = application.platform.files;
  const std::string drive = path.substr(0, 1) + ":";
  trap(files.ChangeDrive(drive));
  trap(files.ChangeFolder(drive + "\\"));
}

std::string LoaderCommandLine(Application& application, const std::string& file) {
  const Editor& editor = *application.editor();
  const bool quiet = editor.menus("mnuAppsQuiet").Checked;
  return application.settings.B50LoadPath.Get() + " " + file + (quiet ? " Q" : "");
}

void SendToJoystick(Application& application) {
  const Trap trap{application.errors, "EDITOR mnuSendToJoystick_Click"};
  Editor& editor = *application.editor();
  const Document& joystick = editor.Joystick;
  if (joystick.text.Characters().empty()) {
    application.platform.dialogs.Show(Information("Nothing to transfer ...", kNothingToSend));
    return;
  }
  if (joystick.Dirty == saved::kModified) editor.mnuFileSave_Click();
  if (joystick.Dirty == saved::kModified && !MaySendAsSaved(application)) return;
  const std::string loader = application.settings.B50LoadPath;
  ChangeToRootOf(application, loader, trap);
  trap(application.platform.files.ChangeFolder(FolderOfControlCentre(application.settings)));
  application.mum().WindowState = 1;
  constexpr int kNoLimit = -1;
  ShellAndWait(application, LoaderCommandLine(application, joystick.Path), 6, kNoLimit);
  application.mum().WindowState = 0;
  editor.SetFocus();
}

void StartControlCentre(Application& application) {
  if (!IsControlCentreKnown(application, kNoControlCentre)) return;
  const Trap trap{application.errors, "EDITOR mnuAppsCandCC_Click"};
  const std::string path = application.settings.CandCCPath;
  ChangeToControlCentre(application, path, trap);
  trap(Shell(application, path, WindowStyle::Normal));
}

void StartTMScope(Application& application) {
  if (!IsControlCentreKnown(application, kNoControlCentre)) return;
  const Trap trap{application.errors, "EDITOR mnuAppsTMScope_Click"};
  const std::string path = application.settings.CandCCPath;
  const std::string folder = FolderOfControlCentre(application.settings);
  ChangeToControlCentre(application, path, trap);
  for (const char* const name : {"tmscope.exe", "tms.exe"}) {
    if (!application.platform.files.FileExists(folder + name)) continue;
    trap(Shell(application, folder + name, WindowStyle::Maximised));
    return;
  }
  application.platform.dialogs.Show(
      {"Couldn't find TMScope",
       "I couldn't find TMScope which should be located here: " + folder +
           ". Goto your preferences and make sure you've entered the correct path for the Thrustmaster "
           "Control Centre because tms.exe should be in the same directory. You've told me that this is: " +
           path,
       BoxIcon::Exclamation, BoxButtons::Ok});
}

void StartF22Utility(Application& application, F22Utility utility) {
  const F22Row& row = kF22Utilities[static_cast<int>(utility)];
  if (!IsControlCentreKnown(application, kNoControlCentre + std::string(", as the ") + row.nameInText +
                                             " program is in this path and I really do need to know where "
                                             "to find it. I could be really intelligent here and go and find "
                                             "the file myself, but let's face facts, I'm just a humble lazy "
                                             "computer, and I'd rather be on a beach somewhere than running "
                                             "this Tarvik rubbish."))
    return;
  const Trap trap{application.errors, row.tag};
  ChangeToControlCentre(application, application.settings.CandCCPath, trap);
  trap(Shell(application, FolderOfControlCentre(application.settings) + row.program, WindowStyle::Normal));
}

}  // namespace tarvik
