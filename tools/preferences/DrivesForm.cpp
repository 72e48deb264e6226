#include "tools/preferences/DrivesForm.h"

#include <algorithm>

#include "text/CodePage.h"
#include "workbench/HelpTopics.h"

namespace tarvik {
namespace {

constexpr char kOwn = 'c';
constexpr char kRoot = 'z';
constexpr int kLetters = 26;

constexpr const char* kAbout = "Each drive letter is a folder of yours. Drive z: is the whole computer.";

std::string DriveOf(char letter) { return {letter, ':'}; }

bool IsOn(char letter, const std::string& path) { return LowerCase(path).starts_with(DriveOf(letter)); }

}  // namespace

DrivesForm::DrivesForm(Workbench& bench, Shell& shell) : ToolForm("DrivesForm", bench, shell) {
  Caption = "Drives";
  Label1.Caption = kAbout;
  Label1.BackColor = ToggleLabel::kOff;
  Command1.ToolTipText = "Choose the folder that the drive stands for";
  Command3.MakeDefault();
  Command3.Cancel = true;
  Command4.Click = [this] { ShowHelp(bench_.platform, topic::kDrives); };
  List1.DblClick = [this] {
    if (Command1.Enabled) Command1_Click();
  };
  connections_.push_back(List1.ListIndex.Changed.Connect([this] { List1_Click(); }));
  Load = [this] { Form_Load(); };
}

void DrivesForm::Form_Load() {
  Topmost = true;
  ShowDrives();
  List1.ListIndex = kOwn - 'a';
  List1.SetFocus();
}

void DrivesForm::ShowDrives() {
  std::vector<std::string> rows;
  for (char letter = 'a'; letter < 'a' + kLetters; ++letter) rows.push_back(DriveOf(letter));
  for (const Drive& drive : bench_.platform.drives.All()) {
    rows[static_cast<std::size_t>(drive.letter - 'a')] +=
        "  " + FromUtf8(drive.folder) + (drive.isThere ? "" : "  (not there)");
  }
  const int row = List1.ListIndex;
  List1.FillInOrder(std::move(rows));
  List1.ListIndex = row;
}

std::string DrivesForm::FolderOf(char letter) const {
  const std::vector<Drive> drives = bench_.platform.drives.All();
  const auto found = std::find_if(drives.begin(), drives.end(),
                                  [letter](const Drive& drive) { return drive.letter == letter; });
  return found == drives.end() ? "" : found->folder;
}

void DrivesForm::List1_Click() {
  const bool any = List1.ListIndex >= 0 && Letter() != kRoot;
  const bool own = any && Letter() == kOwn;
  Command1.Enabled = any;
  Command2.Enabled = any && !FolderOf(Letter()).empty();
  Command2.Caption = own ? "&Reset" : "&Remove";
  Command2.ToolTipText =
      own ? "Back to the folder drive_c beside Tarvik" : "Let the letter stand for nothing";
}

/// The next save would go into another folder, or nowhere.
bool DrivesForm::MayChange(char letter) {
  const std::string drive = DriveOf(letter);
  const auto refuse = [&](const std::string& why) {
    bench_.platform.dialogs.Show({"Drive " + drive + " is in use", why, BoxIcon::Exclamation});
    return false;
  };
  if (IsOn(letter, bench_.platform.folder)) {
    return refuse("I live there myself: " + bench_.platform.folder +
                  ". To change this drive, close me and edit the section [Drives] of Tarvik.ini.");
  }
  std::vector<std::string> open;
  const Documents& files = bench_.documents;
  for (const Document* const document : {&files.joystick, &files.macro}) {
    if (!document->IsUntitled()) open.push_back(document->Path);
  }
  for (const Form* const form : shell_.Forms()) {
    if (const std::string path = form->OpenPath(); !path.empty()) open.push_back(path);
  }
  for (const std::string& path : open) {
    if (IsOn(letter, path)) {
      return refuse(path +
                    " is open, and the next time I save it it would land in the wrong folder. Open another "
                    "file first, or save this one on another drive.");
    }
  }
  return true;
}

void DrivesForm::Command1_Click() {
  const char letter = Letter();
  if (!MayChange(letter)) return;
  const std::string drive = DriveOf(letter);
  Platform& platform = bench_.platform;
  const auto folder =
      Ignore(platform.dialogs.AskForHostFolder("Select the folder for drive " + drive, FolderOf(letter)));
  if (!folder) return;
  if (platform.drives.Set(letter, *folder)) return Store(letter, *folder);
  platform.dialogs.Show({"Couldn't locate the folder",
                         "Hmmm...I couldn't find that folder - I was looking for it here: " +
                             FromUtf8(*folder) + ". Drive " + drive + " stays as it was.",
                         BoxIcon::Exclamation});
}

void DrivesForm::Command2_Click() {
  const char letter = Letter();
  if (!MayChange(letter)) return;
  bench_.platform.drives.Remove(letter);
  Store(letter, "");
}

/// An empty text in the settings file is as good as none.
void DrivesForm::Store(char letter, const std::string& folder) {
  const Trap trap{bench_.errors, "DRIVES Store"};
  const bool stored = trap(bench_.profile.Write("Drives", {&letter, 1}, Protected(folder))).has_value();
  const std::string now = FromUtf8(FolderOf(letter));
  Say("Drive " + DriveOf(letter) + (now.empty() ? " is no more" : " is now " + now) +
      (stored ? "" : ", until I end: Tarvik.ini can't be written"));
  ShowDrives();
}

}  // namespace tarvik
