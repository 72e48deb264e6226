// Playing the two files for real: begins and ends it, and tells how keys go, why not by a better way and what
// mends that, which sticks there are, and which keys are down.
#pragma once

#include "workbench/ToolForm.h"

namespace tarvik {

class Fly : public ToolForm {
 public:
  Fly(Workbench& bench, Shell& shell);

  Label State{*this, "State"};  ///< whether it flies, and why not
  Label Way{*this, "Way"};      ///< how keys go
  Label Mend{*this, "Mend"};    ///< the command that gives a better way; not visible where there is none
  CommandButton CopyMend{*this, "CopyMend", "&Copy", &Fly::CopyMend_Click};
  ListBox Sticks{*this, "Sticks"};  ///< with what they are mapped to
  CommandButton MapSticks{*this, "MapSticks", "&Map ...", &Fly::MapSticks_Click};
  Label KeysDown{*this, "KeysDown"};  ///< by their names
  CommandButton Start{*this, "Start", "&Fly", &Fly::Start_Click};
  CommandButton TryIt{*this, "TryIt", "Tr&y it out", &Fly::TryIt_Click};
  CommandButton Done{*this, "Done", "Close", &Fly::Close};
  CommandButton HelpButton{*this, "HelpButton", "Help"};

  void CopyMend_Click();
  void MapSticks_Click();
  void Start_Click();
  void TryIt_Click();

 private:
  void ShowFlight();
  void ShowSticks();
  void ShowKeys();

  std::vector<Connection> connections_;
  std::unique_ptr<StickFeed::Listening> listening_;
};

}  // namespace tarvik
