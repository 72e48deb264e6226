#include "language/Passes.h"

namespace tarvik {
namespace {

constexpr int kAnyText = 0;
constexpr int kWord = find::kWholeWord;
constexpr int kCase = find::kMatchCase;
constexpr int kWordAndCase = find::kWholeWord | find::kMatchCase;
constexpr char kNone = '\0';

// The comments come last, so that they override every statement in them. The macro file has no ports and no
// rockers, and its ANT, RNG and comparisons are matched more strictly.
constexpr Pass kJoystickPasses[] = {
    {"BTN", PassKind::WordAndOperand, kWord, kNone, ColourClass::Button,
     "Applying colour to BTN statements ...", 0},
    {"/", PassKind::Modifier, kAnyText, kNone, ColourClass::Slash, "Applying colour to / modifiers ...", 0},
    {"RAW (", PassKind::Bracket, kAnyText, kNone, ColourClass::Raw, "Applying colour to RAW statements ...",
     0},
    {"RAW(", PassKind::Bracket, kAnyText, kNone, ColourClass::Raw, "Applying colour to RAW statements ...",
     0},
    {"DLY(", PassKind::Bracket, kAnyText, kNone, ColourClass::Raw, "Applying colour to DLY statements ...",
     0},
    {"RPT(", PassKind::Bracket, kAnyText, kNone, ColourClass::Raw, "Applying colour to RPT statements ...",
     0},
    {"ANT", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous,
     "Applying colour to USE,ANT,MDEF etc. commands ...", 1},
    {"RNG", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 2},
    {"USE", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 3},
    {"MT", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 4},
    {"MDEF", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 5},
    {"RATE", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 6},
    {"PortB", PassKind::Port, kAnyText, kNone, ColourClass::Miscellaneous, nullptr, 7},
    {"JSX", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 8},
    {"JSY", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 9},
    {"RDDR", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 10},
    {"THR", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 11},
    {"SWAPTG", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 0},
    {"RKR UP", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 0},
    {"RKR DN", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 0},
    {"AND", PassKind::FollowedWord, kWordAndCase, ' ', ColourClass::Miscellaneous, nullptr, 0},
    {"NOT", PassKind::FollowedWord, kWordAndCase, ' ', ColourClass::Miscellaneous, nullptr, 0},
    {"OR", PassKind::FollowedWord, kWordAndCase, ' ', ColourClass::Miscellaneous, nullptr, 0},
    {"DEF", PassKind::WordAndOperand, kWordAndCase, kNone, ColourClass::Button, nullptr, 0},
    {"F22RST", PassKind::PlainWord, kWordAndCase, kNone, ColourClass::Miscellaneous, nullptr, 0},
    {"CMPLT", PassKind::FollowedWord, kCase, '(', ColourClass::Miscellaneous, nullptr, 0},
    {"CMPGT", PassKind::FollowedWord, kCase, '(', ColourClass::Miscellaneous, nullptr, 0},
    {"DELAY", PassKind::FollowedWord, kCase, '(', ColourClass::Raw, nullptr, 0},
    {"PULSE", PassKind::FollowedWord, kCase, '(', ColourClass::Raw, nullptr, 12},
    {"GAME1", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 13},
    {"GAME2", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 14},
    {"@digitalthrottle", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 15},
    {"Rem", PassKind::Comment, kWord, kNone, ColourClass::Comment, "Applying colour to Rem comments ...", 0},
    {"~", PassKind::Comment, kAnyText, kNone, ColourClass::Comment, "Applying colour to Rem comments ...", 0},
};

constexpr Pass kMacroPasses[] = {
    {"BTN", PassKind::WordAndOperand, kWord, kNone, ColourClass::Button,
     "Applying colour to BTN statements ...", 0},
    {"/", PassKind::Modifier, kAnyText, kNone, ColourClass::Slash, "Applying colour to / modifiers ...", 0},
    {"RAW (", PassKind::Bracket, kAnyText, kNone, ColourClass::Raw, "Applying colour to RAW statements ...",
     0},
    {"RAW(", PassKind::Bracket, kAnyText, kNone, ColourClass::Raw, "Applying colour to RAW statements ...",
     0},
    {"DLY(", PassKind::Bracket, kAnyText, kNone, ColourClass::Raw, "Applying colour to DLY statements ...",
     0},
    {"RPT(", PassKind::Bracket, kAnyText, kNone, ColourClass::Raw, "Applying colour to RPT statements ...",
     0},
    {"ANT", PassKind::FollowedWord, kWordAndCase, ' ', ColourClass::Miscellaneous,
     "Applying colour to USE,ANT,MDEF etc. commands ...", 1},
    {"RNG", PassKind::FollowedWord, kWordAndCase, ' ', ColourClass::Miscellaneous, nullptr, 2},
    {"USE", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 3},
    {"MT", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 4},
    {"MDEF", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 5},
    {"RATE", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 6},
    {"JSX", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 8},
    {"JSY", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 9},
    {"RDDR", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 10},
    {"THR", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 11},
    {"SWAPTG", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 12},
    {"AND", PassKind::FollowedWord, kWordAndCase, ' ', ColourClass::Miscellaneous, nullptr, 0},
    {"NOT", PassKind::FollowedWord, kWordAndCase, ' ', ColourClass::Miscellaneous, nullptr, 0},
    {"OR", PassKind::FollowedWord, kWordAndCase, ' ', ColourClass::Miscellaneous, nullptr, 0},
    {"DEF", PassKind::WordAndOperand, kWordAndCase, kNone, ColourClass::Button, nullptr, 0},
    {"F22RST", PassKind::PlainWord, kWordAndCase, kNone, ColourClass::Miscellaneous, nullptr, 0},
    {"CMPLT", PassKind::FollowedWord, kWordAndCase, '(', ColourClass::Miscellaneous, nullptr, 0},
    {"CMPGT", PassKind::FollowedWord, kWordAndCase, '(', ColourClass::Miscellaneous, nullptr, 0},
    {"DELAY", PassKind::FollowedWord, kCase, '(', ColourClass::Raw, nullptr, 0},
    {"PULSE", PassKind::FollowedWord, kCase, '(', ColourClass::Raw, nullptr, 0},
    {"GAME1", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 13},
    {"GAME2", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 14},
    {"@digitalthrottle", PassKind::FollowedWord, kWord, ' ', ColourClass::Miscellaneous, nullptr, 15},
    {"Rem", PassKind::Comment, kWord, kNone, ColourClass::Comment, "Applying colour to Rem comments ...", 0},
    {"~", PassKind::Comment, kAnyText, kNone, ColourClass::Comment, "Applying colour to ~ comments ...", 0},
};

}  // namespace

std::span<const Pass> JoystickPasses() { return kJoystickPasses; }
std::span<const Pass> MacroPasses() { return kMacroPasses; }

}  // namespace tarvik
