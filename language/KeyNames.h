// The keys that the key test calls by a name, by virtual-key code, and the words for the modifiers held with
// them.
#pragma once

#include <string>

namespace tarvik {

struct KeyNameRow {
  int code;
  const char* name;
};

inline constexpr KeyNameRow kKeyNames[] = {
    {8, "BackSpace"},  {9, "TAB"},          {12, "CLEAR (KP5)"}, {13, "Enter"},   {19, "PAUSE"},
    {20, "CAPSLOCK"},  {27, "Escape"},      {32, "SpaceBar"},    {33, "PageUP"},  {34, "PageDOWN"},
    {35, "END"},       {36, "HOME"},        {37, "LeftARROW"},   {38, "UpARROW"}, {39, "RightARROW"},
    {40, "DownARROW"}, {42, "PrintScreen"}, {45, "INSERT"},      {46, "DELETE"},  {96, "KP 0"},
    {97, "KP 1"},      {98, "KP 2"},        {99, "KP 3"},        {100, "KP 4"},   {101, "KP 5"},
    {102, "KP 6"},     {103, "KP 7"},       {104, "KP 8"},       {105, "KP 9"},   {106, "KP *"},
    {107, "KP +"},     {108, "KP ENTER"},   {109, "KP -"},       {110, "KP ."},   {111, "KP /"},
    {112, "F1"},       {113, "F2"},         {114, "F3"},         {115, "F4"},     {116, "F5"},
    {117, "F6"},       {118, "F7"},         {119, "F8"},         {120, "F9"},     {121, "F10"},
    {122, "F11"},      {123, "F12"},        {124, "F13"},        {125, "F14"},    {126, "F15"},
    {127, "F16"},
};

/// The name of a key; empty for a key that has none.
[[nodiscard]] constexpr const char* KeyName(int code) {
  for (const KeyNameRow& row : kKeyNames) {
    if (row.code == code) return row.name;
  }
  return "";
}

/// A mask of modifiers in words.
struct ModifierWords {
  const char* before;  ///< a key's name
  const char* alone;
};

/// The words of a mask, in which Shift is 1, Ctrl 2 and Alt 4.
inline constexpr ModifierWords kModifierWords[8] = {
    {"", ""},
    {"Shift + ", "SHF"},
    {"Ctrl + ", "CTRL"},
    {"Shift + Ctrl + ", "SHF & CTRL"},
    {"Alt + ", "ALT"},
    {"Shift + Alt + ", "SHF & ALT"},
    {"Ctrl + Alt + ", "CTRL & ALT"},
    {"Shift + Ctrl + Alt + ", "SHF & CTRL & ALT"},
};

}  // namespace tarvik
