// How a keyboard on screen is painted, key by key, at the places of the key table.
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPalette>

#include "language/KeyTable.h"

namespace tarvik::screen {

inline constexpr QColor kHeldKey{0xFF, 0xC0, 0x80};

/// Of the whole keyboard, in twips.
[[nodiscard]] QSize KeyboardExtent();
/// Pixels to the twip where the keyboard fills as much of the room as it can.
[[nodiscard]] double KeyScaleIn(const QSize& room);

struct KeyLook {
  QPalette palette;
  QFont font;
  QColor face;
  QColor ink;
  bool isDown = false;
  bool hasFocus = false;
};

/// One cut with `part` of the other.
[[nodiscard]] QColor Mixed(const QColor& one, const QColor& other, double part);

/// A key's cap in its area with the gap around it; `text` may have a mnemonic.
void PaintKey(QPainter& painter, const QRectF& area, double scale, const QString& text, const KeyLook& look);

}  // namespace tarvik::screen
