// The bar above the text on screen: as high as its words need at the width that there is.
#pragma once

#include <QBoxLayout>
#include <QFrame>

#include "app/NoticeBar.h"
#include "screen/widgets/Binding.h"

namespace tarvik::screen {

class NoticeView : public QFrame {
 public:
  NoticeView(NoticeBar& notice, Bindings& bindings, QWidget* parent);

  /// Its buttons, from left to right.
  [[nodiscard]] const std::vector<QWidget*>& buttons() const { return buttons_; }

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Fit();

  NoticeBar& notice_;
  std::vector<QWidget*> buttons_;
  QBoxLayout* parts_ = nullptr;
};

}  // namespace tarvik::screen
