// A label for text with a path in it: however long that is, the window keeps its size. The text is cut in its
// middle, and the tool tip has all of it.
#pragma once

#include <QLabel>

namespace tarvik::screen {

class PathLabel : public QLabel {
 public:
  PathLabel();

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
  /// What stands there.
  [[nodiscard]] QString Shown() const;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tarvik::screen
