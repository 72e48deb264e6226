#include "tools/viewers/Tips.h"

#include <chrono>

#include "text/CodePage.h"
#include "text/RichText.h"

namespace tarvik {
namespace {

constexpr const char* kVersion = "Version: 1.2a";
constexpr const char* kDescription =
    "A workbench for Thrustmaster joysticks, throttles and rudders: it edits and colours the joystick file "
    "and the macro file, writes their statements for you, and tests what the hardware sends.";

constexpr const char* kLicence =
    "Licence: MIT. Its text is in the file LICENSE of the sources; where a package installed the program, in "
    "/usr/share/doc/tarvik/copyright.";

/// As "Qt 6.4.2, SDL 2.26.5, dtl".
std::string InOneLine(const std::vector<Library>& libraries) {
  std::string line;
  for (const Library& library : libraries) {
    line +=
        (line.empty() ? "" : ", ") + library.name + (library.version.empty() ? "" : " ") + library.version;
  }
  return line;
}

/// The text in the code page, whichever of the two ways it was written in.
std::string InCodePage(std::string text) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  const bool marked = text.starts_with(kMark);
  if (marked) text.erase(0, kMark.size());
  std::string taken = FromUtf8(text);
  return marked || ToUtf8(taken) == text ? taken : text;
}

}  // namespace

frmTip::frmTip(Workbench& bench, Shell& shell)
    : ToolForm("frmTip", bench, shell),
      random_(static_cast<unsigned>(std::chrono::system_clock::now().time_since_epoch().count())) {
  Caption = "Tip of the Day";
  Label1.Caption = "Did you know...";
  for (Label* const label : {&Label1, &lblTipText}) label->BackColor = ToggleLabel::kOff;
  cmdOK.MakeDefault();
  Load = [this] { Form_Load(); };
}

void frmTip::Form_Load() {
  Topmost = true;
  chkLoadTipsAtStartup.Value = bench_.settings.ShowTips == 1 ? 1 : 0;
  LoadTips(bench_.platform.folder + "\\Tips.txt");
  DisplayCurrentTip();
  cmdOK.SetFocus();
}

void frmTip::LoadTips(const std::string& path) {
  const auto read = Ignore(bench_.platform.files.Read(path));
  if (!read) return;
  const std::string text = WithPaneLineBreaks(InCodePage(*read));
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(text.find('\r', from), text.size());
    tips_.push_back(text.substr(from, end - from));
    from = end + 2;
  }
  DoNextTip();
}

void frmTip::DoNextTip() {
  if (tips_.empty()) return;
  CurrentTip = std::uniform_int_distribution<int>(1, static_cast<int>(tips_.size()))(random_);
  DisplayCurrentTip();
}

void frmTip::DisplayCurrentTip() {
  if (CurrentTip > 0) lblTipText.Caption = tips_[static_cast<std::size_t>(CurrentTip - 1)];
}

void frmTip::cmdOK_Click() {
  bench_.settings.ShowTips = chkLoadTipsAtStartup.Value;
  const Trap trap{bench_.errors, "TIPS cmdOK_Click"};
  trap(bench_.profile.Write(section::kFileLocations, "ShowTips", TextOf(bench_.settings.ShowTips.Get())));
  Close();
}

frmAbout::frmAbout(Workbench& bench, Shell& shell) : ToolForm("frmAbout", bench, shell) {
  Caption = "About Tarvik";
  lblVersion.Caption = kVersion;
  lblDescription.Caption = kDescription;
  lblLicence.Caption = kLicence;
  for (Label* const label : {&lblVersion, &lblDescription, &lblLicence, &lblLibraries})
    label->BackColor = ToggleLabel::kOff;
  cmdOK.MakeDefault();
  cmdOK.Cancel = true;
  cmdCopy.ToolTipText = "Copies the version, the licence and the libraries to the clipboard";
  cmdLog.ToolTipText = "What went wrong, for somebody who looks for a fault";
  Load = [this] { Form_Load(); };
}

void frmAbout::Form_Load() {
  Topmost = true;
  lblLibraries.Caption = "Libraries: " + InOneLine(bench_.platform.libraries());
}

void frmAbout::cmdSysInfo_Click() {
  if (Ignore(bench_.platform.desktop.ShowSystemInformation())) return;
  bench_.platform.dialogs.Show({"Tarvik", "System Information Is Unavailable At This Time"});
}

void frmAbout::cmdCopy_Click() {
  std::string text = "Tarvik\r\n";
  for (const Label* const label : {&lblVersion, &lblLicence, &lblLibraries}) {
    text += label->Caption.Get() + "\r\n";
  }
  bench_.platform.clipboard.Put(text, {});
}

}  // namespace tarvik
