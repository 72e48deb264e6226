// The welcome page, over the middle of the empty files.
#pragma once

#include <QFrame>

#include "app/WelcomePage.h"
#include "screen/widgets/Binding.h"

namespace tarvik::screen {

class WelcomeView : public QFrame {
 public:
  WelcomeView(WelcomePage& welcome, Bindings& bindings, QWidget* parent);

  /// As the Tab key goes through them.
  [[nodiscard]] const std::vector<QWidget*>& parts() const { return parts_; }
  /// Stands in the middle of the place, below the line where somebody begins to type.
  void StandIn(const QRect& place);

 protected:
  bool event(QEvent* event) override;

 private:
  [[nodiscard]] QLayout* Under(const char* title, const std::vector<QWidget*>& widgets);
  void Fit();

  QRect place_;
  std::vector<QWidget*> parts_;
};

}  // namespace tarvik::screen
