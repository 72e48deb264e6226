#include "play/ReadySticks.h"

#include <algorithm>

#include "text/CodePage.h"

namespace tarvik::play {
namespace {

struct ReadyRow {
  std::string_view input;
  std::string_view control;
};

struct ReadyStick {
  std::string_view inName;  ///< what the stick's own name has in it, in capital letters
  std::string_view name;
  std::span<const ReadyRow> rows;
};

// The buttons are counted as on the maker's own drawings of the stick. The axes come in the order of the
// kernel's codes for them: X, Y, Z, their rotations, the throttle. The levers give their least value in
// front.

constexpr ReadyRow kPlain[] = {
    {"axis 1", "JSX"},   {"axis 2", "JSY"},  {"axis 3 turned", "THR"}, {"axis 4", "RDDR"}, {"hat 1", "H1"},
    {"button 1", "TG1"}, {"button 2", "S2"}, {"button 3", "S1"},       {"button 4", "S4"}, {"button 5", "S3"},
    {"button 6", "TG2"}, {"button 7", "T1"}, {"button 8", "T6"},
};

// Twist is the third axis and the slider the fourth. Trigger, thumb button, then four on the head and six on
// the base.
constexpr ReadyRow kExtreme[] = {
    {"axis 1", "JSX"},   {"axis 2", "JSY"},   {"axis 3", "RDDR"},  {"axis 4 turned", "THR"},
    {"hat 1", "H1"},     {"button 1", "TG1"}, {"button 2", "S3"},  {"button 3", "S1"},
    {"button 4", "S2"},  {"button 5", "S4"},  {"button 6", "TG2"}, {"button 7", "T1"},
    {"button 8", "T2"},  {"button 9", "T3"},  {"button 10", "T4"}, {"button 11", "T5"},
    {"button 12", "T6"},
};

// Twist and slider likewise. Trigger, the button below the hat and those on its two sides, twelve on the
// base.
constexpr ReadyRow kT16000[] = {
    {"axis 1", "JSX"},  {"axis 2", "JSY"},   {"axis 3", "RDDR"},  {"axis 4 turned", "THR"},
    {"hat 1", "H1"},    {"button 1", "TG1"}, {"button 2", "S3"},  {"button 3", "S1"},
    {"button 4", "S2"}, {"button 5", "T1"},  {"button 6", "T2"},  {"button 7", "T3"},
    {"button 8", "T4"}, {"button 9", "T5"},  {"button 10", "T6"},
};

// The same grip, with its trim hat as the hat and the other three as buttons, clockwise from above.
constexpr ReadyRow kWarthogStick[] = {
    {"axis 1", "JSX"},    {"axis 2", "JSY"},    {"hat 1", "H1"},      {"button 1", "TG1"},
    {"button 2", "S2"},   {"button 3", "S3"},   {"button 4", "S4"},   {"button 5", "S1"},
    {"button 6", "TG2"},  {"button 7", "H2U"},  {"button 8", "H2R"},  {"button 9", "H2D"},
    {"button 10", "H2L"}, {"button 11", "H3U"}, {"button 12", "H3R"}, {"button 13", "H3D"},
    {"button 14", "H3L"}, {"button 15", "H4U"}, {"button 16", "H4R"}, {"button 17", "H4D"},
    {"button 18", "H4L"},
};

// The cursor's push, the microphone's hat clockwise from above, the speed brake, the boat switch, and the
// button on the left lever. Of the two levers the left one is the throttle.
constexpr ReadyRow kWarthogThrottle[] = {
    {"button 1", "T1"},  {"button 3", "T2"},          {"button 4", "T3"},
    {"button 5", "T4"},  {"button 6", "T5"},          {"button 7", "T9"},
    {"button 8", "T10"}, {"button 9", "DOGFIGHT UP"}, {"button 10", "DOGFIGHT DOWN"},
    {"button 15", "T6"}, {"axis 4 turned", "THR"},
};

// The trigger's two stages are the first and the fifteenth button.
constexpr ReadyRow kX52[] = {
    {"axis 1", "JSX"},    {"axis 2", "JSY"},    {"axis 3 turned", "THR"}, {"axis 6", "RDDR"},
    {"hat 1", "H1"},      {"button 1", "TG1"},  {"button 2", "S2"},       {"button 3", "S1"},
    {"button 4", "S4"},   {"button 6", "S3"},   {"button 7", "T6"},       {"button 8", "T1"},
    {"button 15", "TG2"}, {"button 16", "H2U"}, {"button 17", "H2R"},     {"button 18", "H2D"},
    {"button 19", "H2L"}, {"button 20", "T2"},  {"button 21", "T3"},      {"button 22", "T4"},
    {"button 23", "T5"},
};

constexpr ReadyStick kSticks[] = {
    {"T.16000M", "Thrustmaster T.16000M", kT16000},
    {"JOYSTICK - HOTAS WARTHOG", "Thrustmaster Warthog stick", kWarthogStick},
    {"THROTTLE - HOTAS WARTHOG", "Thrustmaster Warthog throttle", kWarthogThrottle},
    {"EXTREME 3D", "Logitech Extreme 3D", kExtreme},
    {"X52 FLIGHT", "Saitek X52", kX52},
};
constexpr ReadyStick kAnyOther = {"", "plain stick", kPlain};

/// What plays the part of a control on the sticks whose controls have no numbers.
constexpr ReadyRow kOnPlainSticks[] = {
    {"TG1", "TG"}, {"S1", "MB"}, {"S2", "UB"}, {"S3", "LB"}, {"H1", "H"},      {"T1", "1"},       {"T2", "2"},
    {"T3", "3"},   {"T4", "4"},  {"T5", "5"},  {"T6", "6"},  {"T9", "RKR UP"}, {"T10", "RKR DN"},
};

const ReadyStick& ReadyFor(std::string_view stick) {
  const std::string name = UpperCase(stick);
  for (const ReadyStick& each : kSticks) {
    if (name.find(each.inName) != std::string::npos) return each;
  }
  return kAnyOther;
}

bool Has(const StickShape& shape, const StickInput& input) {
  const int counts[] = {shape.buttons, shape.hats, shape.axes};
  return input.number < counts[static_cast<std::size_t>(input.part)];
}

/// None where a plain stick has nothing in its place.
std::string_view InDialect(std::string_view control, Dialect dialect) {
  if (dialect == Dialect::Numbered || TargetNamed(control) == TargetKind::Axis) return control;
  const auto* const found = std::ranges::find(kOnPlainSticks, control, &ReadyRow::input);
  return found == std::end(kOnPlainSticks) ? std::string_view() : found->control;
}

}  // namespace

std::string_view ReadyMapFor(std::string_view stick) { return ReadyFor(stick).name; }

void UseReadyMap(StickMap& map, const StickId& stick, const StickShape& shape, Dialect dialect) {
  map.Clear(stick);
  for (const ReadyRow& row : ReadyFor(stick.name).rows) {
    const auto input = InputIn(row.input);
    const std::string_view control = InDialect(row.control, dialect);
    if (input && Has(shape, *input) && !control.empty()) map.Set(stick, *input, control);
  }
}

}  // namespace tarvik::play
