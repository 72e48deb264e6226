// A kneeboard as files: PDF, SVG, PNG.
#pragma once

#include <QImage>
#include <QString>
#include <vector>

#include "screen/kneeboard/DeviceDrawings.h"
#include "screen/kneeboard/Palette.h"

namespace tarvik::screen {

/// What is painted.
struct PaintedSheets {
  const std::vector<kneeboard::Sheet>& sheets;
  const DeviceDrawings& drawings;
  Palette palette = Palette::Colours();
  QString title = {};  ///< of the document
};

/// All sheets in one file of vectors, whose words can be searched. Like those below it says what could not be
/// written, and nothing where all is well.
[[nodiscard]] QString WritePdf(const PaintedSheets& painted, const QString& path);

/// Each sheet in a file of its own: where there are several, "name-1.svg", "name-2.svg".
[[nodiscard]] QString WriteSvg(const PaintedSheets& painted, const QString& path);
[[nodiscard]] QString WritePng(const PaintedSheets& painted, const QString& path, int dotsPerInch);

[[nodiscard]] QImage PictureOf(const PaintedSheets& painted, const kneeboard::Sheet& sheet, int dotsPerInch);

}  // namespace tarvik::screen
