#include "language/Passes.h"

#include <algorithm>

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

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

std::span<const Pass> JoystickPasses() { return kJoystickPasses; }
std::span<const Pass> MacroPasses() { return kMacroPasses; }

void Painting::Run(const Pass& pass, const std::function<void(std::size_t)>& onHit) {
  std::size_t from = 0;
  while (const auto hit = FindText(text_, pass.text, from, text_.text.size(), pass.options)) {
    if (onHit) onHit(*hit);
    from = Handle(pass, *hit);
  }
}

/// Paints one hit and tells where the search goes on.
std::size_t Painting::Handle(const Pass& pass, std::size_t hit) {
  const std::size_t behind = hit + pass.text.size();
  switch (pass.kind) {
    case PassKind::WordAndOperand:
      return HandleWordAndOperand(pass, hit);
    case PassKind::Modifier:
      return HandleModifier(pass, hit);
    case PassKind::Bracket:
      return HandleBracket(pass, hit);
    case PassKind::FollowedWord:
      if (behind < text_.text.size() && text_.text[behind] == pass.follow) Paint(hit, behind, pass.colour);
      return behind;
    case PassKind::PlainWord:
      Paint(hit, behind, pass.colour);
      return behind;
    case PassKind::Port:
      return HandlePort(pass, hit);
    case PassKind::Comment:
      Paint(hit, Until(kLineEnd, behind), pass.colour);
      return behind;
  }
  return behind;
}

std::size_t Painting::HandleWordAndOperand(const Pass& pass, std::size_t hit) {
  const std::size_t operand = std::min(hit + pass.text.size() + 1, text_.text.size());
  Paint(hit, Until(" ", operand), pass.colour);
  return operand;  // the operand may hold the next hit
}

std::size_t Painting::HandleModifier(const Pass& pass, std::size_t hit) {
  const std::string_view text = text_.text;
  const std::size_t behind = hit + 1;
  const bool stops = behind < text.size() && (text[behind] == ' ' || text[behind] == '\r');
  // Nothing stands before the text's first character to speak against it, whatever follows.
  const bool modifies = hit == 0 || (text[hit - 1] == ' ' && !stops);
  const std::size_t end = modifies ? std::min(behind + 1, text.size()) : behind;
  if (modifies) Paint(hit, end, pass.colour);
  return end;
}

std::size_t Painting::HandleBracket(const Pass& pass, std::size_t hit) {
  const std::size_t inside = hit + pass.text.size();
  Paint(hit, inside, pass.colour);
  const std::size_t close = text_.text.find(')', inside);
  if (close == std::string_view::npos) return text_.text.size();  // nothing closes it: the pass ends here
  Paint(close, close + 1, pass.colour);
  return close + 1;
}

std::size_t Painting::HandlePort(const Pass& pass, std::size_t hit) {
  const std::size_t command = std::min(Until("S", hit) + 1, text_.text.size());
  Paint(hit, command, pass.colour);
  Paint(command, Until(kLineEnd, command), ColourClass::Button);
  return command;
}

std::size_t Painting::Until(std::string_view set, std::size_t from) const {
  return std::min(text_.text.find_first_of(set, from), text_.text.size());
}

void Painting::Paint(std::size_t from, std::size_t to, ColourClass colour) {
  std::fill(classes_.begin() + static_cast<std::ptrdiff_t>(from),
            classes_.begin() + static_cast<std::ptrdiff_t>(to), colour);
}

ColourRuns Painting::Colours(std::span<const Colour, kColourClasses> colours) const {
  ColourRuns runs;
  for (auto run = classes_.begin(); run != classes_.end();) {
    const auto end = std::find_if(run, classes_.end(), [run](ColourClass other) { return other != *run; });
    runs.Append(static_cast<std::size_t>(end - run), colours[static_cast<std::size_t>(*run)]);
    run = end;
  }
  return runs;
}

}  // namespace tarvik
