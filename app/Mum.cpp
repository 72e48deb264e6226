#include "app/Mum.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "language/Controllers.h"

namespace tarvik {
namespace {

constexpr std::size_t kPositionBuffer = 100;

constexpr MenuRow<Mum> kMenus[] = {
    {0, "mnuMumFile", "&File"},
    {1, "mnuMumFileExit", "E&xit", "", &Mum::mnuMumFileExit_Click},
    {0, "mnuMumApps", "&Apps"},
    {1, "mnuMumAppsEditor", "&Editor", "", &Mum::mnuMumAppsEditor_Click},
};

struct PanelRow {
  const char* text;
  const char* tip;
};

constexpr PanelRow kPanels[kStatusPanels] = {
    {"Welcome!", ""},
    {"", "Currently active file saved state"},
    {"Line no:", "Current insertion point in the joystick file"},
    {"CAPS", "State of the Caps Lock key"},
    {"INS", "State of the Insert key"},
    {"NUM", "State of the Num Lock key"},
    {"", "The current time"},
    {"No macrofile analysed", "The macros in the macros list are from this file"},
};

/// What stands on the disk of somebody with a controller's own software, and the settings that follow.
struct Installation {
  const char* folder;
  const char* file;  ///< that must be there too, or null
  const char* programFiles;
  const char* loader;  ///< null: unchanged
  const char* controlCentre;
  JoystickNumber joystick;
  std::optional<ThrottleNumber> throttle;  ///< nothing: unchanged
};

constexpr Installation kInstallations[] = {
    {"c:\\tm\\f22",
     nullptr,
     "c:\\tm\\f22\\f22progs",
     "c:\\tm\\f22\\f22load.exe",
     "c:\\tm\\f22\\f22.bat",
     kF22Pro,
     {}},
    {"c:\\tqs", nullptr, "c:\\tqs\\programs", "c:\\tqs\\b50load.exe", "c:\\tqs\\tm.bat", kFlcs, kTqs},
    {"c:\\tm", "c:\\tm\\b50load.exe", "c:\\tm\\b50progs", "c:\\tm\\b50load.exe", "c:\\tm\\tm.bat", kFlcs,
     kNoThrottle},
    {"c:\\tm", nullptr, "c:\\tm\\programs", nullptr, "c:\\tm\\tm.bat", kPfcs, kNoThrottle},
};

/// The number that the key's value begins with, fractions included, or 0. A value that is no number is told.
Twips ReadTwips(const Profile& stored, const char* key, const char* fallback) {
  const std::string text = stored.GetString(section::kMiscellaneous, key, fallback, kPositionBuffer);
  const char* const end = text.data() + text.size();
  float value = 0;
  const auto read = std::from_chars(text.data(), end, value);
  const bool isFinite = std::isfinite(value);
  if (read.ec != std::errc() || read.ptr != end || !isFinite)
    stored.TellUnreadable(section::kMiscellaneous, key);
  return {isFinite ? value : 0};
}

}  // namespace

Mum::Mum(Application& application)
    : Form("Mum"),
      StatusBar(application.workbench.documents.status),
      ProgressBar1(application.workbench.documents.progress),
      Picture1(application.workbench.documents.swatch),
      menus(*this, kMenus),
      application_(application),
      bench_(application.workbench) {
  for (Component* const control : std::initializer_list<Component*>{
           &StatusBar, &ProgressBar1, &Picture1, &bench_.journals.timer, &bench_.liveColours.pause.timer,
           &bench_.problems.pause.timer, &bench_.follow.typing.timer, &bench_.follow.resting.timer}) {
    Adopt(*control);
  }
  busy_ = bench_.documents.Busy.Changed.Connect(
      [this] { MousePointer = bench_.documents.Busy ? pointer::kHourglass : pointer::kDefault; });
  problems_ = bench_.problems.Changed.Connect([this] { ShowProblemCount(); });
  flight_ = bench_.flight.Changed.Connect([this] { ShowFlight(); });
  ShowFlight();
  EmptyText.Caption = "The editor is closed; no file is open.";
  EmptyText.BackColor = ToggleLabel::kOff;
  BeginStatus();
  ProgressBar1.Visible = false;
  Toolbar1.Visible = false;
  Picture1.ToolTipText = "Select text colour";
  ProblemCount.ToolTipText = "What is wrong in the two files (Ctrl+Shift+M)";
  ShowProblemCount();
  Picture1.Click = [this] { Picture1_Click(); };
  Resize = [this] { MDIForm_Resize(); };
}

void Mum::ShowProblemCount() {
  const std::string words = InWords(bench_.problems);
  ProblemCount.Visible = !words.empty();
  ProblemCount.Caption = words;
}

void Mum::ShowFlight() {
  Caption = bench_.flight.Now() == Flight::Phase::Flying ? "Tarvik is flying" : "Tarvik";
}

void Mum::ProblemCount_Click() {
  Settings& settings = bench_.settings;
  settings.Change(settings.ProblemsPanel, settings.ProblemsPanel == 0 ? 1 : 0);
}

void Mum::BeginStatus() {
  for (int i = 1; i <= kStatusPanels; ++i) {
    StatusBar.Panels(i).Text = kPanels[i - 1].text;
    StatusBar.Panels(i).ToolTipText = kPanels[i - 1].tip;
  }
}

void Mum::MDIForm_Load() {
  const Trap trap{bench_.errors, "MUM MDIForm_Load"};
  SharedValues& values = bench_.values;
  Settings& settings = bench_.settings;
  Files& files = bench_.platform.files;
  SetPaths();
  GetMumPosition();
  for (const Folder& made : {values.BackupDir.Get(), values.RtfDir.Get()}) {
    if (!files.FolderExists(made.Path())) trap(files.MakeFolder(made.Path()));
  }
  settings.GetOptions();
  const std::string& folder = bench_.platform.folder;
  if (settings.ImageFilePath.Get().empty()) settings.ImageFilePath = folder + "\\tarvik.jpg";
  if (settings.TextFilePath.Get().empty()) settings.TextFilePath = folder + "\\readme.txt";
  settings.SaveOptions();
  if (settings.ProgramFilesPath.Get().empty()) AutoDetect();
  values.CommandLine = bench_.platform.commandLine;

  application_.Loaded(*this);
  Visible = true;
  Toolbar1.Wrappable = settings.CanWrapToolbar != 0;
  MDIForm_Resize();
  if (settings.FlatToolbar == 1) MakeFlat();
  application_.ShowEditor(EditorBegins::WithTheFilesOfTheStart);
  bench_.recovery.Look();
  if (bench_.recovery.Texts().size() > 1) application_.Show(ToolId::UnsavedTexts);
  if (settings.ShowTips == 1) application_.Show(ToolId::Tips);
}

void Mum::SetPaths() {
  const std::string& folder = bench_.platform.folder;
  bench_.values.IniFile = folder + "\\Tarvik.ini";
  bench_.values.BackupDir = Folder(folder + "\\Backup\\");
  bench_.values.RtfDir = Folder(folder + "\\Rtf\\");
}

/// The swatch stands where its button is.
void Mum::MDIForm_Resize() { Picture1.ToFront(); }

void Mum::GetMumPosition() {
  const Profile stored = bench_.profile.Read();
  Top = ReadTwips(stored, "MumTopAtStartup", "0");
  Left = ReadTwips(stored, "MumLeftAtStartup", "0");
  Width = ReadTwips(stored, "MumWidthAtStartup", "13320");
  Height = ReadTwips(stored, "MumHeightAtStartup", "8895");
  MumWindowstate = To16Bits(stored.GetInt(section::kMiscellaneous, "MumWindowstate", window::kMaximised));
  if (MumWindowstate != window::kNormal) WindowState = window::kMaximised;
}

void Mum::SaveMumPosition() {
  // A frame that is maximised or minimised keeps the size that it would be restored to.
  const ScreenSize& screen = bench_.platform.screen;
  if (WindowState != window::kMinimised) {
    Top = std::max(Twips{0}, Top.Get());
    Left = std::max(Twips{0}, Left.Get());
    Width = std::min(InTwips(Pixels{screen.width}), Width.Get());
    Height = std::min(InTwips(Pixels{screen.height}), Height.Get());
    MumWindowstate = WindowState;
  }
  Ignore(bench_.profile.WriteAll(std::vector<ProfileEntry>{
      {section::kMiscellaneous, "MumTopAtStartup", TextOf(Top.Get())},
      {section::kMiscellaneous, "MumLeftAtStartup", TextOf(Left.Get())},
      {section::kMiscellaneous, "MumWidthAtStartup", TextOf(Width.Get())},
      {section::kMiscellaneous, "MumHeightAtStartup", TextOf(Height.Get())},
      {section::kMiscellaneous, "MumWindowstate", TextOf(MumWindowstate.Get())},
  }));
}

void Mum::AutoDetect() {
  ColoursSortOut();
  Files& files = bench_.platform.files;
  Settings& settings = bench_.settings;
  for (const Installation& row : kInstallations) {
    if (!files.FolderExists(row.folder) || (row.file && !files.FileExists(row.file))) continue;
    settings.ProgramFilesPath = row.programFiles;
    if (row.loader) settings.B50LoadPath = row.loader;
    const Endings& endings = kJoysticks[row.joystick].endings;
    settings.JoystickExtension = std::string(endings.joystick);
    settings.MacroExtension = std::string(endings.macro);
    settings.CandCCPath = row.controlCentre;
    settings.JoyName = row.joystick;
    if (row.throttle) settings.ThrottleName = *row.throttle;
    settings.SaveOptions();
    return;
  }
}

void Mum::Picture1_Click() { application_.Show(ToolId::ColourSelector); }

}  // namespace tarvik
