// Shows the user where the caret is: the line of the caret flashes on, off, on, off.
#pragma once

#include "workbench/Desk.h"

namespace tarvik {

class LineBlink {
 public:
  LineBlink(Desk& desk, Timer& timer) : desk_(desk), timer_(timer) {}

  /// Selects the line of the caret, in the pane of the selected tab, if it has text.
  void HighlightLineAtIP();
  /// Highlights the line and lets it flash.
  void Start();
  /// One of the three steps that follow.
  void Step();

 private:
  void PutSelectionBack();

  Desk& desk_;
  Timer& timer_;
  int step_ = 0;
  Range before_;  // what was selected before the line was
  Range highlight_;
  Document* document_ = nullptr;  // with the highlighted line
};

}  // namespace tarvik
