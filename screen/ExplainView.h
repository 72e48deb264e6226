// The panel below the text that tells what the statement at the caret means.
#pragma once

#include "app/ExplainPanel.h"
#include "screen/PanelFrame.h"

namespace tarvik::screen {

class ExplainView : public PanelFrame {
 public:
  ExplainView(ExplainPanel& panel, Bindings& bindings, QWidget* parent);
};

}  // namespace tarvik::screen
