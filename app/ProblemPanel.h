// The panel below the text that lists what is wrong in the two files, and the count in the status bar that
// opens it.
#pragma once

#include "workbench/Workbench.h"

namespace tarvik {

class ProblemPanel {
 public:
  /// Its controls are the form's.
  ProblemPanel(Form& form, Workbench& bench);

  Frame frame;
  ListBox list;
  CommandButton explain;
  CommandButton close;

  [[nodiscard]] static Pixels Height() { return Pixels{150}; }
  /// Tells more of the problem in hand.
  std::function<void(const model::Rule&)> help = [](const model::Rule&) {};

 private:
  void Show();
  void Fill();
  void GoToProblem();
  void Explain() const;
  [[nodiscard]] const model::Problem* InHand() const;

  Workbench& bench_;
  std::vector<model::Problem> shown_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
