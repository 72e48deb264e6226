// The drawings of the devices, as docs/devices.md says that they are made.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <map>

#include "language/ComposerTables.h"

namespace tarvik::screen {
namespace {

constexpr QRect kViewBox(0, 0, 900, 1000);
constexpr qreal kNear = 3;

struct DrawingRow {
  const char* file;
  std::vector<QString> labels;
};

std::vector<QString> LabelsOf(tables::Picture picture) {
  std::vector<QString> labels;
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (row.picture != picture) continue;
    labels.push_back(QString::fromUtf8(row.array.data(), static_cast<qsizetype>(row.array.size())));
    if (row.index >= 0) labels.back() += QStringLiteral("-%1").arg(row.index);
  }
  return labels;
}

QByteArray Content(const char* file) {
  QFile svg(QStringLiteral("%1/devices/%2").arg(QLatin1String(TARVIK_DATA), QLatin1String(file)));
  EXPECT_TRUE(svg.open(QIODevice::ReadOnly)) << file;
  return svg.readAll();
}

QByteArray RulesOf(const QByteArray& svg) {
  const qsizetype from = svg.indexOf("<style>") + 7;
  return svg.mid(from, svg.indexOf("</style>") - from);
}

QStringList Matches(const QByteArray& text, const char* pattern) {
  QStringList found;
  auto each = QRegularExpression(QLatin1String(pattern)).globalMatch(QString::fromUtf8(text));
  while (each.hasNext()) found.push_back(each.next().captured(1));
  found.sort();
  found.removeDuplicates();
  return found;
}

/// The corners of a line that goes on level and straight only.
std::vector<QPointF> CornersOf(const QString& path) {
  static const QRegularExpression kStep(QStringLiteral("([A-Za-z])([-\\d.]+)(?:,([-\\d.]+))?"));
  std::vector<QPointF> corners;
  for (auto each = kStep.globalMatch(path); each.hasNext();) {
    const QRegularExpressionMatch step = each.next();
    EXPECT_TRUE(QStringLiteral("MHL").contains(step.captured(1))) << path.toStdString();
    const bool level = step.captured(1) == u'H';
    corners.emplace_back(step.captured(2).toDouble(),
                         level ? corners.back().y() : step.captured(3).toDouble());
  }
  return corners;
}

class DeviceDrawings : public testing::TestWithParam<DrawingRow> {
 protected:
  DeviceDrawings() : svg_(Content(GetParam().file)) {
    EXPECT_TRUE(renderer_.load(svg_));
    for (QXmlStreamReader xml(svg_); !xml.atEnd(); xml.readNext()) {
      if (xml.isStartElement())
        elements_[xml.attributes().value(QStringLiteral("id")).toString()] = xml.attributes();
    }
  }

  [[nodiscard]] qreal Number(const QString& id, const char* attribute) const {
    const auto found = elements_.find(id);
    return found == elements_.end() ? -1 : found->second.value(QLatin1String(attribute)).toDouble();
  }
  [[nodiscard]] QRectF Box(const QString& label) const {
    const QString id = label + QLatin1String("-box");
    return {Number(id, "x"), Number(id, "y"), Number(id, "width"), Number(id, "height")};
  }
  [[nodiscard]] QPointF Anchor(const QString& label) const {
    const QString id = label + QLatin1String("-anchor");
    return {Number(id, "cx"), Number(id, "cy")};
  }
  [[nodiscard]] std::vector<QPointF> Leader(const QString& label) const {
    const auto found = elements_.find(label + QLatin1String("-leader"));
    return found == elements_.end() ? std::vector<QPointF>{}
                                    : CornersOf(found->second.value(QLatin1String("d")).toString());
  }

  /// What the label is of. That the triggers are swapped is told at the trigger.
  static QString ControlOf(const QString& label) {
    return (label == u"ROTARY-4" ? QStringLiteral("TRIG") : label) + QLatin1String("-control");
  }

