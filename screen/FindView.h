// The bar of the search below the text, on screen.
#pragma once

#include "app/FindBar.h"
#include "screen/PanelFrame.h"

namespace tarvik::screen {

/// Enter goes to the next hit and Shift+Enter to the one before, Escape back to where the search began.
class FindView : public PanelFrame {
 public:
  FindView(FindBar& find, Bindings& bindings, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  FindBar& find_;
};

}  // namespace tarvik::screen
