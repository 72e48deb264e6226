#include "screen/kneeboard/Fonts.h"

#include <QStringList>

namespace tarvik::screen {

QFont KneeboardFont(bool bold) {
  QFont font;
  font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial"), QStringLiteral("Helvetica"),
                    QStringLiteral("DejaVu Sans")});
  font.setPixelSize(kFontPixels);
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

FontMeasure::FontMeasure() : plain_(KneeboardFont(false)), bold_(KneeboardFont(true)) {}

double FontMeasure::Width(std::string_view text, bool bold) const {
  const QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  return (bold ? bold_ : plain_).horizontalAdvance(shown) / kFontPixels * kneeboard::kPoint;
}

}  // namespace tarvik::screen
