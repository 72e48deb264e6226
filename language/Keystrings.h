// What a key is called in the controllers' files and what it sends, by what is held with it. Pimlet shows it.
#pragma once

#include <string>

#include "language/KeyTable.h"

namespace tarvik {

struct HeldModifiers {
  bool shift = false;
  bool ctrl = false;
  bool alt = false;
  bool numLock = false;
};

/// What the user has chosen about names.
struct KeyNaming {
  int JoyName = 0;
  /// Whether Shift is spelt out, as in "SHF 1"; else the face on show tells of it, as "!" does.
  bool UseSHF = false;
};

/// What a key is called and sends, in the order of the boxes that show it.
struct Keystrings {
  std::string KeyText;
  std::string MakeCode;
  std::string BreakCode;
  std::string CombinedCode;

  bool operator==(const Keystrings&) const = default;
};

/// Whether the text of the key tells that Shift is held; else a word of its own does.
enum class ShiftInKeyText { No, Yes };

/// The words for what is held; Shift is left out where the key's own text tells it.
[[nodiscard]] std::string GetModifier(const HeldModifiers& held, ShiftInKeyText shift);

/// `caption` is the key's face as it is on show.
[[nodiscard]] Keystrings GetKeystrings(const KeyRow& row, std::string_view caption, const HeldModifiers& held,
                                       const KeyNaming& naming);

}  // namespace tarvik
