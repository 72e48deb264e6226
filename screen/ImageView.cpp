#include "screen/ImageView.h"

#include <QBuffer>
#include <QImageReader>
#include <QKeyEvent>
#include <QPainter>

#include "screen/Metafile.h"

namespace tarvik::screen {
namespace {

constexpr int kLongestSide = 4096;    // pixels
constexpr int kDrawingSide = 2048;    // of a picture that has no size in pixels
constexpr int kMostMegabytes = 1024;  // of memory for one picture

}  // namespace

QImage PictureIn(std::string_view bytes) {
  if (QImage drawing = MetafileIn(bytes, kDrawingSide); !drawing.isNull()) return drawing;
  QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&data);
  QImageReader reader(&buffer);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  QImageReader::setAllocationLimit(kMostMegabytes);
  const QSize size = reader.size();
  if (size.width() > kLongestSide || size.height() > kLongestSide) {
    reader.setScaledSize(size.scaled(kLongestSide, kLongestSide, Qt::KeepAspectRatio).expandedTo({1, 1}));
  }
  return reader.read();
}

ImageView::ImageView(ImageBox& box, Bindings& bindings) : box_(box) {
  setFocusPolicy(Qt::StrongFocus);
  bindings.BindControl(box, *this);
  bindings.Keep(box.Loaded.Connect([this](std::string_view bytes) {
    picture_ = QPixmap::fromImage(PictureIn(bytes));
    update();
  }));
}

void ImageView::mouseDoubleClickEvent(QMouseEvent*) { box_.DblClick(); }

void ImageView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return box_.DblClick();
  QWidget::keyPressEvent(event);
}

void ImageView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (picture_.isNull()) {
    const bool broken = !box_.Picture.Get().empty();
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     broken ? tr("This picture can't be shown.") : tr("No picture"));
    return;
  }
  const QSize shown = picture_.size().scaled(size(), Qt::KeepAspectRatio);
  QRect place(QPoint(0, 0), shown.expandedTo({1, 1}));
  place.moveCenter(rect().center());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(place, picture_);
}

}  // namespace tarvik::screen
