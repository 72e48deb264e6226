#include "tools/viewers/ViewImage.h"

#include <algorithm>

#include "platform/LogicalPath.h"
#include "text/CodePage.h"
#include "workbench/HelpTopics.h"

namespace tarvik {
namespace {

constexpr float kInside = 7500;  // twips, until the window says otherwise
constexpr const char* kEndings[] = {".bmp", ".gif", ".jpeg", ".jpg", ".png", ".wmf"};

constexpr MenuRow<ViewImage> kMenus[] = {
    {0, "mnuFile", "&File"},
    {1, "mnuFileClose", "&Close Image Viewer", "", &ViewImage::mnuFileClose_Click},
    {1, "mnuFileExit", "E&xit", "", &ViewImage::mnuFileExit_Click},
    {0, "mnuImage", "&Image"},
    {1, "mnuImageLoad", "&Open", "", &ViewImage::mnuImageLoad_Click},
    {1, "mnuImageRefresh", "&Refresh", "", &ViewImage::mnuImageRefresh_Click},
    {1, "mnuImageEdit", "&Edit", "", &ViewImage::mnuImageEdit_Click},
    {0, "mnuImageViewerWindow", "&Window"},
    MenuArray<ViewImage>(1, "mnuArrange", kArrangements),
    {0, "mnuHelp", "&Help"},
    {1, "mnuHelpViewer", "&Image viewer", "", &ViewImage::mnuHelpViewer_Click},
};

std::string Joined(const std::string& folder, const std::string& name) {
  return folder + (folder.ends_with('\\') ? "" : "\\") + name;
}

/// A file that cannot be read gives an empty picture.
void LoadInto(ImageBox& image, const std::string& path, const Files& files) {
  const auto bytes = Ignore(files.Read(path));
  image.Load(path, bytes ? *bytes : std::string());
}

}  // namespace

ViewImage::ViewImage(Workbench& bench, Shell& shell)
    : ToolForm("ViewImage", bench, shell), menus(*this, kMenus) {
  Caption = "Image viewer";
  ScaleWidth = kInside;
  ScaleHeight = kInside;
  Image1.ToolTipText = "Double click to edit the picture";
  Image1.DblClick = [this] { Image1_DblClick(); };
  Load = [this] { Form_Load(); };
  Activate = [this] { Form_Activate(); };
  Form::Resize = [this] { Form_Resize(); };
}

void ViewImage::Form_Load() {
  const std::string& path = bench_.settings.ImageFilePath;
  if (bench_.platform.files.FileExists(path)) LoadInto(Image1, path, bench_.platform.files);
  Form_Resize();
}

bool ViewImage::ShowPicture() {
  const std::string& path = bench_.settings.ImageFilePath;
  if (bench_.platform.files.FileExists(path)) {
    LoadInto(Image1, path, bench_.platform.files);
    return true;
  }
  bench_.platform.dialogs.Show(
      {"Image file not found",
       path +
           " does not exist. Select Open from the Image menu to ensure the correct path to the image file.",
       BoxIcon::Exclamation});
  return false;
}

void ViewImage::mnuImageLoad_Click() {
  shell_.ShowModal(shell_.Tool<SelectPictureForm>());
  if (!ShowPicture()) return;
  bench_.lists.SaveApps();
}

void ViewImage::mnuImageEdit_Click() {
  const Trap trap{bench_.errors, "VIEWIMAGE mnuImageEdit_Click"};
  trap(bench_.platform.desktop.Open(bench_.settings.ImageFilePath));
}

void ViewImage::mnuHelpViewer_Click() { ShowHelp(bench_.platform, topic::kImageViewer); }

// The picker.

SelectPictureForm::SelectPictureForm(Workbench& bench, Shell& shell)
    : ToolForm("SelectPictureForm", bench, shell) {
  Caption = "Select a picture";
  Drive1.ToolTipText = "Drive";
  Dir1.ToolTipText = "Double click a folder to open it";
  Label1.BackColor = ToggleLabel::kOff;
  Command1.Cancel = true;
  Command2.MakeDefault();
  Drive1.Click = [this] { Drive1_Change(); };
  Dir1.DblClick = [this] { Dir1_DblClick(); };
  File1.DblClick = [this] { Command2_Click(); };
  connections_.push_back(File1.ListIndex.Changed.Connect([this] { file1_Click(); }));
  Load = [this] { Form_Load(); };
}

void SelectPictureForm::Form_Load() {
  const Files& files = bench_.platform.files;
  const std::string& shown = bench_.settings.ImageFilePath;
  const std::string folder = shown.substr(0, std::min(shown.rfind('\\') + 1, shown.size()));
  std::vector<std::string> drives;
  for (const char letter : files.DriveLetters()) drives.push_back({letter, ':'});
  Drive1.FillInOrder(std::move(drives));
  ShowFolder(files.FolderExists(folder) ? folder : bench_.platform.folder);
}

void SelectPictureForm::ShowFolder(const std::string& path) {
  const auto whole = CurrentFolders().Complete(path);
  if (!whole) return;
  const Files& files = bench_.platform.files;
  Path = whole->Text();
  const auto drive = std::find(Drive1.List().begin(), Drive1.List().end(), Path.Get().substr(0, 2));
  Drive1.ListIndex = drive == Drive1.List().end() ? -1 : static_cast<int>(drive - Drive1.List().begin());

  LogicalPath step{.drive = whole->drive};
  std::vector<std::string> rows = {step.Text()};
  folders_ = {step.Text()};
  const auto add = [&](const std::string& name, const std::string& folder) {
    rows.push_back(std::string(2 * (step.names.size() + 1), ' ') + name);
    folders_.push_back(folder);
  };
  for (const std::string& name : whole->names) {
    add(name, Joined(step.Text(), name));
    step.names.push_back(name);
  }
  const int current = static_cast<int>(rows.size()) - 1;
  for (const std::string& name : files.FoldersIn(Path.Get())) add(name, Joined(Path, name));
  Dir1.FillInOrder(std::move(rows));
  Dir1.ListIndex = current;

  std::vector<std::string> pictures;
  for (const char* const ending : kEndings) {
    const std::vector<std::string> found = files.FilesIn(Path.Get(), ending);
    pictures.insert(pictures.end(), found.begin(), found.end());
  }
  File1.Fill(std::move(pictures));
}

void SelectPictureForm::Drive1_Change() {
  const std::string drive = Drive1.Text();
  if (!drive.empty()) ShowFolder(drive + "\\");
}

void SelectPictureForm::Dir1_DblClick() {
  if (Dir1.ListIndex >= 0) ShowFolder(std::string(folders_[static_cast<std::size_t>(Dir1.ListIndex.Get())]));
}

void SelectPictureForm::file1_Click() {
  if (File1.Current().empty()) return;
  const std::string path = LowerCase(Joined(Path, File1.Current()));
  Label1.Caption = path;
  LoadInto(ImagePreview, path, bench_.platform.files);
}

/// Without a picked file the picture stays the one it was.
void SelectPictureForm::Command2_Click() {
  if (!Label1.Caption.Get().empty()) bench_.settings.ImageFilePath = Label1.Caption;
  Close();
}

}  // namespace tarvik
