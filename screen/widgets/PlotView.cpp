#include "screen/widgets/PlotView.h"

#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <cstring>

#include "screen/widgets/Conversions.h"

namespace tarvik::screen {
namespace {

/// The pixels that differ in two images of one size.
QRect Difference(const QImage& left, const QImage& right) {
  const auto bytes = static_cast<std::size_t>(left.width()) * sizeof(QRgb);
  QRect differing;
  for (int y = 0; y < left.height(); ++y) {
    const uchar* const a = left.constScanLine(y);
    const uchar* const b = right.constScanLine(y);
    if (std::memcmp(a, b, bytes) == 0) continue;
    const auto* const from = std::mismatch(a, a + bytes, b).first;
    const auto fromBack = std::mismatch(std::reverse_iterator(a + bytes), std::reverse_iterator(a),
                                        std::reverse_iterator(b + bytes));
    const auto first = static_cast<int>(static_cast<std::size_t>(from - a) / sizeof(QRgb));
    const auto last =
        static_cast<int>(static_cast<std::size_t>(fromBack.first.base() - 1 - a) / sizeof(QRgb));
    differing |= QRect(QPoint(first, y), QPoint(last, y));
  }
  return differing;
}

}  // namespace

PlotView::PlotView(PlotBox& box, Bindings& bindings) : box_(box) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  bindings.BindControl(box, *this);
  bindings.BindMouse(box, *this);
  bindings.Keep(box.Drawn.Connect([this](const Stroke& stroke) { Draw(stroke); }));
  bindings.Keep(box.Cleared.Connect([this] { Clear(); }));
  bindings.Bind(box.BackColor, [this] { Clear(); });
}

QImage& PlotView::Image() {
  const QSize wanted = size() * devicePixelRatio();
  if (image_.size() == wanted) return image_;
  QImage image(wanted, QImage::Format_RGB32);
  image.setDevicePixelRatio(devicePixelRatio());
  image.fill(ToScreenColour(box_.BackColor));
  if (!image_.isNull() && !image.isNull()) QPainter(&image).drawImage(rect(), image_);
  image_ = image;
  return image_;
}

void PlotView::Clear() {
  Image().fill(ToScreenColour(box_.BackColor));
  AskForChanges();
}

void PlotView::Draw(const Stroke& stroke) {
  if (Image().isNull()) return;
  QPainter painter(&image_);
  QPen pen(ToScreenColour(stroke.colour), stroke.width);
  pen.setStyle(stroke.style == drawstyle::kDots ? Qt::DotLine : Qt::SolidLine);
  painter.setPen(pen);
  const QPoint from = PlaceOf(stroke.x1, stroke.y1);
  const QPoint to = PlaceOf(stroke.x2, stroke.y2);
  if (from == to) {
    painter.drawPoint(from);
  } else {
    painter.drawLine(from, to);
  }
  AskForChanges();
}

QPoint PlotView::PlaceOf(float x, float y) const {
  const float range = box_.ScaleHigh - box_.ScaleLow;
  const auto pixel = [&](float at, int side) {
    return static_cast<int>(std::lround((at - box_.ScaleLow) / range * static_cast<float>(side - 1)));
  };
  return {pixel(x, width()), pixel(y, height())};
}

Colour PlotView::ColourAt(float x, float y) {
  return FromScreenColour(Image().pixelColor(PlaceOf(x, y) * devicePixelRatio()));
}

/// Once, when everything that is being drawn has been drawn.
void PlotView::AskForChanges() {
  if (std::exchange(asked_, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { ShowChanges(); }, Qt::QueuedConnection);
}

void PlotView::ShowChanges() {
  asked_ = false;
  if (shown_.size() != image_.size()) {
    shown_ = image_.copy();
    update();
    return;
  }
  const QRect changed = Difference(image_, shown_);
  if (changed.isEmpty()) return;
  for (int y = changed.top(); y <= changed.bottom(); ++y) {
    std::memcpy(shown_.scanLine(y), image_.constScanLine(y), static_cast<std::size_t>(image_.bytesPerLine()));
  }
  const qreal ratio = devicePixelRatio();
  update(QRectF(changed.topLeft() / ratio, QSizeF(changed.size()) / ratio).toAlignedRect());
}

void PlotView::resizeEvent(QResizeEvent*) { AskForChanges(); }

void PlotView::paintEvent(QPaintEvent* event) {
  const QRectF place = event->rect();
  const qreal ratio = devicePixelRatio();
  QPainter(this).drawImage(place, Image(), QRectF(place.topLeft() * ratio, place.size() * ratio));
}

}  // namespace tarvik::screen
