#include "screen/kneeboard/SheetFiles.h"

#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <cmath>

#include "kneeboard/Press.h"
#include "screen/kneeboard/SheetPainter.h"

namespace tarvik::screen {
namespace {

constexpr double kInch = 25.4;
constexpr int kPdfResolution = 1200;
/// Units of a millimetre in SVG.
constexpr int kSvgScale = 100;

QSizeF SizeOf(const kneeboard::Sheet& sheet) { return {sheet.width, sheet.height}; }

void Paint(QPainter& painter, const PaintedSheets& painted, const kneeboard::Sheet& sheet,
           double unitsPerMillimetre) {
  painter.scale(unitsPerMillimetre / kUnits, unitsPerMillimetre / kUnits);
  PaintSheet(painter, sheet, painted.palette, painted.drawings);
}

QString Failure(const QFileDevice& file) {
  return QStringLiteral("%1: %2").arg(file.fileName(), file.errorString());
}

void SetPage(QPdfWriter& writer, const kneeboard::Sheet& sheet) {
  writer.setPageSize(QPageSize(SizeOf(sheet), QPageSize::Millimeter, {}, QPageSize::ExactMatch));
  writer.setPageMargins(QMarginsF());
}

/// Writes a file for each sheet by what makes its bytes.
template <class Write>
QString WriteEach(const PaintedSheets& painted, const QString& path, Write write) {
  const std::vector<std::string> files = kneeboard::FilesOf(path.toStdString(), painted.sheets.size());
  for (std::size_t i = 0; i < painted.sheets.size(); ++i) {
    QSaveFile file(QString::fromStdString(files[i]));
    if (!file.open(QIODevice::WriteOnly)) return Failure(file);
    write(file, painted.sheets[i]);
    if (!file.commit()) return Failure(file);
  }
  return {};
}

}  // namespace

QString WritePdf(const PaintedSheets& painted, const QString& path) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return Failure(file);
  {
    QPdfWriter writer(&file);
    writer.setTitle(painted.title);
    writer.setCreator(QStringLiteral("Tarvik"));
    writer.setResolution(kPdfResolution);
    SetPage(writer, painted.sheets.front());
    QPainter painter(&writer);
    for (const kneeboard::Sheet& sheet : painted.sheets) {
      if (&sheet != &painted.sheets.front()) {
        SetPage(writer, sheet);
        writer.newPage();
      }
      painter.save();
      Paint(painter, painted, sheet, kPdfResolution / kInch);
      painter.restore();
    }
  }
  return file.commit() ? QString() : Failure(file);
}

QString WriteSvg(const PaintedSheets& painted, const QString& path) {
  return WriteEach(painted, path, [&](QIODevice& file, const kneeboard::Sheet& sheet) {
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setTitle(painted.title);
    generator.setResolution(static_cast<int>(kSvgScale * kInch));
    generator.setSize((SizeOf(sheet) * kSvgScale).toSize());
    generator.setViewBox(QRectF(QPointF(), SizeOf(sheet) * kSvgScale));
    QPainter painter(&generator);
    painter.fillRect(generator.viewBoxF(), painted.palette.Of({kneeboard::Ink::Paper}));
    Paint(painter, painted, sheet, kSvgScale);
  });
}

QImage PictureOf(const PaintedSheets& painted, const kneeboard::Sheet& sheet, int dotsPerInch) {
  const double scale = dotsPerInch / kInch;
  const QSizeF size = SizeOf(sheet) * scale;
  QImage image(static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height())),
               QImage::Format_RGB32);
  image.setDotsPerMeterX(static_cast<int>(std::lround(scale * 1000)));
  image.setDotsPerMeterY(image.dotsPerMeterX());
  image.fill(Qt::white);
  QPainter painter(&image);
  Paint(painter, painted, sheet, scale);
  return image;
}

QString WritePng(const PaintedSheets& painted, const QString& path, int dotsPerInch) {
  return WriteEach(painted, path, [&](QIODevice& file, const kneeboard::Sheet& sheet) {
    PictureOf(painted, sheet, dotsPerInch).save(&file, "PNG");
  });
}

}  // namespace tarvik::screen
