// The texts that were not saved when the program ended: each beside what its file holds now, with what can be
// done about it.
#pragma once

#include "tools/recovery/SideBySide.h"

namespace tarvik {

class UnsavedTexts : public ToolForm {
 public:
  UnsavedTexts(Workbench& bench, Shell& shell);

  Label Explanation{*this, "Explanation"};
  ListBox Texts{*this, "Texts"};  ///< a line for each text, the newest first
  SideBySide texts{*this, bench_, "FileText", "UnsavedText"};
  CommandButton BringBack{*this, "BringBack", "&Bring back", &UnsavedTexts::BringBack_Click};
  CommandButton KeepBoth{*this, "KeepBoth", "&Keep both", &UnsavedTexts::KeepBoth_Click};
  CommandButton ThrowAway{*this, "ThrowAway", "&Throw away", &UnsavedTexts::ThrowAway_Click};
  CommandButton NextDifference{*this, "NextDifference", "Ne&xt difference",
                               &UnsavedTexts::NextDifference_Click};
  CommandButton Later{*this, "Later", "&Later", &UnsavedTexts::Close};

  void BringBack_Click() { WithPicked(&Recovery::BringBack); }
  void KeepBoth_Click() { WithPicked(&Recovery::KeepBoth); }
  void ThrowAway_Click() { WithPicked(&Recovery::ThrowAway); }
  void NextDifference_Click() { texts.GoToNext(); }

 private:
  void FillList();
  void ShowPicked();
  void WithPicked(void (Recovery::*act)(const std::string& journal));

  std::vector<Connection> connections_;
};

}  // namespace tarvik
