#include "screen/kneeboard/DeviceDrawings.h"

#include <QColor>
#include <QFile>
#include <QImage>
#include <QRegularExpression>

static void InitialiseDevices() { Q_INIT_RESOURCE(devices); }

namespace tarvik::screen {
namespace {

constexpr QRectF kViewBox(0, 0, 900, 1000);
/// How large a drawing is painted to see where it ends.
constexpr int kScale = 4;

QByteArray Content(const std::string& drawing) {
  QFile file(QStringLiteral(":/devices/%1.svg").arg(QString::fromStdString(drawing)));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray WithRules(QByteArray svg, const QByteArray& rules) {
  return svg.insert(svg.indexOf("</style>"), rules);
}

/// The labels of the drawing make room for those of the page.
QByteArray RulesWithout(const std::vector<std::string>& hidden) {
  QByteArray rules;
  for (const char* part : {".label", ".leader", ".dot", ".note", ".zone"})
    rules.append(part).append(" { display: none }\n");
  for (const std::string& label : hidden)
    rules.append('#').append(QByteArray::fromStdString(label)).append(" { display: none }\n");
  return rules;
}

/// The colours of the drawing as grey as they are bright.
QByteArray InGrey(const QByteArray& svg) {
  static const QRegularExpression kColour(QStringLiteral("#[0-9a-f]{6}\\b"));
  QString text = QString::fromUtf8(svg);
  QString grey;
  qsizetype at = 0;
  for (auto each = kColour.globalMatch(text); each.hasNext();) {
    const QRegularExpressionMatch match = each.next();
    const int bright = qGray(QColor(match.captured()).rgb());
    grey.append(QStringView(text).mid(at, match.capturedStart() - at));
    grey.append(QColor(bright, bright, bright).name());
    at = match.capturedEnd();
  }
  grey.append(QStringView(text).mid(at));
  return grey.toUtf8();
}

/// Where something is drawn, in the units of the drawing.
kneeboard::Area PaintedArea(const QByteArray& svg) {
  QSvgRenderer renderer(WithRules(svg, RulesWithout({})));
  QImage image(kViewBox.size().toSize() / kScale, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  painter.end();
  QRect painted;
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(line[x]) > 0) painted |= QRect(x, y, 1, 1);
    }
  }
  if (painted.isEmpty()) painted = image.rect();
  return {painted.x() * 1.0 * kScale, painted.y() * 1.0 * kScale, painted.width() * 1.0 * kScale,
          painted.height() * 1.0 * kScale};
}

}  // namespace

DeviceDrawings::DeviceDrawings() { InitialiseDevices(); }

const kneeboard::DrawingPlan* DeviceDrawings::Find(const std::string& drawing) const {
  const auto found = plans_.find(drawing);
  if (found != plans_.end()) return found->second.get();
  const QByteArray svg = Content(drawing);
  std::unique_ptr<kneeboard::DrawingPlan> plan;
  if (!svg.isEmpty()) {
    plan = std::make_unique<kneeboard::DrawingPlan>();
    plan->whole = PaintedArea(svg);
    plan->leaders = kneeboard::LeadersIn({svg.constData(), static_cast<std::size_t>(svg.size())});
  }
  return plans_.emplace(drawing, std::move(plan)).first->second.get();
}

QSvgRenderer& DeviceDrawings::RendererOf(const kneeboard::Drawing& drawing, bool isGrey) const {
  const QByteArray rules = RulesWithout(drawing.hidden);
  auto& renderer = renderers_[{QByteArray::fromStdString(drawing.name) + rules, isGrey}];
  if (!renderer) {
    const QByteArray svg = WithRules(Content(drawing.name), rules);
    renderer = std::make_unique<QSvgRenderer>(isGrey ? InGrey(svg) : svg);
  }
  return *renderer;
}

void DeviceDrawings::Paint(QPainter& painter, const kneeboard::Drawing& drawing, const QRectF& place,
                           bool isGrey) const {
  QSvgRenderer& renderer = RendererOf(drawing, isGrey);
  const kneeboard::Area& part = drawing.part;
  renderer.setViewBox(QRectF(part.x, part.y, part.width, part.height));
  renderer.render(&painter, place);
}

}  // namespace tarvik::screen
