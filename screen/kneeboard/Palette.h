// The colours that a kneeboard is painted in.
#pragma once

#include <QColor>
#include <array>

#include "kneeboard/Press.h"

namespace tarvik::screen {

struct Palette {
  std::array<QColor, 8> inks;  ///< by kneeboard::Ink; that of headings is not used
  std::array<QColor, kneeboard::kHeadingColours> headings;
  bool isGrey = false;  ///< the drawings too

  [[nodiscard]] QColor Of(kneeboard::Colour colour) const;

  [[nodiscard]] static Palette Of(const kneeboard::Job& job);
  [[nodiscard]] static Palette Colours();
  [[nodiscard]] static Palette BlackAndWhite();
};

}  // namespace tarvik::screen
