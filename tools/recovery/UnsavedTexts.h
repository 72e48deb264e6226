// The texts that were not saved when the program ended: each beside what its file holds now, with what can be
// done about it.
#pragma once

#include "panes/Pane.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class UnsavedTexts : public ToolForm {
 public:
  UnsavedTexts(Workbench& bench, Shell& shell);

  Label Label1{*this, "Label1"};
  ListBox List1{*this, "List1"};  ///< a line for each text, the newest first
  Pane FileText{*this, "FileText", bench_.platform.files};
  Pane LeftText{*this, "LeftText", bench_.platform.files};
  CommandButton Command1{*this, "Command1", "&Bring back", &UnsavedTexts::Command1_Click};
  CommandButton Command2{*this, "Command2", "&Keep both", &UnsavedTexts::Command2_Click};
  CommandButton Command3{*this, "Command3", "&Throw away", &UnsavedTexts::Command3_Click};
  CommandButton Command4{*this, "Command4", "Ne&xt difference", &UnsavedTexts::Command4_Click};
  CommandButton Command5{*this, "Command5", "&Later", &UnsavedTexts::Close};

  void Command1_Click() { WithPicked(&Recovery::BringBack); }
  void Command2_Click() { WithPicked(&Recovery::KeepBoth); }
  void Command3_Click() { WithPicked(&Recovery::ThrowAway); }
  /// Goes to it in both texts, and from the last one to the first.
  void Command4_Click();

 private:
  void FillList();
  void ShowPicked();
  void WithPicked(void (Recovery::*act)(const std::string& journal));

  std::vector<Difference> differences_;
  std::size_t next_ = 0;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
