#include "session/Chord.h"

#include <map>

#include "text/CodePage.h"

namespace tarvik::session {
namespace {

const std::map<std::string_view, int> kKeyCodes = {
    {"Backspace", 8},   {"Tab", 9},     {"Return", 13},   {"Escape", 27}, {"Space", 32},    {"PgUp", 33},
    {"PgDown", 34},     {"End", 35},    {"Home", 36},     {"Left", 37},   {"Up", 38},       {"Right", 39},
    {"Down", 40},       {"Insert", 45}, {"Delete", 46},   {"Clear", 12},  {"Shift", 16},    {"Ctrl", 17},
    {"Alt", 18},        {"Pause", 19},  {"CapsLock", 20}, {"Print", 42},  {"Num+*", 106},   {"Num++", 107},
    {"Num+Enter", 108}, {"Num+-", 109}, {"Num+.", 110},   {"Num+/", 111}, {"NumLock", 144}, {"Num+0", 96},
    {"Num+1", 97},      {"Num+2", 98},  {"Num+3", 99},    {"Num+4", 100}, {"Num+5", 101},   {"Num+6", 102},
    {"Num+7", 103},     {"Num+8", 104}, {"Num+9", 105},
};

constexpr std::pair<std::string_view, int> kModifiers[] = {
    {"Ctrl+", shift::kCtrl}, {"Alt+", shift::kAlt}, {"Shift+", shift::kShift}};

int FunctionKey(std::string_view name) {
  constexpr int kBeforeF1 = 111;
  constexpr int kFunctionKeys = 24;
  int number = 0;
  const bool is = name.starts_with('F') && ParseText(name.substr(1), number);
  return is && number >= 1 && number <= kFunctionKeys ? kBeforeF1 + number : 0;
}

}  // namespace

std::optional<Key> ParseChord(std::string_view chord) {
  Key key;
  for (bool taken = true; taken;) {
    taken = false;
    for (const auto& [prefix, bit] : kModifiers) {
      if (!chord.starts_with(prefix) || chord.size() == prefix.size() || key.shift & bit) continue;
      chord.remove_prefix(prefix.size());
      key.shift |= bit;
      taken = true;
    }
  }
  const auto named = kKeyCodes.find(chord);
  if (named != kKeyCodes.end()) {
    key.code = named->second;
  } else if (chord.size() == 1) {
    key.code = static_cast<unsigned char>(ToUpper(chord[0]));
  } else {
    key.code = FunctionKey(chord);
  }
  return key.code == 0 ? std::nullopt : std::optional(key);
}

}  // namespace tarvik::session
