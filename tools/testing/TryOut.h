// Trying the two files out: controls are pressed on the drawing of the device, by the keyboard or by a run
// that was saved, and what comes of it is shown: keys, buttons, flags, and which line of which file sent it.
// Nothing is sent to any other program.
#pragma once

#include <deque>

#include "kneeboard/Contents.h"
#include "language/ComposerTables.h"
#include "play/DryRun.h"
#include "workbench/Pause.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class TryOut : public ToolForm {
 public:
  static constexpr int kTick = 20;  ///< milliseconds
  static constexpr std::size_t kMostLines = 300;

  TryOut(Workbench& bench, Shell& shell);

  // The device.
  TabPages Devices{*this, "Devices", {"Stick", "Stick", "Throttle", "Throttle"}};
  NamedControls<Label> hardware{*this};  ///< as in the Composer; with a border while its control is down
  ListBox Controls{*this, "Controls"};   ///< what can be pressed, with what it does
  CheckBox S3{*this, "S3", "S3 held in"};
  ControlArray<OptionButton> Dogfight{*this, "Dogfight", {"Up", "Middle", "Down"}};
  ControlArray<Slider> Axes{*this, "Axes", static_cast<int>(play::kAxisNames.size())};

  // What comes of it.
  ListBox Log{*this, "Log"};  ///< the newest line is the first
  ListBox Flags{*this, "Flags"};
  Label KeysDown{*this, "KeysDown"};        ///< by their names
  Label ButtonsDown{*this, "ButtonsDown"};  ///< of the mouse and the ports
  Label Told{*this, "Told"};                ///< what became of the last command

  // Time, and runs.
  ComboBox Speed{*this, "Speed"};
  CommandButton StepOn{*this, "StepOn", "Step", &TryOut::StepOn_Click};
  CommandButton LetGo{*this, "LetGo", "Let go", &TryOut::LetGo_Click};
  CommandButton Begin{*this, "Begin", "Begin anew", &TryOut::Begin_Click};
  CommandButton OpenRun{*this, "OpenRun", "Open run ...", &TryOut::OpenRun_Click};
  CommandButton SaveRun{*this, "SaveRun", "Save run ...", &TryOut::SaveRun_Click};
  CommandButton PlayAgain{*this, "PlayAgain", "Play again", &TryOut::PlayAgain_Click};
  CommandButton FlyButton{*this, "FlyButton", "Fly ...", &TryOut::FlyButton_Click};
  CommandButton Done{*this, "Done", "Close", &TryOut::Close};
  Timer TimerTryOut{*this, "TimerTryOut"};
  Pause pause{*this, "TimerTryOutFiles", 10, [this] { TakeFiles(); }};

  void Form_Activate() { shell_.HideToolbar(); }
  void Form_KeyDown(Key& key);
  void Form_KeyUp(Key& key);
  void StepOn_Click();
  void LetGo_Click();
  void Begin_Click();
  void OpenRun_Click();
  void SaveRun_Click();
  void PlayAgain_Click();
  void FlyButton_Click() { shell_.Show(ToolId::Fly); }
  void TimerTryOut_Timer();

  [[nodiscard]] Label& LabelOf(const tables::HardwareRow& row) const;
  /// Presses what a label stands for until `Release`. The place is counted from the middle of the control,
  /// with 1 and -1 at its edges: a hat goes that way, and the right half of the trigger is its second stage.
  void Press(const Label& label, double x, double y);
  void Release();
  [[nodiscard]] bool IsDown(play::Key key) const { return run_.engine().IsDown(key); }

 private:
  /// A control as the page of its device has it.
  struct Shown {
    std::string name;
    Label* label = nullptr;  // null for one that the drawing does not have
    char position = 0;
    std::uint32_t control = 0;  // of the program
    std::string corner = {};    // of a hat: "UL"; empty for what is none
  };
  struct Place {
    model::FileKind file = model::FileKind::Joystick;
    Range range = {};
  };
  struct Line {
    std::string text;
    std::optional<Place> place;
  };

  void AttachHandlers();
  void TakeFiles();
  void ShowDevices(const std::vector<kneeboard::DevicePage>& pages);
  void ShowControls(const std::vector<kneeboard::DevicePage>& pages);
  void ShowAxes(const std::vector<kneeboard::DevicePage>& pages);
  [[nodiscard]] std::vector<std::string> NamesAt(const Label& label, double x, double y) const;
  void Put(const std::string& name, play::EventKind kind);
  void Latch(const std::string& name);
  void MoveAxis(int axis);
  /// What a stick that is plugged in does.
  void Take(const play::ControlEvent& event);
  void TurnDogfight(int place);
  void Sent(const play::Output& output);
  /// Shows what has come since.
  void ShowNews();
  void ShowButtons();
  void ShowFlags();
  void ShowSwitches();
  void GoToLine(int line);
  void Tell(const std::string& text) { Told.Caption = text; }
  [[nodiscard]] play::PlayedFiles Files() const;
  void PlayText(std::string text);

  std::vector<Shown> shown_;
  std::vector<std::string> pressed_;  // by the mouse or a key, until it is let go
  std::string middle_ = {};           // of the hat that is pressed there, where it sends anything
  std::vector<std::string> latched_;  // down until they are put again
  std::deque<Line> lines_;
  std::string opened_;  // the text of the run that was opened last
  bool isShowing_ = false;
  bool hasNews_ = true;
  std::vector<Connection> connections_;
  play::DryRun run_;  // behind all that it tells of
  std::unique_ptr<StickFeed::Listening> listening_;
};

}  // namespace tarvik
