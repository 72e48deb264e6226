#include "language/Keystrings.h"

#include "language/Controllers.h"

namespace tarvik {
namespace {

constexpr int kSeven = 7;

// The words for what is held, by the sum of Shift 1, Ctrl 2 and Alt 4. Alt with Shift has no blank behind it.
constexpr std::string_view kAltShift = "ALT SHF";
constexpr std::string_view kModifiers[] = {"",     "SHF ",    "CTL ",     "CTL SHF ",
                                           "ALT ", kAltShift, "CTL ALT ", "CTL ALT SHF "};

constexpr std::string_view kLockMake = "#E0 #12 ";
constexpr std::string_view kLockBreak = "#E0 #F0 #12 ";

/// The bytes around a key's own: the modifier goes down before it and comes up behind it.
struct ModifierBytes {
  std::string_view down;
  std::string_view up;
};
constexpr ModifierBytes kCtrl = {"#14 ", " #F0 #14"};
constexpr ModifierBytes kAlt = {"#11 ", " #F0 #11"};
constexpr ModifierBytes kShift = {"#12 ", " #F0 #12"};
constexpr ModifierBytes kUnshift = {"#E0 #F0 #12 ", " #E0 #12"};

std::string Text(std::string_view text) { return std::string(text); }

/// The key's own text, and what tells of Shift beside it.
struct NamedKey {
  std::string text;
  ShiftInKeyText shift = ShiftInKeyText::No;
};

NamedKey Name(const KeyRow& row, std::string_view caption, const KeyNaming& naming) {
  if (row.mark == Mark::Aux && HasExtras(naming.JoyName)) return {"AUX" + Text(row.name)};
  if (row.mark != Mark::Face || naming.UseSHF) return {Text(row.name)};
  return {row.key == kSeven ? "&" : Text(caption), ShiftInKeyText::Yes};
}

void Surround(Keystrings& keys, const ModifierBytes& wrap) {
  keys.MakeCode.insert(0, wrap.down);
  keys.BreakCode += wrap.up;
}

/// Ctrl goes down first and comes up last, Shift is nearest to the key.
void AddModifiers(Keystrings& keys, const KeyRow& row, const HeldModifiers& held) {
  const bool unshifts = row.mark == Mark::Aux || row.mark == Mark::Unshifts;
  if (held.numLock && row.mark == Mark::Aux) {
    keys.MakeCode.insert(0, kLockMake);
    keys.BreakCode.insert(0, kLockBreak);
  }
  if (GetModifier(held, ShiftInKeyText::No) == kAltShift) return;  // these two alone leave the codes bare
  if (held.shift) Surround(keys, unshifts ? kUnshift : kShift);
  if (held.alt) Surround(keys, kAlt);
  if (held.ctrl) Surround(keys, kCtrl);
}

}  // namespace

std::string GetModifier(const HeldModifiers& held, ShiftInKeyText shift) {
  const int sum =
      (held.shift && shift == ShiftInKeyText::No ? 1 : 0) + (held.ctrl ? 2 : 0) + (held.alt ? 4 : 0);
  return Text(kModifiers[sum]);
}

Keystrings GetKeystrings(const KeyRow& row, std::string_view caption, const HeldModifiers& held,
                         const KeyNaming& naming) {
  const NamedKey named = Name(row, caption, naming);
  Keystrings keys = {named.text, Text(row.make), Text(row.breaks), {}};
  if (row.name != kNotSupported) {
    keys.KeyText.insert(0, GetModifier(held, named.shift));
    AddModifiers(keys, row, held);
  }
  keys.CombinedCode = keys.MakeCode + " " + keys.BreakCode;
  return keys;
}

}  // namespace tarvik
