#include "tools/programs/Games.h"

#include <functional>

#include "app/Editor.h"
#include "tools/programs/Download.h"
#include "tools/programs/Shell32.h"

namespace tarvik {
namespace {

constexpr const char* kSamples[] = {"eg. F22 ADF", "eg. d:\\f22\\program\\_f22.exe", "eg. d:\\f22\\program",
                                    "eg. c:\\tm\\f22\\f22progs\\f22adf.f22"};

constexpr const char* kAboutSwitches =
    "Make sure you have any command line switches in here if they're required. You can get this information "
    "by right clicking on the shortcut to the game and selecting properties. For example, this is what mine "
    "is for Quake 2 .... D:\\Quake2\\quake2.exe +set cddir J:\\install\\data +set basedir d:\\QUAKE2";
constexpr const char* kAboutFolder =
    "The working directory is usually the directory the game's exe file is in. You can get this information "
    "by right clicking on the shortcut to the game and selecting properties. Copy the string from Start in "
    "to this text box.";

constexpr const char* kNotFound =
    "I don't think you've setup everything for this game properly. I couldn't find one of your files - this "
    "usually occurs becuase the path to the game isn't correct. Please go back and check it. No, don't look "
    "at me like that. I'm just a computer ... I'm stupid ...I only do what I'm told to do ... and then "
    "that's "
    "not always !! :) ";
constexpr const char* kNotRun =
    "Sorry, but I couldn't run your game .... please check how you've setup Tarvik to run this game ... "
    "there "
    "may be an error there";

constexpr int kMinimisedWithoutFocus = 6;  // without effect
constexpr int kNoLimit = -1;

using Step = std::function<Outcome<>()>;

/// One after another, until one fails.
Outcome<> InOrder(std::initializer_list<Step> steps) {
  for (const Step& step : steps) {
    if (auto done = step(); !done) return done;
  }
  return Done{};
}

/// Sends the game's joystick file to the stick, and waits until it is there. What the loader says of itself
/// is not asked.
Outcome<> Transfer(Application& application) {
  Files& files = application.platform.files;
  const std::string drive = application.settings.B50LoadPath.Get().substr(0, 1) + ":";
  return InOrder({
      [&] { return files.ChangeDrive(drive); },
      [&] { return files.ChangeFolder(drive + "\\"); },
      [&] { return files.ChangeFolder(FolderOfControlCentre(application.settings)); },
      [&]() -> Outcome<> {
        const std::string commandLine = LoaderCommandLine(application, application.lists.GameJF);
        application.mum().Visible = false;
        ShellAndWait(application, commandLine, kMinimisedWithoutFocus, kNoLimit);
        return Done{};
      },
  });
}

/// Starts the game of the record in hand.
Outcome<> Run(Application& application) {
  Files& files = application.platform.files;
  const PreviousFiles& lists = application.lists;
  return InOrder({
      [&] { return lists.GameUseJF.Get() == "1" ? Transfer(application) : Done{}; },
      [&] { return files.ChangeDrive(lists.GameDIRPath.Get()); },
      [&] { return files.ChangeFolder(lists.GameDIRPath.Get()); },
      [&] { return Shell(application, lists.GamePath, WindowStyle::Normal); },
  });
}

/// Saves each document that is modified, and takes it for saved whatever came of that, so that nothing is
/// asked at the end of the program. When the program goes on, what is not saved counts as modified again.
class FilesForTheEnd {
 public:
  explicit FilesForTheEnd(Editor& editor) {
    for (Document* const document : {&editor.Joystick, &editor.Macro}) {
      if (document->Dirty != saved::kModified) continue;
      editor.TabStrip1.Select(document->traits.tab);
      editor.mnuFileSave_Click();
    }
    for (Document* const document : {&editor.Joystick, &editor.Macro}) {
      before_.emplace_back(document, document->Dirty);
      document->Dirty = saved::kSaved;
    }
  }
  void GoOn() const {
    for (const auto& [document, dirty] : before_) {
      if (document->Dirty == saved::kSaved) document->Dirty = dirty;
    }
  }

