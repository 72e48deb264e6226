#include "language/Passes.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tarvik {
namespace {

using enum PassKind;

constexpr int kAnyText = 0;
constexpr int kWord = find::kWholeWord;
constexpr int kCase = find::kMatchCase;
constexpr int kWordAndCase = find::kWholeWord | find::kMatchCase;
constexpr char kNone = '\0';

/// How a pass over the macro file differs from the one over the joystick file. What a row leaves out is the
/// same in both.
struct MacroDeviation {
  enum class Presence { Made, Missing } presence = Presence::Made;
  std::optional<int> options = std::nullopt;
  const char* status = nullptr;
  std::optional<int> progress = std::nullopt;
};
constexpr MacroDeviation kMissing{.presence = MacroDeviation::Presence::Missing};

struct Row {
  Pass joystick;
  MacroDeviation macro = {};
};

// The comments come last, so that they override every statement in them. The macro file has no ports and no
// rockers, and its ANT, RNG and comparisons are matched more strictly.
constexpr Row kRows[] = {
    {{"BTN", WordAndOperand, kWord, kNone, ColourClass::Button, "Applying colour to BTN statements ...", 0}},
    {{"/", Modifier, kAnyText, kNone, ColourClass::Slash, "Applying colour to / modifiers ...", 0}},
    {{"RAW (", Bracket, kAnyText, kNone, ColourClass::Raw, "Applying colour to RAW statements ...", 0}},
    {{"RAW(", Bracket, kAnyText, kNone, ColourClass::Raw, "Applying colour to RAW statements ...", 0}},
    {{"DLY(", Bracket, kAnyText, kNone, ColourClass::Raw, "Applying colour to DLY statements ...", 0}},
    {{"RPT(", Bracket, kAnyText, kNone, ColourClass::Raw, "Applying colour to RPT statements ...", 0}},
    {{"ANT", FollowedWord, kWord, ' ', ColourClass::Miscellaneous,
      "Applying colour to USE,ANT,MDEF etc. commands ...", 1},
     {.options = kWordAndCase}},
    {{"RNG", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 2}, {.options = kWordAndCase}},
    {{"USE", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 3}},
    {{"MT", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 4}},
    {{"MDEF", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 5}},
    {{"RATE", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 6}},
    {{"PortB", Port, kAnyText, kNone, ColourClass::Miscellaneous, nullptr, 7}, kMissing},
    {{"JSX", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 8}},
    {{"JSY", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 9}},
    {{"RDDR", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 10}},
    {{"THR", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 11}},
    {{"SWAPTG", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 0}, {.progress = 12}},
    {{"RKR UP", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 0}, kMissing},
    {{"RKR DN", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 0}, kMissing},
    {{"AND", FollowedWord, kWordAndCase, ' ', ColourClass::Miscellaneous, nullptr, 0}},
    {{"NOT", FollowedWord, kWordAndCase, ' ', ColourClass::Miscellaneous, nullptr, 0}},
    {{"OR", FollowedWord, kWordAndCase, ' ', ColourClass::Miscellaneous, nullptr, 0}},
    {{"DEF", WordAndOperand, kWordAndCase, kNone, ColourClass::Button, nullptr, 0}},
    {{"F22RST", PlainWord, kWordAndCase, kNone, ColourClass::Miscellaneous, nullptr, 0}},
    {{"CMPLT", FollowedWord, kCase, '(', ColourClass::Miscellaneous, nullptr, 0}, {.options = kWordAndCase}},
    {{"CMPGT", FollowedWord, kCase, '(', ColourClass::Miscellaneous, nullptr, 0}, {.options = kWordAndCase}},
    {{"DELAY", FollowedWord, kCase, '(', ColourClass::Raw, nullptr, 0}},
    {{"PULSE", FollowedWord, kCase, '(', ColourClass::Raw, nullptr, 12}, {.progress = 0}},
    {{"GAME1", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 13}},
    {{"GAME2", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 14}},
    {{"@digitalthrottle", FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 15}},
    {{"Rem", Comment, kWord, kNone, ColourClass::Comment, "Applying colour to Rem comments ...", 0}},
    {{"~", Comment, kAnyText, kNone, ColourClass::Comment, "Applying colour to Rem comments ...", 0},
     {.status = "Applying colour to ~ comments ..."}},
};

constexpr bool IsOfMacros(const Row& row) { return row.macro.presence == MacroDeviation::Presence::Made; }

constexpr Pass MacroPass(const Row& row) {
  Pass pass = row.joystick;
  pass.options = row.macro.options.value_or(pass.options);
  if (row.macro.status != nullptr) pass.status = row.macro.status;
  pass.progress = row.macro.progress.value_or(pass.progress);
  return pass;
}

constexpr auto kJoystickPasses = [] {
  std::array<Pass, std::size(kRows)> passes{};
  std::ranges::transform(kRows, passes.begin(), &Row::joystick);
  return passes;
}();

constexpr auto kMacroPasses = [] {
  std::array<Pass, std::ranges::count_if(kRows, IsOfMacros)> passes{};
  auto next = passes.begin();
  for (const Row& row : kRows)
    if (IsOfMacros(row)) *next++ = MacroPass(row);
  return passes;
}();

}  // namespace

std::span<const Pass> JoystickPasses() { return kJoystickPasses; }
std::span<const Pass> MacroPasses() { return kMacroPasses; }

}  // namespace tarvik
