// The panel below the text that lists what is wrong in the two files.
#pragma once

#include "app/ProblemPanel.h"
#include "screen/PanelFrame.h"

namespace tarvik::screen {

class ProblemView : public PanelFrame {
 public:
  ProblemView(ProblemPanel& panel, Bindings& bindings, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ProblemPanel& panel_;
};

}  // namespace tarvik::screen
