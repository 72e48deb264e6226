#include "language/Spoken.h"

#include <algorithm>

#include "language/Abilities.h"
#include "language/Checking.h"
#include "language/KeyTable.h"
#include "text/CodePage.h"

namespace tarvik::model {
namespace {

struct Saying {
  std::string_view word;
  std::string_view said;
};

template <std::size_t N>
std::string_view SaidFor(const Saying (&sayings)[N], std::string_view word) {
  for (const Saying& each : sayings) {
    if (SameWord(each.word, word)) return each.said;
  }
  return {};
}

constexpr Saying kKeyWords[] = {
    {"ENT", "Enter"},
    {"ESC", "Esc"},
    {"SPC", "Space"},
    {"TAB", "Tab"},
    {"BSP", "Backspace"},
    {"UAROW", "Up"},
    {"DAROW", "Down"},
    {"LAROW", "Left"},
    {"RAROW", "Right"},
    {"INS", "Insert"},
    {"DEL", "Delete"},
    {"HOME", "Home"},
    {"END", "End"},
    {"PGUP", "Page up"},
    {"PGDN", "Page down"},
    {"CAPS", "Caps Lock"},
    {"NUML", "Num Lock"},
    {"SCRLCK", "Scroll Lock"},
    {"LSFT", "left Shift"},
    {"RSFT", "right Shift"},
    {"LCTL", "left Ctrl"},
    {"RCTL", "right Ctrl"},
    {"LALT", "left Alt"},
    {"RALT", "right Alt"},
    {"KPENT", "keypad Enter"},
};

constexpr Saying kControlWords[] = {
    {"RKR UP", "the rocker up"},   {"RKR MD", "the rocker in the middle"},
    {"RKR DN", "the rocker down"}, {"MT", "the throttle at its back stop"},
    {"TG", "the trigger"},         {"UB", "the upper button"},
    {"MB", "the middle button"},   {"LB", "the lower button"},
    {"THR", "the throttle"},       {"RNG", "the range rotary"},
    {"ANT", "the antenna rotary"}, {"JSX", "the stick's X axis"},
    {"JSY", "the stick's Y axis"}, {"RDDR", "the rudder"},
};

constexpr Saying kHatPlaces[] = {
    {"U", " up"},         {"D", " down"},          {"L", " left"},
    {"R", " right"},      {"M", " in the middle"}, {"UL", " up left"},
    {"DL", " down left"}, {"UR", " up right"},     {"DR", " down right"},
};

constexpr std::string_view kKeypad = "KP";

/// Pimlet writes a letter that Shift is held for as a capital one.
std::string SignInWords(char sign) {
  const bool isSmall = sign >= 'a' && sign <= 'z';
  const bool isCapital = sign >= 'A' && sign <= 'Z';
  return isCapital ? Said({"Shift+", {&sign, 1}}) : std::string(1, isSmall ? ToUpper(sign) : sign);
}

/// The name that kKeys has for a code; empty for a code of no key. The codes of "m" stand in each other's
/// place there.
std::string_view KeyOfCode(std::uint8_t code, bool extended) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string make(extended ? "#E0 #" : "#");
  make.push_back(kDigits[code >> 4U]);
  make.push_back(kDigits[code & 15U]);
  for (const KeyRow& row : kKeys) {
    const bool isExchanged = row.make.starts_with("#F0");
    if ((isExchanged ? row.breaks : row.make) == make) return row.name;
  }
  return {};
}

/// Puts the keys of a RAW into words, code by code.
class CodeWords {
 public:
  void Take(std::string_view word, std::optional<std::uint8_t> value) {
    if (!seen_.empty()) seen_.push_back(' ');
    seen_.append(word);
    if (value == kExtendedCode && !released_) {
      extended_ = true;
    } else if (value == kBreakCode) {
      released_ = true;
    } else {
      const std::string_view name = value ? KeyOfCode(*value, extended_) : std::string_view{};
      const std::string key = name.empty() ? std::string() : KeyInWords(name);
      if (key.empty()) {
        words_.push_back(Shown(seen_));
      } else {
        Tell(key);
      }
      Forget();
    }
  }

