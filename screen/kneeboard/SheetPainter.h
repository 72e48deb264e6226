// Paints the sheets of a kneeboard.
#pragma once

#include <QPainter>

#include "screen/kneeboard/DeviceDrawings.h"

namespace tarvik::screen {

/// On whatever the painter paints, in its units of a millimetre: scale the painter before.
void PaintSheet(QPainter& painter, const kneeboard::Sheet& sheet, const Palette& palette,
                const DeviceDrawings& drawings);

}  // namespace tarvik::screen
