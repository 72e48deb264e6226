// Shows the user where the caret is: the line of the caret flashes on, off, on, off.
#pragma once

#include "workbench/Documents.h"

namespace tarvik {

class LineBlink {
  Documents& documents_;  // the timer is made in it

 public:
  explicit LineBlink(Documents& documents);

  Timer timer{documents_, "TimerBlinkLine"};

  /// Selects the line of the caret, in the pane of the selected tab, if it has text.
  void HighlightLineAtIP();
  /// Highlights the line and lets it flash.
  void Start();
  /// Ends the flashing, whatever is highlighted.
  void Stop();
  /// Takes one of the three steps that follow.
  void Step();

 private:
  void PutSelectionBack();

  int step_ = 0;
  Range before_;  // what was selected before the line was
  Range highlight_;
  Document* document_ = nullptr;  // with the highlighted line
};

}  // namespace tarvik
