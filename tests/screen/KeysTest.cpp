// Keys as X11 and Wayland tell of them, on keyboards of several countries.
#include <gtest/gtest.h>

#include "screen/widgets/Keys.h"

namespace tarvik::screen {
namespace {

struct KeyCase {
  const char* what;
  int key;
  quint32 place;  ///< on an ordinary keyboard: that of the hardware, and 8
  Qt::KeyboardModifiers modifiers;
  int code;
  quint32 symbol = 0;
};

QKeyEvent Event(const KeyCase& is, QEvent::Type type = QEvent::KeyPress) {
  return {type, is.key, is.modifiers, is.place, is.symbol, 0};
}

TEST(Keys, HaveTheCodesOfVirtualKeys) {
  const KeyCase cases[] = {
      {"a", Qt::Key_A, 38, {}, 65},
      {"z at the place of y", Qt::Key_Z, 29, {}, 90},
      {"the French m at the place of the semicolon", Qt::Key_M, 47, {}, 77},
      {"the French comma at the place of m", Qt::Key_Comma, 58, {}, 188},
      {"a Cyrillic letter at the place of a", 0x0424, 38, {}, 65},
      {"a Greek letter at the place of q", 0x03A3, 24, {}, 81},
      {"1", Qt::Key_1, 10, {}, 49},
      {"!", Qt::Key_Exclam, 10, Qt::ShiftModifier, 49},
      {"the French & at the place of 1", Qt::Key_Ampersand, 10, {}, 49},
      {"the German / above 7", Qt::Key_Slash, 16, Qt::ShiftModifier, 55},
      {"! from nowhere", Qt::Key_Exclam, 0, Qt::ShiftModifier, 49},
      {") from nowhere", Qt::Key_ParenRight, 0, Qt::ShiftModifier, 48},
      {"* from nowhere", Qt::Key_Asterisk, 0, Qt::ShiftModifier, 56},
      {"0", Qt::Key_0, 19, {}, 48},
      {"=", Qt::Key_Equal, 21, {}, 187},
      {"\\", Qt::Key_Backslash, 51, {}, 220},
      {"/", Qt::Key_Slash, 61, {}, 191},
      {"`", Qt::Key_QuoteLeft, 49, {}, 192},
      {"a dead accent at the place of [", Qt::Key_Dead_Acute, 34, {}, 219},
      {"< of the 102nd key", Qt::Key_Less, 94, {}, 226},
      {"keypad 7", Qt::Key_7, 79, Qt::KeypadModifier, 103},
      {"keypad 7 without Num Lock", Qt::Key_Home, 79, Qt::KeypadModifier, 36},
      {"keypad 5 without Num Lock", Qt::Key_Clear, 84, Qt::KeypadModifier, 12},
      {"keypad 0", Qt::Key_0, 90, Qt::KeypadModifier, 96},
      {"keypad .", Qt::Key_Period, 91, Qt::KeypadModifier, 110},
      {"keypad ,", Qt::Key_Comma, 91, Qt::KeypadModifier, 110},
      {"keypad Del", Qt::Key_Delete, 91, Qt::KeypadModifier, 46},
      {"keypad Enter", Qt::Key_Enter, 104, Qt::KeypadModifier, 108},
      {"keypad *", Qt::Key_Asterisk, 63, Qt::KeypadModifier, 106},
      {"keypad +", Qt::Key_Plus, 86, Qt::KeypadModifier, 107},
      {"keypad -", Qt::Key_Minus, 82, Qt::KeypadModifier, 109},
      {"keypad /", Qt::Key_Slash, 106, Qt::KeypadModifier, 111},
      {"Return", Qt::Key_Return, 36, {}, 13},
      {"Shift+Tab", Qt::Key_Backtab, 23, Qt::ShiftModifier, 9},
      {"F1", Qt::Key_F1, 67, {}, 112},
      {"F12", Qt::Key_F12, 96, {}, 123},
      {"F13 that is a tools key", Qt::Key_Tools, 191, {}, 124},
      {"F16 that is a launch key", Qt::Key_Launch5, 194, {}, 127},
      {"F13 from nowhere", Qt::Key_F13, 0, {}, 124},
      {"Print", Qt::Key_Print, 107, {}, 42},
      {"Alt+Print", Qt::Key_SysReq, 107, Qt::AltModifier, 42},
      {"Pause", Qt::Key_Pause, 127, {}, 19},
      {"left Shift", Qt::Key_Shift, 50, {}, 16},
      {"right Ctrl", Qt::Key_Control, 105, {}, 17},
      {"Alt", Qt::Key_Alt, 64, {}, 18},
      {"Alt with Shift held", Qt::Key_Meta, 64, Qt::ShiftModifier, 18, 0xFFE7},
      {"right Alt with Shift held", Qt::Key_Meta, 108, Qt::ShiftModifier, 18, 0xFFE8},
      {"AltGr", Qt::Key_AltGr, 108, {}, 18},
      {"the Windows key", Qt::Key_Super_L, 133, {}, 91},
      {"Num Lock", Qt::Key_NumLock, 77, {}, 144},
      {"a key without a code", Qt::Key_MediaPlay, 172, {}, 231},
      {"a key that nobody knows", Qt::Key_unknown, 255, {}, 231},
      {"no key at all", 0, 0, {}, 231},
  };
  for (const KeyCase& each : cases) EXPECT_EQ(VirtualKey(Event(each)), each.code) << each.what;
}

const KeyCase kLeftShift = {"left Shift", Qt::Key_Shift, 50, {}, 16};
const KeyCase kRightShift = {"right Shift", Qt::Key_Shift, 62, Qt::ShiftModifier, 16};

TEST(Keys, AModifierCountsFromItsPressToItsRelease) {
  KeyReader reader;
  EXPECT_EQ(reader.Read(Event(kLeftShift)).shift, shift::kShift);
  KeyCase alt = {"Alt", Qt::Key_Alt, 64, Qt::ShiftModifier, 18};
  EXPECT_EQ(reader.Read(Event(alt)).shift, shift::kShift | shift::kAlt);
  alt.modifiers |= Qt::AltModifier;
  EXPECT_EQ(reader.Read(Event(alt, QEvent::KeyRelease)).shift, shift::kShift);
  EXPECT_EQ(reader.Read(Event({"", Qt::Key_Shift, 50, Qt::ShiftModifier, 16}, QEvent::KeyRelease)).shift, 0);
}

TEST(Keys, OfTwoShiftKeysTheLastToGoUpEndsIt) {
  KeyReader reader;
  EXPECT_EQ(reader.Read(Event(kLeftShift)).shift, shift::kShift);
  EXPECT_EQ(reader.Read(Event(kRightShift)).shift, shift::kShift);
  KeyCase left = kLeftShift;
  left.modifiers = Qt::ShiftModifier;
  EXPECT_EQ(reader.Read(Event(left, QEvent::KeyRelease)).shift, shift::kShift);
  EXPECT_EQ(reader.Read(Event(kRightShift, QEvent::KeyRelease)).shift, 0);
}

TEST(Keys, WhatWentUpElsewhereIsForgotten) {
  KeyReader reader;
  (void)reader.Read(Event(kLeftShift));
  reader.Forget();
  (void)reader.Read(Event(kRightShift));
  EXPECT_EQ(reader.Read(Event(kRightShift, QEvent::KeyRelease)).shift, 0);
}

}  // namespace
}  // namespace tarvik::screen
