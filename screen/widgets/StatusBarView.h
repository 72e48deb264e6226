// The frame's status bar: panels with texts and pictures, the progress bar in front of them, and the count of
// problems behind the first.
#pragma once

#include <QStatusBar>

#include "screen/widgets/Binding.h"

namespace tarvik::screen {

/// One panel. A text that is too long for it is cut, with the whole text as the tool tip.
class PanelView : public QWidget {
 public:
  PanelView(Panel& panel, Bindings& bindings, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QRect TextPlace() const;

  Panel& panel_;
  QString text_;
  QIcon picture_;
};

class StatusBarView : public QStatusBar {
 public:
  StatusBarView(StatusBar& bar, ProgressBar& progress, CommandButton& problems, Bindings& bindings,
                QWidget* parent);
};

}  // namespace tarvik::screen
