#include "tools/programs/Games.h"

#include <functional>

#include "tools/programs/Download.h"
#include "tools/programs/Shell32.h"
#include "workbench/FileTypes.h"

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
    "that's not always !! :) ";
constexpr const char* kNotRun =
    "Sorry, but I couldn't run your game .... please check how you've setup Tarvik to run this game ... "
    "there may be an error there";

using Step = std::function<Outcome<>()>;

/// Takes one step after another, until one fails.
Outcome<> InOrder(std::initializer_list<Step> steps) {
  for (const Step& step : steps) {
    if (auto done = step(); !done) return done;
  }
  return Done{};
}

/// Sends the game's joystick file to the stick, and waits until it is there. What the loader says of itself
/// is not asked.
Outcome<> Transfer(Workbench& bench, Shell& shell) {
  Files& files = bench.platform.files;
  const std::string drive = bench.settings.B50LoadPath.Get().substr(0, 1) + ":";
  return InOrder({
      [&] { return files.ChangeDrive(drive); },
      [&] { return files.ChangeFolder(drive + "\\"); },
      [&] { return files.ChangeFolder(FolderOfControlCentre(bench.settings)); },
      [&]() -> Outcome<> {
        shell.Frame().Visible = false;
        RunLoader(bench, shell, bench.lists.GameJF);
        return Done{};
      },
  });
}

/// Starts the game of the record in hand, plays the two files for it, and waits until it has ended.
Outcome<> FlyWith(Workbench& bench, Shell& shell) {
  bench.flight.Begin();
  const auto ended = ShellAndWait(bench, shell, bench.lists.GamePath);
  bench.flight.End();
  if (!ended) return ended.failure();
  return Done{};
}

/// Starts the game of the record in hand.
Outcome<> Run(Workbench& bench, Shell& shell) {
  Files& files = bench.platform.files;
  const PreviousFiles& lists = bench.lists;
  return InOrder({
      [&] { return lists.GameUseJF.Get() == "1" ? Transfer(bench, shell) : Done{}; },
      [&] { return files.ChangeDrive(lists.GameDIRPath.Get()); },
      [&] { return files.ChangeFolder(lists.GameDIRPath.Get()); },
      [&] {
        return lists.GameFly.Get() == "1"
                   ? FlyWith(bench, shell)
                   : bench.platform.programs.Start(lists.GamePath, WindowStyle::Normal);
      },
  });
}

/// Saves each document that is modified, and takes it for saved whatever came of that, so that nothing is
/// asked at the end of the program. When the program goes on, what is not saved counts as modified again.
class FilesTakenForSaved {
 public:
  explicit FilesTakenForSaved(Workbench& bench) {
    for (Document* const document : {&bench.documents.joystick, &bench.documents.macro}) {
      if (document->Dirty != saved::kModified) continue;
      bench.documents.Select(*document);
      bench.files.Save(*document);
    }
    for (Document* const document : {&bench.documents.joystick, &bench.documents.macro}) {
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

void SayWhyNot(Workbench& bench, const Outcome<>& run) {
  Trap{bench.errors, "ED_mnuGameArray_Click"}(run);
  const bool notFound = run.failure().text.find("found") != std::string::npos;
  bench.platform.dialogs.Show(
      {"Ooopps ! I'm confused buddy!", notFound ? kNotFound : kNotRun, BoxIcon::Exclamation, BoxButtons::Ok});
}

}  // namespace

EnterGameName::EnterGameName(Workbench& bench, Shell& shell) : ToolForm("EnterGameName", bench, shell) {
  Caption = "Enter game details - click on the help buttons for information";
  Topmost = true;
  for (int i = 0; TextBox * box : {&Text1, &Text2, &Text3, &Text4}) {
    box->Text = std::string(kSamples[i++]);
    // The user types over a sample.
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
  CheckFly.Click = [this] { CheckFly_Click(); };
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
  PreviousFiles& lists = bench_.lists;
  lists.GameName = Text1.Text.Get();
  lists.GamePath = Text2.Text.Get();
  lists.GameDIRPath = Text3.Text.Get();
  lists.GameJF = Text4.Text.Get();
  Check1_Click();
  CheckFly_Click();
}

void EnterGameName::Text_Change() {
  CopyToRecord();
  Command3.Enabled = !Text1.Empty() && !Text2.Empty() && !Text3.Empty();
}

void EnterGameName::Command1_Click(int index) {
  const bool game = index == 0;
  const std::string type =
      game ? std::string(filetypes::kExecutables)
           : filetypes::OfEnding("Joystick file", bench_.settings.JoystickExtension.Get());
  const auto chosen =
      bench_.platform.dialogs.AskForFile({FileDialogKind::Open,
                                          {},
                                          filetypes::InOrder({type, filetypes::kAll}),
                                          game ? std::string() : bench_.settings.ProgramFilesPath.Get(),
                                          {},
                                          {}});
  if (!chosen) return;
  (game ? Text2 : Text4).Text = *chosen;
  if (game && Text3.Text.Get().starts_with("eg")) Text3.Text = chosen->substr(0, chosen->rfind('\\') + 1);
}

void EnterGameName::Command2_Click() {
  const auto chosen =
      bench_.platform.dialogs.AskForFolder("Select your game's working directory", Text3.Text);
  if (chosen) Text3.Text = *chosen;
}

void EnterGameName::Command3_Click() {
  bench_.lists.GameDialogOK = 1;
  CopyToRecord();
  Close();
}

void EnterGameName::Command5_Click() {
  bench_.platform.dialogs.Show(
      {"Important information ... ", kAboutSwitches, BoxIcon::Information, BoxButtons::Ok});
}

void EnterGameName::Command6_Click() {
  bench_.platform.dialogs.Show(
      {"About the working directory ... ", kAboutFolder, BoxIcon::Information, BoxButtons::Ok});
}

void AddGame(Workbench& bench, Shell& shell) {
  PreviousFiles& lists = bench.lists;
  lists.GameDialogOK = 0;
  shell.ShowModal(shell.Tool<EnterGameName>());
  if (lists.GameDialogOK == 1) lists.UpdateGamesMenu();
}

void StartGame(Workbench& bench, Shell& shell, int index) {
  PreviousFiles& lists = bench.lists;
  const FilesTakenForSaved files(bench);
  lists.Games.Take(index);
  lists.UpdateGamesMenu();
  const Outcome<> run = Run(bench, shell);
  if (shell.Ended() || (run && shell.CloseProgram())) return;
  files.GoOn();
  if (!run) SayWhyNot(bench, run);
  shell.Frame().Visible = true;  // the transfer hid it
}

}  // namespace tarvik
