#include "hardware/Games.h"

#include "app/Editor.h"

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

void StartGame(Application&, int) {}

}  // namespace tarvik
