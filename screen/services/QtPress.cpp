#include "screen/services/QtPress.h"

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>

#include "screen/kneeboard/SheetPainter.h"

namespace tarvik::screen {

const kneeboard::TextMeasure& QtPress::Measure() const {
  if (!measure_) measure_.emplace();
  return *measure_;
}

PaintedSheets QtPress::Painted(const kneeboard::Job& job) const {
  return {job.sheets, drawings_, Palette::Of(job), QString::fromStdString(job.title)};
}

Outcome<> QtPress::Write(const kneeboard::Job& job, const std::string& hostPath) {
  const QString path = QString::fromUtf8(hostPath);
  const QString ending = QFileInfo(path).suffix().toLower();
  const PaintedSheets painted = Painted(job);
  QString why = QStringLiteral("No kneeboard is written as .%1").arg(ending);
  if (ending == QLatin1String("pdf")) why = WritePdf(painted, path);
  if (ending == QLatin1String("svg")) why = WriteSvg(painted, path);
  if (ending == QLatin1String("png")) why = WritePng(painted, path, job.dotsPerInch);
  if (why.isEmpty()) return Done{};
  return Failure{error::kPathAccess, why.toStdString(), 0};
}

Outcome<> QtPress::Print(const kneeboard::Job& job) {
  std::vector<QSizeF> sizes;
  sizes.reserve(job.sheets.size());
  for (const kneeboard::Sheet& sheet : job.sheets) sizes.emplace_back(sheet.width, sheet.height);
  const Palette palette = Palette::Of(job);
  return printer_.PrintPages(sizes, [&](QPainter& painter, std::size_t page) {
    painter.scale(1.0 / kUnits, 1.0 / kUnits);
    PaintSheet(painter, job.sheets[page], palette, drawings_);
  });
}

void QtPress::Copy(const kneeboard::Job& job, std::size_t sheet) {
  QApplication::clipboard()->setImage(PictureOf(Painted(job), job.sheets[sheet], job.dotsPerInch));
}

}  // namespace tarvik::screen
