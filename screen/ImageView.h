// A picture from a file, on screen: as large as its place allows, in its own proportions.
#pragma once

#include <QPixmap>
#include <QWidget>

#include "controls/ImageBox.h"
#include "screen/Binding.h"

namespace tarvik::screen {

/// The picture in a file's bytes, made smaller where it has more pixels than a screen can show; null for
/// whatever is no picture that can be read.
[[nodiscard]] QImage PictureIn(std::string_view bytes);

class ImageView : public QWidget {
 public:
  ImageView(ImageBox& box, Bindings& bindings);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ImageBox& box_;
  QPixmap picture_;
};

}  // namespace tarvik::screen
