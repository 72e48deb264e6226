// The tip of the day and the box about the program.
#pragma once

#include <random>

#include "controls/Controls.h"
#include "workbench/Shell.h"

namespace tarvik {

/// Shows a line of the tips file, drawn at random, and says whether tips come at the start.
class frmTip : public Form {
 public:
  explicit frmTip(Workbench& bench, Shell& shell);

  Label Label1{*this, "Label1"};
  Label lblTipText{*this, "lblTipText"};
  CheckBox chkLoadTipsAtStartup{*this, "chkLoadTipsAtStartup", "&Show Tips at Startup"};
  CommandButton cmdNextTip{*this, "cmdNextTip", "&Next Tip"};
  CommandButton cmdOK{*this, "cmdOK", "&OK"};

  /// 1-based; 0 where there are no tips.
  Property<int> CurrentTip{*this, "CurrentTip", 0};

  void Form_Load();
  void cmdNextTip_Click() { DoNextTip(); }
  void cmdOK_Click();

  void LoadTips(const std::string& path);
  void DoNextTip();
  void DisplayCurrentTip();

 private:
  Workbench& bench_;
  Shell& shell_;
  std::vector<std::string> tips_;
  std::minstd_rand random_;
};

class frmAbout : public Form {
 public:
  explicit frmAbout(Workbench& bench, Shell& shell);

  Label lblVersion{*this, "lblVersion"};
  Label lblDescription{*this, "lblDescription"};
  CommandButton cmdOK{*this, "cmdOK", "&OK"};
  CommandButton cmdSysInfo{*this, "cmdSysInfo", "&System Info..."};
  CommandButton cmdLog{*this, "cmdLog", "&Log..."};

  void Form_Load() { Topmost = true; }
  void cmdSysInfo_Click();

 private:
  Workbench& bench_;
  Shell& shell_;
};

}  // namespace tarvik
