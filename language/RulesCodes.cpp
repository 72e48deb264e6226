// Rules about the codes of keys, and whether what is pressed is let go.
#include "language/KeyBalance.h"

namespace tarvik::model {
namespace {

void FindBadCodes(const Checked&, const Place& place, const Item& item, Report& report) {
  if (item.kind != ItemKind::Raw) return;
  for (const RawCode& code : RawCodesOf(place.lines, item)) {
    if (code.value) continue;
    report.Add(place, code.range,
               Said({Shown(place.Words(code.range)), " is no code: that is # and two hexadecimal digits."}));
  }
}

void FindNoCodes(const Checked&, const Place& place, const Item& item, Report& report) {
  if (item.kind != ItemKind::Raw || !item.closed || !RawCodesOf(place.lines, item).empty()) return;
  report.Add(place, item.range, "There is no code in the brackets of RAW.");
}

/// Where a statement presses a key that it does not let go.
enum class PressedAt { BehindPress, Elsewhere };

void TellOfKeysLeftDown(const Checked& checked, PressedAt where, Report& report) {
  for (const KeyLeftDown& key : checked.LeftDown()) {
    if (key.behindPress != (where == PressedAt::BehindPress)) continue;
    report.Add(key.file, key.range,
               Said({"The key of the code ", CodeInWords(key.key),
                     " is pressed here, and nothing in this statement lets it go."}));
  }
}

void FindLeftDown(const Checked& checked, Report& report) {
  TellOfKeysLeftDown(checked, PressedAt::Elsewhere, report);
}

void FindPressedOnly(const Checked& checked, Report& report) {
  TellOfKeysLeftDown(checked, PressedAt::BehindPress, report);
}

constexpr Rule kRules[] = {
    {"bad-code",
     Severity::Error,
     "What stands in the brackets of RAW is no code.",
     "Write each code as # and two hexadecimal digits, with a blank between two codes.",
     {"BTN S1 RAW (#1C #F0 #1C #GG)\n"},
     {"BTN S1 RAW (#1C #F0 #1C)\n"},
     FindBadCodes},
    {"no-codes",
     Severity::Warning,
     "The brackets of RAW are empty.",
     "Write the codes that are sent, or take the RAW out.",
     {"BTN S1 RAW () a\n"},
     {"BTN S1 RAW (#1C #F0 #1C) a\n"},
     FindNoCodes},
    {"make-without-break",
     Severity::Warning,
     "A key is pressed by its code and never let go.",
     "Write the break code behind the make code: RAW (#1C #F0 #1C).",
     {"BTN S1 RAW (#1C)\n"},
     {"BTN S1 RAW (#1C #F0 #1C)\n"},
     FindLeftDown},
    {"key-stays-down",
     Severity::Warning,
     "What is sent behind /P presses a key that nothing lets go.",
     "Add /R with the break code, or write the break code behind the make code.",
     {"BTN S1 /P RAW (#1C)\n"},
     {"BTN S1 /P RAW (#1C) /R RAW (#F0 #1C)\n"},
     FindPressedOnly},
};

}  // namespace

std::span<const Rule> CodeRules() { return kRules; }

}  // namespace tarvik::model
