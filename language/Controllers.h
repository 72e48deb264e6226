// The one table of the controllers: by the numbers that the settings give them, what each is called wherever
// the user meets it, and how it is programmed.
#pragma once

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace tarvik {

/// The endings of the two files of a joystick, without the point, and what the file dialogs call their
/// family.
struct Endings {
  std::string_view joystick;
  std::string_view macro;
  std::string_view inDialogs;
};

inline constexpr Endings kEndings[] = {{"f22", "m22", "F22"}, {"b50", "m50", "F16"}, {"adv", "mdf", "FCS"}};

/// The patterns of this file of all joysticks, for the filter of a file dialog.
[[nodiscard]] inline std::string Patterns(std::string_view Endings::*file, std::string_view between = ";") {
  std::string patterns;
  for (const Endings& each : kEndings) {
    if (!patterns.empty()) patterns += between;
    patterns += "*." + std::string(each.*file);
  }
  return patterns;
}

/// The two languages of joystick files: buttons by numbers (S1, T1), or by what they are (TG, RKR UP).
enum class Dialect { Numbered, Plain };

/// What is offered for a joystick beyond the others: the ports, SWAPTG, /F and /Q in the place of /A, F22RST,
/// and AUX before the keys between letters and keypad.
enum class Extras { No, Yes };

/// A joystick, by `JoyName`.
struct JoystickRow {
  std::string_view name;        ///< in the preferences
  std::string_view inTitle;     ///< in the title of a file
  std::string_view inComposer;  ///< over its picture
  const Endings& endings;
  Dialect dialect;
  Extras extras;
};

enum JoystickNumber { kF22Pro, kFlcs, kPfcs, kTopGun, kFcs };

inline constexpr JoystickRow kJoysticks[] = {
    {"F22 Pro", "F22 Pro", "F-22 Pro", kEndings[0], Dialect::Numbered, Extras::Yes},
    {"F16 FLCS", "F-16 FLCS", "F-16 FLCS", kEndings[1], Dialect::Numbered, Extras::No},
    {"P FCS", "P FCS", "PFCS", kEndings[2], Dialect::Plain, Extras::No},
    {"Top Gun", "Top Gun", "Top Gun", kEndings[2], Dialect::Plain, Extras::No},
    {"FCS", "FCS", "FCS", kEndings[2], Dialect::Plain, Extras::No},
};

/// A throttle, by `ThrottleName`, or rudders, by `RudderName`.
struct PartRow {
  std::string_view name;     ///< in the preferences
  std::string_view inTitle;  ///< behind the part before it
};

enum ThrottleNumber { kNoThrottle, kTqs, kWcsMkII, kWcs };

inline constexpr PartRow kThrottles[] = {
    {"None", ", no throttle"}, {"TQS", ", TQS"}, {"WCS MkII", ", WCS MkII"}, {"WCS", ", WCS"}};

inline constexpr PartRow kRudders[] = {
    {"None", ", no rudders."}, {"Elite", ", Elite rudders."}, {"RCS", ", RCS."}};

enum RudderNumber { kNoRudders, kEliteRudders, kRcs };

/// The row of a number in the settings, which may be any; null where there is none.
template <class Row, std::size_t N>
[[nodiscard]] constexpr const Row* RowOf(const Row (&rows)[N], int number) {
  return number >= 0 && number < static_cast<int>(N) ? &rows[number] : nullptr;
}

/// A number in the settings that is beyond the table on either side counts as its nearest row.
[[nodiscard]] constexpr bool IsPlain(int joystick) {
  const int row = std::clamp(joystick, 0, static_cast<int>(std::size(kJoysticks)) - 1);
  return kJoysticks[row].dialect == Dialect::Plain;
}

/// A number in the settings that is beyond the table has none.
[[nodiscard]] constexpr bool HasExtras(int joystick) {
  const JoystickRow* const row = RowOf(kJoysticks, joystick);
  return row && row->extras == Extras::Yes;
}

/// The number of the joystick that a joystick file's ending tells: the F-22 Pro for an ending of none.
[[nodiscard]] constexpr int JoystickOf(std::string_view ending) {
  const auto row =
      std::find_if(std::begin(kJoysticks), std::end(kJoysticks),
                   [ending](const JoystickRow& each) { return each.endings.joystick == ending; });
  return row == std::end(kJoysticks) ? kF22Pro : static_cast<int>(row - std::begin(kJoysticks));
}

}  // namespace tarvik
