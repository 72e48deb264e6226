#include "screen/widgets/ImageView.h"

#include <QKeyEvent>
#include <QPainter>

namespace tarvik::screen {

ImageView::ImageView(ImageBox& box, Bindings& bindings)
    : box_(box), reader_([this](const QImage& picture) { Show(picture); }) {
  setFocusPolicy(Qt::StrongFocus);
  bindings.BindControl(box, *this);
  bindings.Keep(box.Loaded.Connect([this](std::string_view bytes) {
    picture_ = QPixmap();
    reader_.Read(bytes);
    update();
  }));
}

void ImageView::Show(const QImage& picture) {
  picture_ = QPixmap::fromImage(picture);
  update();
}

/// What stands in the place of a picture.
QString ImageView::Word() const {
  if (reader_.IsReading()) return tr("Reading the picture ...");
  return box_.Picture.Get().empty() ? tr("No picture") : tr("This picture can't be shown.");
}

void ImageView::mouseDoubleClickEvent(QMouseEvent*) { box_.DblClick(); }

void ImageView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return box_.DblClick();
  QWidget::keyPressEvent(event);
}

void ImageView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (picture_.isNull()) {
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, Word());
    return;
  }
  const QSize shown = picture_.size().scaled(size(), Qt::KeepAspectRatio);
  QRect place(QPoint(0, 0), shown.expandedTo({1, 1}));
  place.moveCenter(rect().center());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(place, picture_);
}

}  // namespace tarvik::screen
