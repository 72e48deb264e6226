#include "screen/Keys.h"

#include <Qt>

namespace tarvik::screen {
namespace {

struct KeyRow {
  int key;
  int code;
};

constexpr KeyRow kKeys[] = {
    {Qt::Key_Backspace, 8},    {Qt::Key_Tab, 9},           {Qt::Key_Backtab, 9},
    {Qt::Key_Clear, 12},       {Qt::Key_Return, 13},       {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},       {Qt::Key_Control, 17},      {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},       {Qt::Key_CapsLock, 20},     {Qt::Key_Escape, 27},
    {Qt::Key_Space, 32},       {Qt::Key_PageUp, 33},       {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},         {Qt::Key_Home, 36},         {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},          {Qt::Key_Right, 39},        {Qt::Key_Down, 40},
    {Qt::Key_Print, 44},       {Qt::Key_Insert, 45},       {Qt::Key_Delete, 46},
    {Qt::Key_Meta, 91},        {Qt::Key_Menu, 93},         {Qt::Key_Asterisk, 106},
    {Qt::Key_NumLock, 144},    {Qt::Key_ScrollLock, 145},  {Qt::Key_Semicolon, 186},
    {Qt::Key_Colon, 186},      {Qt::Key_Equal, 187},       {Qt::Key_Plus, 187},
    {Qt::Key_Comma, 188},      {Qt::Key_Less, 188},        {Qt::Key_Minus, 189},
    {Qt::Key_Underscore, 189}, {Qt::Key_Period, 190},      {Qt::Key_Greater, 190},
    {Qt::Key_Slash, 191},      {Qt::Key_Question, 191},    {Qt::Key_QuoteLeft, 192},
    {Qt::Key_AsciiTilde, 192}, {Qt::Key_BracketLeft, 219}, {Qt::Key_BraceLeft, 219},
    {Qt::Key_Backslash, 220},  {Qt::Key_Bar, 220},         {Qt::Key_BracketRight, 221},
    {Qt::Key_BraceRight, 221}, {Qt::Key_Apostrophe, 222},  {Qt::Key_QuoteDbl, 222},
    {Qt::Key_AltGr, 18},
};

constexpr int kF1 = 112;
constexpr int kCharacterAlone = 231;

}  // namespace

int VirtualKey(int key) {
  const bool letterOrDigit = (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
  if (letterOrDigit) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return kF1 + key - Qt::Key_F1;
  for (const KeyRow& row : kKeys) {
    if (row.key == key) return row.code;
  }
  return kCharacterAlone;
}

}  // namespace tarvik::screen
