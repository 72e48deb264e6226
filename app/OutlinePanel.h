// What the file on top is made of, in the place of the macro lists: headings, and below each what it holds.
#pragma once

#include "language/Outline.h"
#include "workbench/Workbench.h"

namespace tarvik {

class OutlinePanel {
 public:
  /// Its controls are the form's.
  OutlinePanel(Form& form, Workbench& bench);

  /// Which of the two is on show: the macros, or the outline.
  TabStrip tabs;
  ListBox list;
  Pause pause;

 private:
  void Show();
  void Fill();
  /// Takes the row in hand that the caret is in.
  void FollowCaret();
  void GoToRow();

  Workbench& bench_;
  std::vector<model::OutlineRow> rows_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
