// The panel below the text that tells in words what the statement at the caret means, and follows the caret.
#pragma once

#include "workbench/Workbench.h"

namespace tarvik {

class ExplainPanel {
 public:
  /// Its controls are the form's.
  ExplainPanel(Form& form, Workbench& bench);

  Frame frame;
  Label text;
  CommandButton close;
  Pause pause;

  [[nodiscard]] static Pixels Height() { return Pixels{76}; }

 private:
  void Show();
  void Explain();

  Workbench& bench_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
