// A panel below the text of the editor, which Escape ends.
#pragma once

#include <QFrame>

#include "screen/widgets/Binding.h"

namespace tarvik::screen {

class PanelFrame : public QFrame {
 public:
  /// It stands where the frame's properties say, in pixels.
  PanelFrame(Frame& frame, Bindings& bindings, std::function<void()> escape, QWidget* parent);

  /// What can have the focus, in order.
  [[nodiscard]] const std::vector<QWidget*>& parts() const { return parts_; }

 protected:
  void SetParts(std::vector<QWidget*> parts) { parts_ = std::move(parts); }
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::function<void()> escape_;
  std::vector<QWidget*> parts_;
};

}  // namespace tarvik::screen
