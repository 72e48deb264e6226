// A picture from a file, on screen: as large as its place allows, in its own proportions. The window does not
// wait for it.
#pragma once

#include <QPixmap>
#include <QWidget>

#include "controls/ImageBox.h"
#include "screen/widgets/Binding.h"
#include "screen/widgets/PictureReader.h"

namespace tarvik::screen {

class ImageView : public QWidget {
 public:
  ImageView(ImageBox& box, Bindings& bindings);

  /// The picture is on its way.
  [[nodiscard]] bool IsReading() const { return reader_.IsReading(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Show(const QImage& picture);
  [[nodiscard]] QString Word() const;

  ImageBox& box_;
  QPixmap picture_;
  PictureReader reader_;
};

}  // namespace tarvik::screen
