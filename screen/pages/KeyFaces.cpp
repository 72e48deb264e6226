#include "screen/pages/KeyFaces.h"

#include <QFontMetrics>
#include <algorithm>

namespace tarvik::screen {
namespace {

constexpr int kFontHeight = 175;  // twips, as all below
constexpr int kSignHeight = 215;  // of a face with one character
constexpr int kGap = 14;          // around each cap
constexpr int kCorner = 50;
constexpr int kSide = 28;
constexpr int kFront = 70;  // more of the cap's side is seen below its face

QFont LettersFor(const QString& text, const QFont& font, double scale, double room) {
  QFont letters = font;
  const bool isWord = text.size() > 1 && text[0] != u'&';
  letters.setPixelSize(static_cast<int>((isWord ? kFontHeight : kSignHeight) * scale));
  const int wide = QFontMetrics(letters).horizontalAdvance(text);
  if (wide > room) letters.setStretch(static_cast<int>(100 * room / wide));
  return letters;
}

}  // namespace

QSize KeyboardExtent() {
  QSize extent;
  for (const KeyRow& row : kKeys) {
    extent = extent.expandedTo({row.place.left + row.place.width, row.place.top + row.place.height});
  }
  return extent;
}

double KeyScaleIn(const QSize& room) {
  const QSize extent = KeyboardExtent();
  return std::min(static_cast<double>(room.width()) / extent.width(),
                  static_cast<double>(room.height()) / extent.height());
}

QColor Mixed(const QColor& one, const QColor& other, double part) {
  const auto mix = [part](float a, float b) { return static_cast<float>(a + (b - a) * part); };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
}

void PaintKey(QPainter& painter, const QRectF& area, double scale, const QString& text, const KeyLook& look) {
  const double gap = kGap * scale;
  const QRectF cap = area.adjusted(gap, gap, -gap, -gap);
  const QColor edge = Mixed(look.face, look.ink, 0.45);
  painter.setPen(look.hasFocus ? QPen(look.palette.color(QPalette::Highlight), 2) : QPen(edge, 1));
  painter.setBrush(Mixed(look.face, Qt::black, 0.16));
  painter.drawRoundedRect(look.hasFocus ? cap.adjusted(0.5, 0.5, -0.5, -0.5) : cap, kCorner * scale,
                          kCorner * scale);

  const double side = kSide * scale;
  const double above = look.isDown ? side * 2 : side;  // pressed, it sinks
  const QRectF top = cap.adjusted(side, above, -side, above - kFront * scale - side);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Mixed(look.face, Qt::white, 0.12));
  painter.drawRoundedRect(top, kCorner * scale, kCorner * scale);

  painter.setFont(LettersFor(text, look.font, scale, top.width()));
  painter.setPen(look.ink);
  painter.drawText(top, Qt::AlignCenter | Qt::TextShowMnemonic, text);
}

}  // namespace tarvik::screen
