// The key test: what a programmed joystick really sends. Each press and release of a key is logged with its
// code and modifiers, and the stick's position, throttle, rudder and first buttons are shown as they move.
#pragma once

#include "controls/Menu.h"
#include "controls/PlotBox.h"
#include "panes/Pane.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class KeyTestForm : public ToolForm {
 public:
  static constexpr int kClearTimes = 5;
  static constexpr int kButtons = 4;

  explicit KeyTestForm(Workbench& bench, Shell& shell);

  Menus menus;
  // The logs: the keys by name, their presses, and their releases.
  Pane RTFKeysText;
  Pane RTFKeysDownText;
  Pane RTFKeysUpText;
  ToggleLabel LabelSHIFT{*this, "LabelSHIFT", "Shift"};
  ToggleLabel LabelCTRL{*this, "LabelCTRL", "Ctrl"};
  ToggleLabel LabelALT{*this, "LabelALT", "Alt"};
  ToggleLabel LabelNUMLOCK{*this, "LabelNUMLOCK", "Num Lock"};
  // The joystick.
  Label status{*this, "status"};
  PlotBox PictureJoystick{*this, "PictureJoystick"};
  Frame FrameRDDR{*this, "FrameRDDR"};
  Label LabelRDDR{*this, "LabelRDDR"};
  Frame FrameTHR{*this, "FrameTHR"};
  Label LabelTHR{*this, "LabelTHR"};
  ControlArray<ToggleLabel> JoyButtonAnalogue{*this, "JoyButtonAnalogue", kButtons};
  CommandButton Command1{*this, "Command1", "Exit"};
  /// Marks the logs as stale, so that the next press starts clean ones.
  Timer Timer1{*this, "Timer1"};
  Timer JoystickTimer{*this, "JoystickTimer"};

  Property<Colour> KeyColour{*this, "KeyColour"};
  Property<int> ColourStep{*this, "ColourStep", 1};
  /// A flag that is 1 lets the next event of its kind pass unnoticed, which sets the flag to 0. Nothing sets
  /// the first two to 1.
  Property<int> SkipKeyDown{*this, "SkipKeyDown", 0};
  Property<int> SkipKeyUp{*this, "SkipKeyUp", 0};
  Property<int> SkipKeyPress{*this, "SkipKeyPress", 0};
  /// While it is 1 the next press empties the logs.
  Property<int> ClearPending{*this, "ClearPending", 0};
  /// It is -1 while a time for emptying the logs is chosen, and 0 otherwise.
  Property<int> AutoClear{*this, "AutoClear", 0};
  /// What WhichKey said of the last key that was pressed.
  Property<std::string> KeyName{*this, "KeyName"};
  /// What the last reading of the joystick gave.
  Property<int> LastError{*this, "LastError", 0};
  Property<int> LastX{*this, "LastX", 0};
  Property<int> LastY{*this, "LastY", 0};
  Property<int> LastThrottle{*this, "LastThrottle", 0};
  Property<int> LastRudder{*this, "LastRudder", 0};

  void Form_Load();
  void Form_KeyDown(Key& key);
  void Form_KeyPress(int& character);
  void Form_KeyUp(const Key& key);
  void Form_Unload() { JoystickTimer.Enabled = false; }
  void RTFKeysText_LostFocus() { RTFKeysText.SetFocus(); }
  void Command1_Click() { Close(); }
  void mnuClose_Click() { Close(); }
  void mnuClearAll_Click() { ClearTextBoxes(); }
  void mnuClear500_Click(int index);
  void Timer1_Timer();
  void JoystickTimer_Timer();

  void ClearTextBoxes();
  /// What to log of a key that is pressed; empty for one that the character it types tells of.
  std::string WhichKey(int keyCode, int shift);
  /// Each turns lamps of modifiers on, or off, and gives the modifiers in a word.
  std::string GetKeyDownEvent(int keyCode, int shift);
  std::string GetKeyUpEvent(int keyCode, int shift);
  void TurnOffCapsLOCK() { bench_.platform.keyboard.TurnOff(kCapsLock); }
  /// Looks for the joystick, and starts reading it.
  void JoystickStuff();

  [[nodiscard]] const Menus* MenuBar() const override { return &menus; }

 private:
  void AttachHandlers();
  void ShowNumLock();
  void ShowWhetherThere(bool there);
  void NextColour();
  void ShowPoint();
  void ShowThrottle();
  void ShowRudder();

  JoyInfo info_;
  JoyCaps caps_;
};

}  // namespace tarvik
