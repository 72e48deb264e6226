// The bar of the search below the text, on screen.
#pragma once

#include <QFrame>

#include "app/FindBar.h"
#include "screen/widgets/Binding.h"

namespace tarvik::screen {

/// Enter goes to the next hit and Shift+Enter to the one before, Escape back to where the search began.
class FindView : public QFrame {
 public:
  FindView(FindBar& find, Bindings& bindings, QWidget* parent);

  /// What takes the focus, from left to right.
  [[nodiscard]] const std::vector<QWidget*>& parts() const { return parts_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  FindBar& find_;
  std::vector<QWidget*> parts_;
};

}  // namespace tarvik::screen
