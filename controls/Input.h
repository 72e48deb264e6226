// What the mouse and the keyboard tell a control.
#pragma once

#include "controls/Twips.h"

namespace tarvik {

/// Shift states of keys and the mouse, added up.
namespace shift {
inline constexpr int kShift = 1;
inline constexpr int kCtrl = 2;
inline constexpr int kAlt = 4;
}  // namespace shift

struct Mouse {
  int button = 0;  ///< 1 left, 2 right, 4 middle; while moving, the buttons that are down
  int shift = 0;
  Twips x;  ///< from the control's left edge
  Twips y;
};

/// A key by its Windows virtual-key code. A handler that sets `code` to 0 swallows the key.
struct Key {
  int code = 0;
  int shift = 0;
};

/// The mouse pointers that forms and controls ask for.
namespace pointer {
inline constexpr int kDefault = 0;
inline constexpr int kWestEast = 9;
inline constexpr int kHourglass = 11;
inline constexpr int kWhatsThis = 14;
}  // namespace pointer

}  // namespace tarvik
