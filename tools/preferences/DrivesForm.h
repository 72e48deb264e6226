// The drives: which folder of the host each letter stands for, with buttons that give it another one or none.
// The preferences show it.
#pragma once

#include "controls/Controls.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class DrivesForm : public ToolForm {
 public:
  explicit DrivesForm(Workbench& bench, Shell& shell);

  Label Label1{*this, "Label1"};
  ListBox List1{*this, "List1"};  ///< every letter, with its folder where it has one
  CommandButton Command1{*this, "Command1", "&Folder ...", &DrivesForm::Command1_Click};
  CommandButton Command2{*this, "Command2", "&Remove", &DrivesForm::Command2_Click};
  CommandButton Command3{*this, "Command3", "OK", &DrivesForm::Close};
  CommandButton Command4{*this, "Command4", "Help"};

  void Form_Load();
  void List1_Click();
  void Command1_Click();
  void Command2_Click();

 private:
  void ShowDrives();
  /// The letter in hand.
  [[nodiscard]] char Letter() const { return static_cast<char>('a' + List1.ListIndex); }
  [[nodiscard]] std::string FolderOf(char letter) const;
  /// False for a drive from which something is to be written back: the user is told what.
  bool MayChange(char letter);
  void Store(char letter, const std::string& folder);

  std::vector<Connection> connections_;
};

}  // namespace tarvik
