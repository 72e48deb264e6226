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

/// Buttons of the mouse; while it moves, those that are down are added up.
namespace button {
inline constexpr int kLeft = 1;
inline constexpr int kRight = 2;
inline constexpr int kMiddle = 4;
}  // namespace button

struct Mouse {
  int button = 0;
  int shift = 0;
  Twips x = {};  ///< from the control's left edge
  Twips y = {};
};

/// Windows virtual-key codes. Those of keys that type are the characters that they type.
namespace key {
inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kPageUp = 33;
inline constexpr int kPageDown = 34;
inline constexpr int kUp = 38;
inline constexpr int kDown = 40;
inline constexpr int kInsert = 45;
inline constexpr int kDelete = 46;
inline constexpr int kKeypadEnter = 108;
inline constexpr int kF1 = 112;
inline constexpr int kF7 = 118;
inline constexpr int kF12 = 123;
}  // namespace key

/// A key by its virtual-key code. A handler that sets `code` to 0 swallows the key.
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
