// A picture that is drawn on by code, on screen. It keeps what was drawn for as long as its window lives, and
// has the screen repaint only what came out differently.
#pragma once

#include <QImage>
#include <QWidget>

#include "controls/PlotBox.h"
#include "screen/widgets/Binding.h"

namespace tarvik::screen {

class PlotView : public QWidget {
 public:
  PlotView(PlotBox& box, Bindings& bindings);

  /// What is drawn at a place in the picture's units.
  [[nodiscard]] Colour ColourAt(float x, float y);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// The image in the size that the view has now, with what was drawn before.
  QImage& Image();
  void Clear();
  void Draw(const Stroke& stroke);
  void AskForChanges();
  void ShowChanges();
  [[nodiscard]] QPoint PlaceOf(float x, float y) const;

  PlotBox& box_;
  QImage image_;
  QImage shown_;  // what the screen has been asked to paint
  bool asked_ = false;
};

}  // namespace tarvik::screen
