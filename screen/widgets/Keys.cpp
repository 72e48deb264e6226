#include "screen/widgets/Keys.h"

#include <QApplication>
#include <QLineEdit>
#include <algorithm>
#include <string_view>

#include "screen/widgets/Binding.h"

namespace tarvik::screen {
namespace {

struct KeyRow {
  int key;
  int code;
};

constexpr KeyRow kKeys[] = {
    {Qt::Key_Backspace, 8},    {Qt::Key_Tab, 9},
    {Qt::Key_Backtab, 9},      {Qt::Key_Clear, 12},
    {Qt::Key_Return, 13},      {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},       {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},         {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},    {Qt::Key_Escape, 27},
    {Qt::Key_Space, 32},       {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34},    {Qt::Key_End, 35},
    {Qt::Key_Home, 36},        {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},          {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},        {Qt::Key_Print, 42},
    {Qt::Key_SysReq, 42},      {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},      {Qt::Key_Meta, 91},
    {Qt::Key_Super_L, 91},     {Qt::Key_Super_R, 92},
    {Qt::Key_Menu, 93},        {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145}, {Qt::Key_Semicolon, 186},
    {Qt::Key_Colon, 186},      {Qt::Key_Equal, 187},
    {Qt::Key_Plus, 187},       {Qt::Key_Comma, 188},
    {Qt::Key_Less, 188},       {Qt::Key_Minus, 189},
    {Qt::Key_Underscore, 189}, {Qt::Key_Period, 190},
    {Qt::Key_Greater, 190},    {Qt::Key_Slash, 191},
    {Qt::Key_Question, 191},   {Qt::Key_QuoteLeft, 192},
    {Qt::Key_AsciiTilde, 192}, {Qt::Key_BracketLeft, 219},
    {Qt::Key_BraceLeft, 219},  {Qt::Key_Backslash, 220},
    {Qt::Key_Bar, 220},        {Qt::Key_BracketRight, 221},
    {Qt::Key_BraceRight, 221}, {Qt::Key_Apostrophe, 222},
    {Qt::Key_QuoteDbl, 222},   {Qt::Key_AltGr, 18},
};

constexpr KeyRow kKeypad[] = {
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},  {Qt::Key_Enter, 108}, {Qt::Key_Minus, 109},
    {Qt::Key_Period, 110},   {Qt::Key_Comma, 110}, {Qt::Key_Slash, 111},
};
constexpr int kKeypad0 = 96;

/// The digits' keys by what they type with Shift.
constexpr std::string_view kShiftedDigits = ")!@#$%^&*(";

/// What a row of a United States keyboard types, from the key of this number on.
struct PlaceRow {
  quint32 first;
  std::string_view keys;
};

constexpr PlaceRow kPlaces[] = {
    {10, "1234567890-="},
    {24, "QWERTYUIOP[]"},
    {38, "ASDFGHJKL;'`"},
    {51, "\\ZXCVBNM,./"},
};
constexpr quint32 kPlaceOf102nd = 94;
constexpr quint32 kPlaceOfF13 = 191;
constexpr quint32 kPlaceOfF24 = 202;

constexpr int kF13 = 124;
constexpr int kAlt = 18;
constexpr int kKey102nd = 226;
constexpr int kCharacterAlone = 231;

// Alt with Shift held, as X11 calls it.
constexpr quint32 kMetaL = 0xFFE7;
constexpr quint32 kMetaR = 0xFFE8;

template <std::size_t N>
int CodeIn(const KeyRow (&rows)[N], int key) {
  for (const KeyRow& row : rows) {
    if (row.key == key) return row.code;
  }
  return 0;
}

bool IsLetter(int key) { return key >= Qt::Key_A && key <= Qt::Key_Z; }
bool IsDigit(int key) { return key >= Qt::Key_0 && key <= Qt::Key_9; }
bool IsDead(int key) { return key >= Qt::Key_Dead_Grave && key <= Qt::Key_Dead_Longsolidusoverlay; }

/// The key of a United States keyboard that is where the event's key is; the event's own where there is none.
/// A sign of the Latin keyboards is not taken for the letter that has its place there.
int KeyByPlace(const QKeyEvent& event) {
  const int key = event.key();
  if (IsLetter(key) || (key > QChar::LastValidCodePoint && !IsDead(key))) return key;
  const quint32 place = event.nativeScanCode();
  for (const PlaceRow& row : kPlaces) {
    if (place < row.first || place >= row.first + row.keys.size()) continue;
    const int there = static_cast<unsigned char>(row.keys[place - row.first]);
    return IsLetter(there) && key < 0x80 ? key : there;
  }
  return key;
}

int CodeOnKeypad(int key) { return IsDigit(key) ? kKeypad0 + key - Qt::Key_0 : CodeIn(kKeypad, key); }

int OwnCode(int key) {
  if (IsLetter(key) || IsDigit(key)) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return key::kF1 + key - Qt::Key_F1;
  const std::size_t digit = key < 0x80 ? kShiftedDigits.find(static_cast<char>(key)) : std::string_view::npos;
  if (digit != std::string_view::npos) return Qt::Key_0 + static_cast<int>(digit);
  return CodeIn(kKeys, key);
}

/// The bit of a modifier's key.
int BitOf(int code) {
  constexpr KeyRow kBits[] = {{16, shift::kShift}, {17, shift::kCtrl}, {kAlt, shift::kAlt}};
  return CodeIn(kBits, code);
}

}  // namespace

