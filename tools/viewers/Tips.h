// The tip of the day and the box about the program.
#pragma once

#include <random>

#include "controls/Controls.h"
#include "workbench/ToolForm.h"

namespace tarvik {

/// Shows a line of the tips file, drawn at random, and says whether tips come at the start.
class frmTip : public ToolForm {
 public:
  explicit frmTip(Workbench& bench, Shell& shell);

  Label Label1{*this, "Label1"};
  Label lblTipText{*this, "lblTipText"};
  CheckBox chkLoadTipsAtStartup{*this, "chkLoadTipsAtStartup", "&Show Tips at Startup"};
  CommandButton cmdNextTip{*this, "cmdNextTip", "&Next Tip", &frmTip::cmdNextTip_Click};
  CommandButton cmdOK{*this, "cmdOK", "&OK", &frmTip::cmdOK_Click};

  /// The number of the tip on show, counted from 1; 0 where there are no tips.
  Property<int> CurrentTip{*this, "CurrentTip", 0};

  void Form_Load();
  void cmdNextTip_Click() { DoNextTip(); }
  void cmdOK_Click();

  void LoadTips(const std::string& path);
  void DoNextTip();
  void DisplayCurrentTip();

 private:
  std::vector<std::string> tips_;
  std::minstd_rand random_;
};

/// Tells what the program is, its licence and what it runs with, and copies that.
class frmAbout : public ToolForm {
 public:
  explicit frmAbout(Workbench& bench, Shell& shell);

  Label lblVersion{*this, "lblVersion"};
  Label lblDescription{*this, "lblDescription"};
  Label lblLicence{*this, "lblLicence"};
  Label lblLibraries{*this, "lblLibraries"};
  CommandButton cmdOK{*this, "cmdOK", "&OK", &frmAbout::Close};
  CommandButton cmdSysInfo{*this, "cmdSysInfo", "&System info ...", &frmAbout::cmdSysInfo_Click};
  CommandButton cmdLog{*this, "cmdLog", "&Log ...", &frmAbout::cmdLog_Click};
  CommandButton cmdCopy{*this, "cmdCopy", "&Copy", &frmAbout::cmdCopy_Click};

  void Form_Load();
  void cmdSysInfo_Click();
  void cmdLog_Click() { shell_.Show(ToolId::Log); }
  void cmdCopy_Click();
};

}  // namespace tarvik
