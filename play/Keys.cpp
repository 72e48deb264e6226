#include "play/Keys.h"

#include <charconv>

#include "language/Tokens.h"

namespace tarvik::play {
namespace {

/// Where the table of keys has a code that no keyboard sends: "m" and "w".
struct TrueCode {
  std::string_view name;
  Key key;
};
constexpr TrueCode kTrueCodes[] = {{"m", 0x3A}, {"w", 0x1D}};

std::optional<NamedKey> KeyOfSign(char sign) {
  const bool isCapital = sign >= 'A' && sign <= 'Z';
  for (const KeyRow& row : kKeys) {
    if (row.name.size() != 1) continue;
    if (row.name.front() == sign) return NamedKey{KeyOf(row), false};
    if (row.shiftCaption[0] == sign) return NamedKey{KeyOf(row), true};
  }
  return isCapital ? KeyOfSign(static_cast<char>(sign - 'A' + 'a')) : std::nullopt;
}

}  // namespace

Key KeyOf(const KeyRow& row) {
  for (const TrueCode& each : kTrueCodes) {
    if (each.name == row.name) return each.key;
  }
  if (row.make.starts_with("#E1")) return kPause;
  const bool extended = row.make.starts_with("#E0");
  const std::string_view digits = row.make.substr(row.make.size() - 2);
  unsigned code = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
  return static_cast<Key>(code + (extended ? kExtended : 0U));
}

std::optional<NamedKey> KeyNamed(std::string_view word) {
  if (word.size() == 1) return KeyOfSign(word.front());
  if (word == kNotSupported) return std::nullopt;
  const std::string_view name = model::WithoutAux(word);
  for (const KeyRow& row : kKeys) {
    if (row.name.size() > 1 && model::SameWord(row.name, name)) return NamedKey{KeyOf(row), false};
  }
  return std::nullopt;
}

std::string NameOf(Key key) {
  for (const KeyRow& row : kKeys) {
    if (KeyOf(row) != key) continue;
    if (row.name != kNotSupported) return std::string(row.name);
    return key == kPause ? "Pause" : "PrtSc";
  }
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string name(key >= kExtended ? "#E0#" : "#");
  name.push_back(kDigits[key / 16 % 16]);
  name.push_back(kDigits[key % 16]);
  return name;
}

}  // namespace tarvik::play
