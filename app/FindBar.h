// The bar below the text that searches both files while somebody types what for.
#pragma once

#include "workbench/Workbench.h"

namespace tarvik {

class FindBar {
 public:
  /// Its controls are the form's.
  FindBar(Form& form, Workbench& bench);

  Frame frame;
  TextBox text;
  CheckBox matchCase;
  CheckBox wholeWord;
  Label count;
  CommandButton previous;
  CommandButton next;
  CommandButton close;

  /// Comes up, with the selected words to look for.
  void Open();
  /// Goes; the hit in hand stays selected.
  void Close();
  /// Closes the bar and puts the caret back to where the search began.
  void Cancel();
  [[nodiscard]] static Pixels Height() { return Pixels{38}; }

 private:
  void LookFor();
  void ShowCount();
  void Go(void (IncrementalSearch::*step)());

  Workbench& bench_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