 private:
  std::vector<std::pair<Document*, int>> before_;
};

void SayWhyNot(Application& application, const Outcome<>& run) {
  Trap{application.errors, "ED_mnuGameArray_Click"}(run);
  const bool notFound = run.failure().text.find("found") != std::string::npos;
  application.platform.dialogs.Show(
      {"Ooopps ! I'm confused buddy!", notFound ? kNotFound : kNotRun, BoxIcon::Exclamation, BoxButtons::Ok});
}

}  // namespace

EnterGameName::EnterGameName(Application& application) : Form("EnterGameName"), application_(application) {
  Caption = "Enter game details - click on the help buttons for information";
  Topmost = true;
  for (int i = 0; TextBox * box : {&Text1, &Text2, &Text3, &Text4}) {
    box->Text = std::string(kSamples[i++]);
    // A sample is there to be typed over.
    box->GotFocus = [box] {
      if (box->Text.Get().starts_with("eg")) box->SelectAll();
    };
    box->Change = [this] { Text_Change(); };
  }
  Text4.Change = [this] { CopyToRecord(); };
  Command3.Enabled = false;
  AttachHandlers();
  CopyToRecord();
  Text1.SetFocus();
}

void EnterGameName::AttachHandlers() {
  for (const int i : {0, 1}) {
    Command1(i).Caption = "Browse";
    Command1(i).Click = [this, i] { Command1_Click(i); };
  }
  Check1.Click = [this] { Check1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.MakeDefault();
  Command3.Click = [this] { Command3_Click(); };
  Command4.Cancel = true;
  Command4.Click = [this] { Command4_Click(); };
  Command5.Click = [this] { Command5_Click(); };
  Command5.ToolTipText = "About the game path";
  Command6.Click = [this] { Command6_Click(); };
  Command6.ToolTipText = "About the working directory";
}

void EnterGameName::CopyToRecord() {
  PreviousFiles& lists = application_.lists;
  lists.GameName = Text1.Text.Get();
  lists.GamePath = Text2.Text.Get();
  lists.GameDIRPath = Text3.Text.Get();
  lists.GameJF = Text4.Text.Get();
  Check1_Click();
}

void EnterGameName::Text_Change() {
  CopyToRecord();
  Command3.Enabled = !Text1.Empty() && !Text2.Empty() && !Text3.Empty();
}

void EnterGameName::Command1_Click(int index) {
  const bool game = index == 0;
  const std::string extension = application_.settings.JoystickExtension;
  const std::string joystickFiles = "Joystick file (*." + extension + ")|*." + extension;
  const auto chosen = application_.platform.dialogs.AskForFile(
      {FileDialogKind::Open,
       {},
       (game ? "Executables (*.exe)|*.exe" : joystickFiles) + "|All files (*.*)|*.*",
       game ? std::string() : application_.settings.ProgramFilesPath.Get(),
       {},
       {}});
  if (!chosen) return;
  (game ? Text2 : Text4).Text = *chosen;
  if (game && Text3.Text.Get().starts_with("eg")) Text3.Text = chosen->substr(0, chosen->rfind('\\') + 1);
}

void EnterGameName::Command2_Click() {
  const auto chosen =
      application_.platform.dialogs.AskForFolder("Select your game's working directory", Text3.Text);
  if (chosen) Text3.Text = *chosen;
}

void EnterGameName::Command3_Click() {
  application_.lists.GameDialogOK = 1;
  CopyToRecord();
  application_.Unload(*this);
}

void EnterGameName::Command5_Click() {
  application_.platform.dialogs.Show(
      {"Important information ... ", kAboutSwitches, BoxIcon::Information, BoxButtons::Ok});
}

void EnterGameName::Command6_Click() {
  application_.platform.dialogs.Show(
      {"About the working directory ... ", kAboutFolder, BoxIcon::Information, BoxButtons::Ok});
}

void AddGame(Application& application) {
  PreviousFiles& lists = application.lists;
  lists.GameDialogOK = 0;
  application.ShowModal(application.Tool<EnterGameName>());
  if (lists.GameDialogOK == 1) lists.UpdateGamesMenu();
}

void StartGame(Application& application, int index) {
  PreviousFiles& lists = application.lists;
  const FilesForTheEnd files(application.editor());
  lists.Games.Take(index);
  lists.UpdateGamesMenu();
  const Outcome<> run = Run(application);
  if (application.Ended() || (run && application.CloseMum())) return;
  files.GoOn();
  if (!run) SayWhyNot(application, run);
  application.mum().Visible = true;  // the transfer hid it
}

}  // namespace tarvik
