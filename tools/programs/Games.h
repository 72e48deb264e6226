// Games: a click in their menu saves the files, downloads the joystick file that goes with the game, starts
// the game, and closes the program.
#pragma once

#include "workbench/ToolForm.h"

namespace tarvik {

/// Asks for a game's details.
class EnterGameName : public ToolForm {
 public:
  explicit EnterGameName(Workbench& bench, Shell& shell);

  TextBox Text1{*this, "Text1"};  ///< the name
  TextBox Text2{*this, "Text2"};  ///< the command line
  TextBox Text3{*this, "Text3"};  ///< the folder to start in
  TextBox Text4{*this, "Text4"};  ///< the joystick file
  CheckBox Check1{*this, "Check1", "Transfer joystick file to joystick before starting game"};
  CheckBox CheckFly{*this, "CheckFly", "Fly while the game runs: what the stick does is sent to it as keys"};
  ControlArray<CommandButton> Command1{*this, "Command1", 2};
  CommandButton Command2{*this, "Command2", "Select"};
  CommandButton Command3{*this, "Command3", "OK"};
  CommandButton Command4{*this, "Command4", "Cancel"};
  CommandButton Command5{*this, "Command5"};
  CommandButton Command6{*this, "Command6"};

  void Text_Change();
  void Check1_Click() { bench_.lists.GameUseJF = Check1.Value.ToText(); }
  void CheckFly_Click() { bench_.lists.GameFly = CheckFly.Value.ToText(); }
  void Command1_Click(int index);
  void Command2_Click();
  void Command3_Click();
  void Command4_Click() { Close(); }
  void Command5_Click();
  void Command6_Click();

 private:
  void AttachHandlers();
  void CopyToRecord();
};

/// Asks for a game, and puts it first in the list.
void AddGame(Workbench& bench, Shell& shell);

/// Starts the game of that row of the list, counted from 1.
void StartGame(Workbench& bench, Shell& shell, int index);

}  // namespace tarvik
