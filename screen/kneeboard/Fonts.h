// The type of a kneeboard, and how wide it comes out.
#pragma once

#include <QFont>
#include <QFontMetricsF>

#include "kneeboard/Typesetter.h"

namespace tarvik::screen {

/// A font of this size is scaled to each size that is wanted, so that all devices paint it as wide.
inline constexpr int kFontPixels = 100;

[[nodiscard]] QFont KneeboardFont(bool bold);

class FontMeasure : public kneeboard::TextMeasure {
 public:
  FontMeasure();
  [[nodiscard]] double Width(std::string_view text, bool bold) const override;

 private:
  QFontMetricsF plain_;
  QFontMetricsF bold_;
};

}  // namespace tarvik::screen