int VirtualKey(const QKeyEvent& event) {
  const quint32 symbol = event.nativeVirtualKey();
  if (symbol == kMetaL || symbol == kMetaR) return kAlt;
  const quint32 place = event.nativeScanCode();
  if (place >= kPlaceOfF13 && place <= kPlaceOfF24) return kF13 + static_cast<int>(place - kPlaceOfF13);
  if (place == kPlaceOf102nd && !IsLetter(event.key())) return kKey102nd;
  const bool keypad = event.modifiers() & Qt::KeypadModifier;
  int code = keypad ? CodeOnKeypad(event.key()) : 0;
  if (code == 0) code = OwnCode(keypad ? event.key() : KeyByPlace(event));
  return code == 0 ? kCharacterAlone : code;
}

QPoint WayOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return {-1, 0};
    case Qt::Key_Right:
      return {1, 0};
    case Qt::Key_Up:
      return {0, -1};
    case Qt::Key_Down:
      return {0, 1};
    default:
      return {};
  }
}

bool TypesNothing(const QKeyEvent& event) {
  return !event.text().isEmpty() && (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier));
}

namespace {

class CommandsUntyped : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !TypesNothing(static_cast<QKeyEvent&>(*event))) return false;
    event->ignore();
    return true;
  }
};

}  // namespace

void LeaveCommandsUntyped(QWidget& dialog) {
  auto* const filter = new CommandsUntyped(&dialog);
  for (QLineEdit* const box : dialog.findChildren<QLineEdit*>()) box->installEventFilter(filter);
}

namespace {

/// The key itself, whatever it types.
quint32 PlaceOf(const QKeyEvent& event) {
  const quint32 place = event.nativeScanCode();
  return place != 0 ? place : static_cast<quint32>(event.key());
}

}  // namespace

KeysFromElsewhere::KeysFromElsewhere(const QWidget& own) : own_(own) { qApp->installEventFilter(this); }

bool KeysFromElsewhere::eventFilter(QObject* watched, QEvent* event) {
  const bool press = event->type() == QEvent::KeyPress;
  const auto* const widget = qobject_cast<QWidget*>(watched);
  if ((!press && event->type() != QEvent::KeyRelease) || !widget || widget->window() == &own_) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (press) {
    down_.insert(PlaceOf(key));
  } else if (!key.isAutoRepeat()) {
    down_.erase(PlaceOf(key));
  }
  return false;
}

bool KeysFromElsewhere::Take(const QKeyEvent& event) {
  const auto found = down_.find(PlaceOf(event));
  if (found == down_.end()) return false;
  if (event.isAutoRepeat()) return true;
  down_.erase(found);
  return event.type() == QEvent::KeyRelease;
}

/// The toolkit's modifiers are those before the event.
Key KeyReader::Read(const QKeyEvent& event) {
  const int code = VirtualKey(event);
  Key key{code, ShiftState(event.modifiers())};
  const int bit = BitOf(code);
  if (bit == 0) return key;
  const auto held = std::pair(code, event.nativeScanCode());
  if (event.type() == QEvent::KeyPress) {
    held_.insert(held);
  } else {
    held_.erase(held);
  }
  const bool down =
      std::any_of(held_.begin(), held_.end(), [code](const auto& each) { return each.first == code; });
  key.shift = down ? key.shift | bit : key.shift & ~bit;
  return key;
}

}  // namespace tarvik::screen