  [[nodiscard]] QImage Painted(const std::vector<QString>& elements) {
    QImage image(kViewBox.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (const QString& id : elements) renderer_.render(&painter, id, renderer_.boundsOnElement(id));
    return image;
  }

  QByteArray svg_;
  QSvgRenderer renderer_;
  std::map<QString, QXmlStreamAttributes> elements_;
};

bool IsPainted(const QImage& image, QPointF place) {
  const QPoint pixel = place.toPoint();
  return image.rect().contains(pixel) && qAlpha(image.pixel(pixel)) > 0;
}

/// How many of the places around are painted, and how many are not.
std::pair<int, int> Around(const QImage& image, QPointF place) {
  std::pair<int, int> counts;
  for (qreal x = -kNear; x <= kNear; ++x) {
    for (qreal y = -kNear; y <= kNear; ++y) {
      ++(IsPainted(image, place + QPointF(x, y)) ? counts.first : counts.second);
    }
  }
  return counts;
}

TEST_P(DeviceDrawings, HaveAnIdForEachControlAndForEachPartOfItsLabel) {
  for (const QString& label : GetParam().labels) {
    EXPECT_TRUE(renderer_.elementExists(label)) << label.toStdString();
    EXPECT_TRUE(renderer_.elementExists(ControlOf(label))) << label.toStdString();
    for (const char* part : {"-box", "-leader", "-anchor"}) {
      EXPECT_TRUE(renderer_.elementExists(label + QLatin1String(part))) << label.toStdString() << part;
    }
    for (const char* position : {"-U", "-R", "-D", "-L", "-M"}) {
      const bool isThere = elements_.contains(label + QLatin1String(position));
      EXPECT_EQ(isThere, label.startsWith(u"HAT")) << label.toStdString() << position;
    }
  }
  EXPECT_TRUE(renderer_.elementExists(QStringLiteral("hint")));
}

TEST_P(DeviceDrawings, HaveEveryAnchorOnTheEdgeOfItsControl) {
  for (const QString& label : GetParam().labels) {
    const auto [painted, bare] = Around(Painted({ControlOf(label)}), Anchor(label));
    EXPECT_GT(painted, 0) << label.toStdString() << " is beside its control";
    EXPECT_GT(bare, 0) << label.toStdString() << " is on its control";
  }
}

TEST_P(DeviceDrawings, HaveLeadersThatBeginLevelAndBendOnceAtMost) {
  for (const QString& label : GetParam().labels) {
    const std::vector<QPointF> leader = Leader(label);
    ASSERT_THAT(leader.size(), testing::AllOf(testing::Ge(2U), testing::Le(3U))) << label.toStdString();
    const QRectF box = Box(label);
    EXPECT_NEAR(leader.front().y(), box.center().y(), 1) << label.toStdString();
    EXPECT_EQ(leader.front().x(), box.left() < kViewBox.center().x() ? box.right() : box.left());
    EXPECT_EQ(leader[0].y(), leader[1].y()) << label.toStdString();
    EXPECT_LT(QLineF(leader.back(), Anchor(label)).length(), 1) << label.toStdString();
  }
}

TEST_P(DeviceDrawings, HaveLeadersThatDoNotCross) {
  const auto lines = [this](const QString& label) {
    std::vector<QLineF> all;
    const std::vector<QPointF> corners = Leader(label);
    for (std::size_t i = 1; i < corners.size(); ++i) all.emplace_back(corners[i - 1], corners[i]);
    return all;
  };
  for (const QString& one : GetParam().labels) {
    for (const QString& other : GetParam().labels) {
      if (one >= other) continue;
      for (const QLineF& line : lines(one)) {
        for (const QLineF& crossed : lines(other)) {
          EXPECT_NE(line.intersects(crossed, nullptr), QLineF::BoundedIntersection)
              << one.toStdString() << " crosses " << other.toStdString();
        }
      }
    }
  }
}

TEST_P(DeviceDrawings, HaveTheAnchorsInTheOrderOfTheirLabels) {
  for (const bool left : {true, false}) {
    std::map<qreal, QString> column;
    for (const QString& label : GetParam().labels) {
      if ((Box(label).left() < kViewBox.center().x()) == left) column[Box(label).top()] = label;
    }
    qreal last = 0;
    for (const auto& [top, label] : column) {
      EXPECT_GE(Anchor(label).y(), last) << label.toStdString();
      last = Anchor(label).y();
    }
  }
}

TEST_P(DeviceDrawings, HaveLeadersThatRunOverNoControl) {
  std::vector<QString> controls;
  for (const QString& label : GetParam().labels) controls.push_back(ControlOf(label));
  const QImage image = Painted(controls);
  for (const QString& label : GetParam().labels) {
    const std::vector<QPointF> leader = Leader(label);
    for (std::size_t i = 1; i < leader.size(); ++i) {
      const QLineF line(leader[i - 1], leader[i]);
      for (qreal way = 0; way < line.length(); ++way) {
        const QPointF place = line.pointAt(way / line.length());
        if (QLineF(place, leader.back()).length() <= 2 * kNear) continue;
        ASSERT_FALSE(IsPainted(image, place))
            << label.toStdString() << " at " << place.x() << "," << place.y();
      }
    }
  }
}

TEST_P(DeviceDrawings, HaveNoLabelOverAnotherAtAnyScale) {
  for (const qreal scale : {0.5, 0.6, 0.75, 1.0, 1.3, 2.0, 3.1, 4.0}) {
    const auto place = [&](const QString& label) {
      const QRectF box = renderer_.boundsOnElement(label + QLatin1String("-box"));
      return QRectF(box.topLeft() * scale, box.size() * scale).toAlignedRect();
    };
    for (const QString& one : GetParam().labels) {
      for (const QString& other : GetParam().labels) {
        EXPECT_TRUE(one == other || !place(one).intersects(place(other)))
            << one.toStdString() << " is over " << other.toStdString() << " at " << scale;
      }
    }
  }
}

TEST_P(DeviceDrawings, AreWhollyInTheirViewBox) {
  EXPECT_EQ(renderer_.viewBox(), kViewBox);
  for (const auto& [id, attributes] : elements_) {
    if (id.isEmpty() || id.startsWith(u"tone")) continue;
    EXPECT_TRUE(QRectF(kViewBox).contains(renderer_.boundsOnElement(id))) << id.toStdString();
  }
  int depth = 0;
  for (QXmlStreamReader xml(svg_); !xml.atEnd(); xml.readNext()) {
    if (xml.isEndElement()) --depth;
    if (xml.isStartElement() && ++depth == 2 && (xml.name() == u"g" || xml.name() == u"path")) {
      EXPECT_TRUE(xml.attributes().hasAttribute(QStringLiteral("id"))) << "at line " << xml.lineNumber();
    }
  }
}

TEST_P(DeviceDrawings, HaveTheColoursOfAllAndTheDarkOnesToo) {
  EXPECT_EQ(RulesOf(svg_), RulesOf(Content("stick-flcs.svg")));
  const QStringList rules = Matches(RulesOf(svg_), "(\\.\\w+) \\{");
  EXPECT_EQ(rules, Matches(Content("dark.css"), "(\\.\\w+) \\{"));
  for (const QString& used : Matches(svg_, "class=\"(\\w+)\"")) {
    EXPECT_TRUE(rules.contains(QLatin1Char('.') + used)) << used.toStdString();
  }
  EXPECT_TRUE(Matches(svg_, "(fill=|stroke=|<text|<mask|<filter|<clipPath|<image)").isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    All, DeviceDrawings,
    testing::Values(DrawingRow{"stick-flcs.svg", LabelsOf(tables::Picture::Stick)},
                    DrawingRow{"stick-fcs.svg", LabelsOf(tables::Picture::PlainStick)},
                    DrawingRow{"throttle-tqs.svg", LabelsOf(tables::Picture::Tqs)},
                    DrawingRow{"throttle-wcs.svg", LabelsOf(tables::Picture::Wcs)},
                    DrawingRow{"pedals-rcs.svg", {QStringLiteral("ROTARY-2")}}),
    [](const auto& drawing) {
      return QString::fromUtf8(drawing.param.file).section(u'.', 0, 0).replace(u'-', u'_').toStdString();
    });

}  // namespace
}  // namespace tarvik::screen
