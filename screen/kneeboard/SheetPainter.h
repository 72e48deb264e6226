// Paints the sheets of a kneeboard.
#pragma once

#include <QPainter>

#include "screen/kneeboard/DeviceDrawings.h"
#include "screen/kneeboard/Palette.h"

namespace tarvik::screen {

/// Units of a millimetre in which sheets are painted: Qt makes curves of few units angular.
inline constexpr int kUnits = 100;

/// On whatever the painter paints: scale the painter before so that it has as many units.
void PaintSheet(QPainter& painter, const kneeboard::Sheet& sheet, const Palette& palette,
                const DeviceDrawings& drawings);

}  // namespace tarvik::screen
