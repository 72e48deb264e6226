// Rules about slash modifiers and the branches behind them.
#include <algorithm>

#include "language/Checking.h"
#include "language/Controllers.h"
#include "text/CodePage.h"

namespace tarvik::model {
namespace {

bool IsDogfight(const SlashLetter& slash) { return slash.group == SlashGroup::Dogfight; }

const Branch* FindLetter(const Sequence& sequence, char letter) {
  const auto has = [letter](const Branch& each) {
    return each.slash != nullptr && each.slash->letter == letter;
  };
  const auto branch = std::ranges::find_if(sequence.branches, has);
  return branch == sequence.branches.end() ? nullptr : &*branch;
}

void FindUnknownBranch(const Checked&, const Place& place, const Sequence& sequence, Report& report) {
  for (const Branch& branch : sequence.branches) {
    if (branch.slash != nullptr) continue;
    report.Add(place, branch.modifier,
               Said({"There is no modifier ", Shown(place.Words(branch.modifier)), "."}));
  }
}

void FindUnknownWord(const Checked&, const Place& place, const Item& item, Report& report) {
  const std::string_view word = place.Words(item.range);
  if (item.kind != ItemKind::Unknown || !word.starts_with('/')) return;
  report.Add(place, item.range,
             Said({Shown(word), " is no modifier, and no macro's name can begin like this."}));
}

void FindElsewhere(const Checked& checked, const Place& place, const Sequence& sequence, Report& report) {
  for (const Branch& branch : sequence.branches) {
    if (branch.slash == nullptr || branch.slash->group != SlashGroup::Manner) continue;
    const std::string_view letter(&branch.slash->letter, 1);
    if (checked.abilities.Has(AbilityKind::Slash, letter)) continue;
    report.Add(place, branch.modifier,
               Said({"This stick does not know /", letter, ", which is for ",
                     InWords(DevicesWith(AbilityKind::Slash, letter)), "."}));
  }
}

void FindNoSwitch(const Checked& checked, const Place& place, const Sequence& sequence, Report& report) {
  if (checked.abilities.HasDogfightSwitch()) return;
  for (const Branch& branch : sequence.branches) {
    if (branch.slash == nullptr || !IsDogfight(*branch.slash)) continue;
    report.Add(place, branch.modifier,
               "The dogfight switch is on the throttle, and USE NOTHR says there is none.");
    return;
  }
}

/// The modifiers of a group that the sequence lacks, where it has one of them.
void FindMissingOf(const Place& place, const Sequence& sequence, std::string_view letters, Report& report) {
  const Branch* first = nullptr;
  std::vector<std::string> missing;
  for (const char letter : letters) {
    const Branch* branch = FindLetter(sequence, letter);
    if (branch == nullptr) missing.push_back(std::string("/") + letter);
    if (branch != nullptr && (first == nullptr || branch->modifier.start < first->modifier.start))
      first = branch;
  }
  if (first == nullptr || missing.empty() || first->sequence.IsEmpty()) return;
  const bool several = missing.size() > 1;
  report.Add(place, first->modifier,
             Said({missing[0], several ? " and " : "", several ? missing[1] : std::string(),
                   several ? " are" : " is", " missing beside ", place.Words(first->modifier), "."}));
}

void FindMissing(const Checked&, const Place& place, const Sequence& sequence, Report& report) {
  if (sequence.branches.empty()) return;
  FindMissingOf(place, sequence, "UMD", report);
  FindMissingOf(place, sequence, "IO", report);
}

void FindTwice(const Checked&, const Place& place, const Sequence& sequence, Report& report) {
  for (const Branch& branch : sequence.branches) {
    if (branch.slash == nullptr || branch.slash->group >= SlashGroup::Turns) continue;
    if (FindLetter(sequence, branch.slash->letter) == &branch) continue;
    report.Add(place, branch.modifier, Said({place.Words(branch.modifier), " stands here a second time."}));
  }
}

void FindEmpty(const Checked&, const Place& place, const Sequence& sequence, Report& report) {
  for (const Branch& branch : sequence.branches) {
    if (branch.slash == nullptr || !branch.sequence.IsEmpty()) continue;
    report.Add(place, branch.modifier, Said({"Nothing stands behind ", place.Words(branch.modifier), "."}));
  }
}

constexpr Hardware kF22{kF22Pro};
constexpr Hardware kF16{kFlcs};

constexpr Rule kRules[] = {
    {"unknown-modifier",
     Severity::Error,
     "A slash and a letter are no modifier.",
     "Write one of the modifiers that the Composer has buttons for.",
     {"BTN S1 /X a\n"},
     {"BTN S1 /P a\n"},
     FindUnknownBranch},
    {"word-behind-slash",
     Severity::Error,
     "A slash stands before a word.",
     "Write a blank behind the letter of a modifier: /P Fire.",
     {"BTN S1 /PF1\n"},
     {"BTN S1 /P F1\n"},
     FindUnknownWord},
    {"modifier-not-here",
     Severity::Warning,
     "This stick does not know a modifier.",
     "Use another one: an F-22 Pro knows /F and /Q, the other sticks know /A.",
     {"BTN H1U /A a\n", "", kF22},
     {"BTN H1U /A a\n", "", kF16},
     FindElsewhere},
    {"dogfight-without-throttle",
     Severity::Hint,
     "/U, /M and /D are used without a throttle.",
     "Say with USE which throttle there is, or do without these modifiers.",
     {"USE NOTHR\nBTN S1 /U a /M b /D c\n"},
     {"USE TQS\nBTN S1 /U a /M b /D c\n"},
     FindNoSwitch},
    {"branch-missing",
     Severity::Hint,
     "One of /U, /M, /D or of /I, /O is missing.",
     "Write all that belong together. The sign for no key stands for nothing.",
     {"BTN S1 /U a /D b\n"},
     {"BTN S1 /U a /M ^ /D b\n"},
     FindMissing},
    {"branch-twice",
     Severity::Warning,
     "A modifier stands twice where it can count once.",
     "Take one of the two out.",
     {"BTN S1 /I a /O b /I c\n"},
     {"BTN S1 /I a /O b\n"},
     FindTwice},
    {"empty-branch",
     Severity::Hint,
     "Nothing stands behind a modifier.",
     "Write what is sent, or the sign for no key.",
     {"BTN S1 /I a /O\n"},
     {"BTN S1 /I a /O ^\n"},
     FindEmpty},
};

}  // namespace

std::span<const Rule> SlashRules() { return kRules; }

}  // namespace tarvik::model
