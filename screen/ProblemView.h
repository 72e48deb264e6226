// The panel below the text that lists what is wrong in the two files.
#pragma once

#include <QFrame>

#include "app/ProblemPanel.h"
#include "screen/widgets/Binding.h"

namespace tarvik::screen {

class ProblemView : public QFrame {
 public:
  ProblemView(ProblemPanel& panel, Bindings& bindings, QWidget* parent);

  /// What can have the focus, in order.
  [[nodiscard]] const std::vector<QWidget*>& parts() const { return parts_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ProblemPanel& panel_;
  std::vector<QWidget*> parts_;
};

}  // namespace tarvik::screen
