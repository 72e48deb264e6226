// Rules about the words of a sequence: brackets, delays, repetitions, keys that are held.
#include <algorithm>

#include "language/Checking.h"
#include "language/Controllers.h"

namespace tarvik::model {
namespace {

// What the loaders take is not known. These are the largest numbers of two bytes and of one.
constexpr std::uint32_t kLongestDelay = 65535;
constexpr std::uint32_t kMostRepeats = 255;
constexpr std::uint32_t kLargestRate = 255;

/// Whether the word is one that wants a bracket and stands there without.
bool IsBare(const Checked& checked, const Place& place, const Item& item, std::string_view word) {
  const std::string_view words = place.Words(item.range);
  return item.kind == ItemKind::Name && SameWord(words, word) && !checked.names.Defines(words);
}

void FindUnclosed(const Checked& checked, const Place& place, const Item& item, Report& report) {
  if (IsBare(checked, place, item, "RAW")) {
    report.Add(place, item.range, "The codes behind RAW do not stand in brackets.");
  } else if (!item.closed) {
    const std::string_view word = place.Words(item.range).substr(0, 3);
    report.Add(place, item.range, Said({"The bracket behind ", word, " does not close."}));
  }
}

void FindNoNumber(const Checked& checked, const Place& place, const Item& item, Report& report) {
  const bool takesNumber = item.kind == ItemKind::Delay || item.kind == ItemKind::Repeat;
  const bool empty = takesNumber && item.closed && !item.number;
  if (!empty && !IsBare(checked, place, item, "DLY") && !IsBare(checked, place, item, "RPT")) return;
  const std::string_view word = place.Words(item.range).substr(0, 3);
  report.Add(place, item.range, Said({word, " wants a number in brackets behind it."}));
}

void FindRange(const Checked&, const Place& place, const Item& item, Report& report) {
  if (!item.number || !item.closed) return;
  const std::uint32_t most = item.kind == ItemKind::Delay ? kLongestDelay : kMostRepeats;
  if (*item.number >= 1 && *item.number <= most) return;
  report.Add(place, item.range,
             Said({std::to_string(*item.number), " is probably not what the loader takes: from 1 to ",
                   std::to_string(most), " is safe. Its limits are not known."}));
}

/// The number behind RATE, where the statement has one.
std::optional<std::uint32_t> RateIn(const Place& place, const JoystickStatement& statement) {
  const auto& values = std::get<Setting>(statement.body).values;
  return values.empty() ? std::nullopt : NumberIn(place.Words(values.front()));
}

bool IsRate(const JoystickStatement& statement) {
  return statement.row != nullptr && statement.row->word == "RATE";
}

void FindRateWithout(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  if (!IsRate(statement) || RateIn(place, statement)) return;
  report.Add(place, statement.word, "RATE has no number behind it.");
}

void FindRate(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  const auto rate = IsRate(statement) ? RateIn(place, statement) : std::nullopt;
  if (!rate || (*rate >= 1 && *rate <= kLargestRate)) return;
  report.Add(place, std::get<Setting>(statement.body).values.front(),
             Said({std::to_string(*rate), " is probably not what the loader takes: from 1 to ",
                   std::to_string(kLargestRate), " is safe. Its limits are not known."}));
}

void FindHeldAlone(const Checked&, const Place& place, const Sequence& sequence, Report& report) {
  for (std::size_t i = 0; i < sequence.items.size(); ++i) {
    const Item& item = sequence.items[i];
    if (item.kind != ItemKind::Prefix) continue;
    const bool isLast = i + 1 == sequence.items.size();
    const bool keyFollows = !isLast && sequence.items[i + 1].kind != ItemKind::Delay &&
                            sequence.items[i + 1].kind != ItemKind::Repeat;
    if (keyFollows) continue;
    report.Add(place, item.range,
               Said({"No key follows ", place.Words(item.range), ", to be held with it."}));
  }
}

/// Brackets that nothing takes are keys like others. Two around something were meant otherwise.
void FindLooseBrackets(const Checked&, const Place& place, const Sequence& sequence, Report& report) {
  const auto isKey = [&](const Item& item, std::string_view sign) {
    return item.kind == ItemKind::Key && place.Words(item.range) == sign;
  };
  const auto& items = sequence.items;
  const auto opening = std::ranges::find_if(items, [&](const Item& item) { return isKey(item, "("); });
  const auto closing = std::find_if(opening, items.end(), [&](const Item& item) { return isKey(item, ")"); });
  if (closing == items.end() || closing - opening == 1) return;
  report.Add(place, {opening->range.start, closing->range.End() - opening->range.start},
             "These brackets are sent as keys: RAW, DLY and RPT alone take what is in brackets.");
}

void FindStrayCode(const Checked&, const Place& place, const Item& item, Report& report) {
  if (item.kind != ItemKind::Unknown || !place.Words(item.range).starts_with('#')) return;
  report.Add(
      place, item.range,
      Said({"The code ", Shown(place.Words(item.range)), " does not stand in the brackets of a RAW."}));
}

constexpr Rule kRules[] = {
    {"unclosed-bracket",
     Severity::Error,
     "The bracket of RAW, DLY or RPT does not close, or is not there.",
     "Put what belongs to the word into brackets: RAW (#1C #F0 #1C).",
     {"BTN S1 RAW (#1C #F0 #1C\n"},
     {"BTN S1 RAW (#1C #F0 #1C)\n"},
     FindUnclosed},
    {"number-missing",
     Severity::Error,
     "DLY or RPT has no number.",
     "Write a number in brackets: DLY(60).",
     {"BTN S1 a DLY() b\n"},
     {"BTN S1 a DLY(60) b\n"},
     FindNoNumber},
    {"number-out-of-range",
     Severity::Hint,
     "The number of DLY or RPT is probably none that the loader takes.",
     "Take another number unless you know better.",
     {"BTN S1 RPT(1000) a\n"},
     {"BTN S1 RPT(3) a\n"},
     FindRange},
    {"rate-without-number",
     Severity::Error,
     "RATE has no number.",
     "Write how often keys are sent: 80 is a good number to begin with.",
     {"RATE fast\n"},
     {"RATE 80\n"},
     FindRateWithout},
    {"rate-out-of-range",
     Severity::Hint,
     "The number of RATE is probably none that the loader takes.",
     "Take another number unless you know better.",
     {"RATE 4000\n"},
     {"RATE 80\n"},
     FindRate},
    {"held-alone",
     Severity::Warning,
     "SHF, CTL or ALT stands without a key.",
     "Write the key behind it. LSFT, LCTL and LALT are these keys by themselves.",
     {"BTN S1 SHF\n"},
     {"BTN S1 LSFT\n"},
     FindHeldAlone},
    {"loose-brackets",
     Severity::Hint,
     "Brackets stand around what is sent, and nothing before them takes any.",
     "Take them out, unless these keys are meant.",
     {"BTN S1 (a b)\n"},
     {"BTN S1 a b\n"},
     FindLooseBrackets},
    {"code-outside-raw",
     Severity::Error,
     "A code of a key stands outside RAW.",
     "Put it into brackets behind RAW.",
     {"BTN S1 #1C\n"},
     {"BTN S1 RAW (#1C #F0 #1C)\n"},
     FindStrayCode},
};

}  // namespace

std::span<const Rule> ItemRules() { return kRules; }

}  // namespace tarvik::model
