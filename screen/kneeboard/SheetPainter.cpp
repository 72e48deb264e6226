#include "screen/kneeboard/SheetPainter.h"

#include "screen/kneeboard/Fonts.h"

namespace tarvik::screen {
namespace {

using kneeboard::kPoint;

/// The dot at the end of a leader, in millimetres.
constexpr double kDot = 0.75 * kUnits;

QRectF RectOf(const kneeboard::Area& area) {
  return {area.x * kUnits, area.y * kUnits, area.width * kUnits, area.height * kUnits};
}

QPolygonF PolygonOf(const std::vector<kneeboard::Spot>& corners) {
  QPolygonF polygon;
  for (const kneeboard::Spot& corner : corners) polygon.append({corner.x * kUnits, corner.y * kUnits});
  return polygon;
}

class SheetPainter {
 public:
  SheetPainter(QPainter& painter, const Palette& palette)
      : painter_(painter), palette_(palette), fonts_{KneeboardFont(false), KneeboardFont(true)} {}

  void Paint(const kneeboard::Frame& frame) {
    painter_.setPen(frame.width > 0 ? PenOf(frame.edge, frame.width) : QPen(Qt::NoPen));
    painter_.setBrush(frame.fill ? QBrush(palette_.Of(*frame.fill)) : QBrush(Qt::NoBrush));
    if (frame.radius > 0) {
      painter_.drawRoundedRect(RectOf(frame.area), frame.radius * kUnits, frame.radius * kUnits);
    } else {
      painter_.drawRect(RectOf(frame.area));
    }
  }

  void Paint(const kneeboard::Shape& shape) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(palette_.Of(shape.colour));
    painter_.drawPolygon(PolygonOf(shape.corners));
  }

  void Paint(const kneeboard::Line& line) {
    painter_.setBrush(Qt::NoBrush);
    if (line.kind == kneeboard::LineKind::Leader) PaintLeader(line);
    painter_.setPen(PenOf(line.colour, line.width));
    painter_.drawPolyline(PolygonOf(line.corners));
    if (line.kind != kneeboard::LineKind::Leader) return;
    painter_.setBrush(palette_.Of({kneeboard::Ink::Paper}));
    const kneeboard::Spot end = line.corners.back();
    painter_.drawEllipse(QPointF(end.x, end.y) * kUnits, kDot, kDot);
  }

  void Paint(const kneeboard::Words& words) {
    const double scale = words.size * kPoint * kUnits / kFontPixels;
    painter_.save();
    const double baseline = words.area.y + words.size * kneeboard::kBaseline * kPoint;
    painter_.translate(QPointF(words.area.x, baseline) * kUnits);
    painter_.scale(scale, scale);
    painter_.setFont(fonts_[words.bold ? 1 : 0]);
    painter_.setPen(palette_.Of(words.colour));
    painter_.drawText(QPointF(), QString::fromStdString(words.text));
    painter_.restore();
  }

 private:
  [[nodiscard]] QPen PenOf(kneeboard::Colour colour, double width) const {
    return {QBrush(palette_.Of(colour)), width * kUnits, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
  }

  /// A light edge, by which the leader is seen on a dark device.
  void PaintLeader(const kneeboard::Line& line) {
    painter_.setPen(PenOf({kneeboard::Ink::Paper}, line.width * 2.6));
    painter_.drawPolyline(PolygonOf(line.corners));
  }

  QPainter& painter_;
  const Palette& palette_;
  QFont fonts_[2];
};

}  // namespace

void PaintSheet(QPainter& painter, const kneeboard::Sheet& sheet, const Palette& palette,
                const DeviceDrawings& drawings) {
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  for (const kneeboard::Drawing& each : sheet.drawings)
    drawings.Paint(painter, each, RectOf(each.area), palette.isGrey);
  SheetPainter paint(painter, palette);
  const auto paintLines = [&](kneeboard::LineKind kind) {
    for (const kneeboard::Line& each : sheet.lines) {
      if (each.kind == kind) paint.Paint(each);
    }
  };
  // Leaders end below the edges of their boxes.
  paintLines(kneeboard::LineKind::Leader);
  for (const kneeboard::Frame& each : sheet.frames) paint.Paint(each);
  for (const kneeboard::Shape& each : sheet.shapes) paint.Paint(each);
  paintLines(kneeboard::LineKind::Plain);
  for (const kneeboard::Words& each : sheet.words) paint.Paint(each);
}

}  // namespace tarvik::screen
