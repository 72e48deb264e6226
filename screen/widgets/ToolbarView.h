// The frame's toolbar: buttons in one row, or in as many as they need, with the colour swatch at its place
// among them.
#pragma once

#include <QToolButton>
#include <vector>

#include "screen/widgets/Binding.h"

namespace tarvik::screen {

/// Shows the present text colour and opens the choice of another.
class SwatchView : public QToolButton {
 public:
  SwatchView(PictureBox& swatch, Bindings& bindings, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PictureBox& swatch_;
};

/// A position without an image is a divider. Buttons beyond the end of a single row go into a menu there.
class ToolbarView : public QWidget {
 public:
  /// The swatch takes the place of button `swatchButton`, 1-based.
  ToolbarView(Toolbar& toolbar, PictureBox& swatch, int swatchButton, Bindings& bindings, QWidget* parent);

  [[nodiscard]] bool hasHeightForWidth() const override { return true; }
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Position {
    QToolButton* widget;
    ToolbarButton* button;  ///< null for the swatch
  };

  [[nodiscard]] int WidthOf(const Position& position) const;
  /// Where each position stands, an empty place for what does not fit; and the height of all rows.
  [[nodiscard]] std::pair<std::vector<QRect>, int> Arrange(int width) const;
  void Rearrange();
  void PutOutLights() const;
  void ShowOverflow();

  Toolbar& toolbar_;
  std::vector<Position> positions_;
  std::vector<QRect> dividers_;
  QToolButton* overflow_;
};

}  // namespace tarvik::screen
