#include "tools/programs/Download.h"

#include "tools/programs/Shell32.h"

namespace tarvik {
namespace {

constexpr const char* kNoControlCentre =
    "You need to enter the path in preferences for the Thrustmaster Control Centre";
constexpr const char* kWhyPath =
    " program is in this path and I really do need to know where to find it. I could be really intelligent "
    "here and go and find the file myself, but let's face facts, I'm just a humble lazy computer, and I'd "
    "rather be on a beach somewhere than running this Tarvik rubbish.";
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

/// The utilities in the order of F22Utility.
constexpr F22Row kF22Utilities[] = {
    {"f22setup.exe", "Setup", "ED_mnuF22Setup_Click"},
    {"f22clear.exe", "f22clear", "ED_mnuF22Clear_Click"},
    {"f22reset.exe", "F22Reset", "ED_mnuF22Reset_Click"},
    {"f22dly2.exe", "F22dly2", "ED_mnuF22Delay_Click"},
};

/// Whether the Control Centre is known; the user is told where it is not.
bool IsControlCentreKnown(Workbench& bench, const std::string& text) {
  if (!bench.settings.CandCCPath.Get().empty()) return true;
  bench.platform.dialogs.Show({"Where is it?", text, BoxIcon::Information, BoxButtons::Ok});
  return false;
}

bool MaySendAsSaved(Workbench& bench) {
  return bench.platform.dialogs.Show({"Hang on a minute ...", kNotSaved, BoxIcon::Exclamation,
                                      BoxButtons::YesNo, Answer::No}) == Answer::Yes;
}

}  // namespace

std::string FolderOfControlCentre(const Settings& settings) {
  const std::string& path = settings.CandCCPath.Get();
  return path.substr(0, path.rfind('\\') + 1);
}

void ChangeToControlCentre(Workbench& bench, const std::string& path, const Trap& trap) {
  Files& files = bench.platform.files;
  trap(files.ChangeDrive(path.substr(0, 1) + ":"));
  trap(files.ChangeFolder(FolderOfControlCentre(bench.settings)));
}

void ChangeToRootOf(Workbench& bench, const std::string& path, const Trap& trap) {
  Files& files = bench.platform.files;
  const std::string drive = path.substr(0, 1) + ":";
  trap(files.ChangeDrive(drive));
  trap(files.ChangeFolder(drive + "\\"));
}

void RunLoader(Workbench& bench, Shell& shell, const std::string& file) {
  const bool quiet = shell.Command("mnuAppsQuiet").Checked;
  const std::string commandLine = bench.settings.B50LoadPath.Get() + " " + file + (quiet ? " Q" : "");
  Ignore(ShellAndWait(bench, shell, commandLine));
}

void SendToJoystick(Workbench& bench, Shell& shell) {
  const Trap trap{bench.errors, "ED_mnuSendToJoystick_Click"};
  const Document& joystick = bench.documents.joystick;
  if (joystick.text.Characters().empty()) {
    bench.platform.dialogs.Show(
        {"Nothing to transfer ...", kNothingToSend, BoxIcon::Information, BoxButtons::Ok});
    return;
  }
  if (joystick.Dirty == saved::kModified) bench.files.Save(bench.documents.Active());
  if (joystick.Dirty == saved::kModified && !MaySendAsSaved(bench)) return;
  ChangeToRootOf(bench, bench.settings.B50LoadPath, trap);
  trap(bench.platform.files.ChangeFolder(FolderOfControlCentre(bench.settings)));
  Form& frame = shell.Frame();
  const int before = frame.WindowState;
  frame.WindowState = window::kMinimised;
  RunLoader(bench, shell, joystick.Path);
  frame.WindowState = before;
  bench.documents.FocusActiveText();
}

void StartControlCentre(Workbench& bench) {
  if (!IsControlCentreKnown(bench, kNoControlCentre)) return;
  const Trap trap{bench.errors, "ED_mnuAppsCandCC_Click"};
  const std::string path = bench.settings.CandCCPath;
  ChangeToControlCentre(bench, path, trap);
  trap(bench.platform.programs.Start(path, WindowStyle::Normal));
}

void StartTMScope(Workbench& bench) {
  if (!IsControlCentreKnown(bench, kNoControlCentre)) return;
  const Trap trap{bench.errors, "ED_mnuAppsTMScope_Click"};
  const std::string path = bench.settings.CandCCPath;
  const std::string folder = FolderOfControlCentre(bench.settings);
  ChangeToControlCentre(bench, path, trap);
  for (const char* const name : {"tmscope.exe", "tms.exe"}) {
    if (!bench.platform.files.FileExists(folder + name)) continue;
    trap(bench.platform.programs.Start(folder + name, WindowStyle::Maximised));
    return;
  }
  bench.platform.dialogs.Show(
      {"Couldn't find TMScope",
       "I couldn't find TMScope which should be located here: " + folder +
           ". Goto your preferences and make sure you've entered the correct path for the Thrustmaster "
           "Control Centre because tms.exe should be in the same directory. You've told me that this is: " +
           path,
       BoxIcon::Exclamation, BoxButtons::Ok});
}

void StartF22Utility(Workbench& bench, F22Utility utility) {
  const F22Row& row = kF22Utilities[static_cast<int>(utility)];
  const std::string text = std::string(kNoControlCentre) + ", as the " + row.nameInText + kWhyPath;
  if (!IsControlCentreKnown(bench, text)) return;
  const Trap trap{bench.errors, row.tag};
  ChangeToControlCentre(bench, bench.settings.CandCCPath, trap);
  trap(bench.platform.programs.Start(FolderOfControlCentre(bench.settings) + row.program,
                                     WindowStyle::Normal));
}

}  // namespace tarvik