  std::vector<std::string> Finish() {
    if (!seen_.empty()) words_.push_back(Shown(seen_));
    return std::move(words_);
  }

 private:
  void Tell(const std::string& key) {
    const std::string down = key + " down";
    if (released_ && !words_.empty() && words_.back() == down) {
      words_.back() = key;
    } else {
      words_.push_back(released_ ? key + " up" : down);
    }
  }
  void Forget() {
    seen_.clear();
    extended_ = released_ = false;
  }

  std::vector<std::string> words_;
  std::string seen_;  // since the last key
  bool extended_ = false;
  bool released_ = false;
};

}  // namespace

std::string KeyInWords(std::string_view word) {
  if (word.size() == 1 && codepage::Byte(word.front()) >= ' ') return SignInWords(word.front());
  if (word.size() == 1 || !IsKeyName(word)) return Shown(word);
  const std::string_view name = WithoutAux(word);
  if (const std::string_view said = SaidFor(kKeyWords, name); !said.empty()) return std::string(said);
  if (SameWord(name.substr(0, kKeypad.size()), kKeypad)) {
    return Said({"keypad ", name.substr(kKeypad.size())});
  }
  return UpperCase(name);
}

std::string ControlInWords(std::string_view name) {
  std::string capitals = UpperCase(name);
  if (const std::string_view said = SaidFor(kControlWords, capitals); !said.empty()) return std::string(said);
  if (FlagNumber(capitals)) return Said({"flag ", capitals});
  if (DevicesWith(AbilityKind::Control, capitals) == 0) return Shown(name);
  if (NumberIn(capitals)) return Said({"button ", capitals});
  if (!capitals.starts_with('H')) return capitals;
  const bool isPlain = capitals[1] < '0' || capitals[1] > '9';
  const std::string_view hat = std::string_view(capitals).substr(0, isPlain ? 1 : 2);
  const std::string_view place = std::string_view(capitals).substr(hat.size());
  return Said({isPlain ? std::string_view("the hat") : hat, SaidFor(kHatPlaces, place)});
}

std::vector<std::string> CodesInWords(std::string_view statement, const Item& item) {
  CodeWords words;
  for (const RawCode& code : RawCodesOf(statement, item)) words.Take(In(statement, code.range), code.value);
  return words.Finish();
}

std::vector<std::string_view> KeysPressedBy(std::string_view statement, const Item& item) {
  std::vector<std::string_view> keys;
  bool extended = false;
  bool released = false;
  for (const RawCode& code : RawCodesOf(statement, item)) {
    if (code.value == kExtendedCode || code.value == kBreakCode) {
      (code.value == kBreakCode ? released : extended) = true;
      continue;
    }
    const std::string_view key =
        code.value && !released ? KeyOfCode(*code.value, extended) : std::string_view{};
    if (!key.empty()) keys.push_back(key);
    extended = released = false;
  }
  return keys;
}

std::string AllOf(const std::vector<std::string>& things) {
  std::string words;
  for (std::size_t i = 0; i < things.size(); ++i) {
    if (i > 0) words.append(i + 1 < things.size() ? ", " : " and ");
    words.append(things[i]);
  }
  return words;
}

std::string NameInWords(std::string_view name) {
  const auto isHidden = [](char byte) { return codepage::Byte(byte) < ' ' || byte == 0x7F; };
  return std::ranges::any_of(name, isHidden) ? Shown(name) : std::string(name);
}

std::string AsSentence(std::string words) {
  if (!words.empty() && words[0] >= 'a' && words[0] <= 'z') words[0] = ToUpper(words[0]);
  return words;
}

}  // namespace tarvik::model
