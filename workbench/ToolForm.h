// What the forms of the tools have in common: each is handed the workbench, and the shell for what is not its
// own.
#pragma once

#include "workbench/Shell.h"

namespace tarvik {

class ToolForm : public Form {
 protected:
  ToolForm(std::string_view name, Workbench& bench, Shell& shell)
      : Form(name), bench_(bench), shell_(shell) {}

  /// Ends the tool. The handler that calls it touches the form no more.
  void Close() { shell_.Unload(*this); }
  /// Tells in the status bar what has come of a command.
  void Say(const std::string& text) const { bench_.documents.Say(text); }

  Workbench& bench_;
  Shell& shell_;
};

}  // namespace tarvik
