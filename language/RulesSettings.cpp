// Rules about what holds for a whole file: USE, MDEF and their fellows, and the names of the files.
#include <algorithm>
#include <bitset>

#include "language/Checking.h"
#include "language/ComposerTables.h"
#include "language/Controllers.h"

namespace tarvik::model {
namespace {

constexpr std::string_view kMdef = "MDEF";
constexpr std::string_view kUse = "USE";
constexpr std::string_view kMouseType = "MTYPE";
const Setting* SettingOf(const JoystickStatement& statement) { return std::get_if<Setting>(&statement.body); }

/// The value of the last MDEF, by which the macro file is found; empty where there is none.
struct MacroFileName {
  Place place;
  Range range;

  [[nodiscard]] std::string_view Text() const { return place.Words(range); }
};

MacroFileName NamedMacroFile(const Checked& checked) {
  MacroFileName named;
  const JoystickStatement* mdef = checked.LastSetting(kMdef, named.place);
  if (mdef != nullptr && !SettingOf(*mdef)->values.empty()) named.range = SettingOf(*mdef)->values.front();
  return named;
}

std::string_view WithoutEnding(std::string_view name) { return name.substr(0, name.rfind('.')); }

bool HasMacroEnding(std::string_view name) {
  const std::string_view base = WithoutEnding(name);
  return base.size() < name.size() && std::ranges::any_of(kEndings, [&](const Endings& each) {
           return SameWord(each.macro, name.substr(base.size() + 1));
         });
}

/// Up to eight characters, and up to three behind a point.
bool IsDosName(std::string_view name) {
  constexpr std::string_view kForbidden = " \"*+,/:;<=>?[\\]|";
  const std::string_view base = WithoutEnding(name);
  const std::string_view ending = name.substr(std::min(base.size() + 1, name.size()));
  if (base.empty() || base.size() > 8 || ending.size() > 3 || base.find('.') != std::string_view::npos)
    return false;
  return name.find_first_of(kForbidden) == std::string_view::npos;
}

void FindNoMdef(const Checked& checked, Report& report) {
  Place place;
  if (checked.LastSetting(kMdef, place) != nullptr) return;
  // Where there is no macro file, all that is no word of the language may be one.
  const auto isUsed = [&](const MacroNames& macro) {
    const bool isUsedHere = !macro.uses.empty() && macro.uses.front().file == FileKind::Joystick;
    const bool mayBe =
        checked.pair.names.noMacroFile && !checked.HasMacros() && !checked.HasMeaning(macro.name);
    return isUsedHere && (!macro.definitions.empty() || mayBe);
  };
  const std::vector<MacroNames>& macros = checked.names.Macros();
  const auto macro = std::ranges::find_if(macros, isUsed);
  if (macro == macros.end()) return;
  report.Add(macro->uses.front(),
             macro->definitions.empty()
                 ? Said({Shown(macro->name), " is no key, and no MDEF says in which file it is a macro."})
                 : std::string("The file uses macros, and no MDEF says which file they are in."));
}

void FindOtherFile(const Checked& checked, Report& report) {
  const MacroFileName named = NamedMacroFile(checked);
  const std::string_view open = checked.pair.names.macros;
  if (named.range.length == 0 || open.empty() || checked.pair.names.noMacroFile) return;
  const std::string_view wanted = HasMacroEnding(named.Text()) ? WithoutEnding(named.Text()) : named.Text();
  if (SameWord(wanted, WithoutEnding(open))) return;
  report.Add(
      named.place, named.range,
      Said({"MDEF names ", Shown(named.Text()), ", and the macro file that is open is ", Shown(open), "."}));
}

void FindNoMacroFile(const Checked& checked, Report& report) {
  const MacroFileName named = NamedMacroFile(checked);
  if (named.range.length == 0 || !checked.pair.names.noMacroFile) return;
  report.Add(named.place, named.range,
             Said({"There is no macro file ", Shown(named.Text()), " beside this file."}));
}

void FindLongNames(const Checked& checked, Report& report) {
  const MacroFileName named = NamedMacroFile(checked);
  const std::string_view name = HasMacroEnding(named.Text()) ? WithoutEnding(named.Text()) : named.Text();
  constexpr std::string_view kWhy = " is no name of up to eight characters, and DOS finds no other.";
  if (!name.empty() && !IsDosName(name)) report.Add(named.place, named.range, Said({Shown(name), kWhy}));
  const std::string_view own = checked.pair.names.joystick;
  if (!own.empty() && !IsDosName(own))
    report.Add(FileKind::Joystick, {0, 0}, Said({"The file's name ", Shown(own), kWhy}));
}

void FindEnding(const Checked& checked, Report& report) {
  const MacroFileName named = NamedMacroFile(checked);
  if (!HasMacroEnding(named.Text())) return;
  report.Add(named.place, named.range, Said({Shown(named.Text()), " has an ending."}));
}

/// Whether a second statement of the word would take the first one's place. Several USE are usual, and what
/// is for a control or an axis is judged by that.
bool CountsOnce(const StatementWord& row) {
  return row.form == StatementForm::Port || row.word == "SWAPTG" ||
         (row.form == StatementForm::Values && row.word != kUse);
}

void FindSettingTwice(const Checked& checked, Report& report) {
  std::bitset<std::size(kStatementWords)> seen;
  for (std::size_t i = 0; i < checked.pair.joystick.size(); ++i) {
    const JoystickStatement& statement = checked.pair.joystick[i];
    if (statement.row == nullptr || !CountsOnce(*statement.row)) continue;
    const auto word = static_cast<std::size_t>(statement.row - kStatementWords);
    if (seen[word]) {
      report.Add(checked.PlaceOf({FileKind::Joystick, i, {}}), statement.word,
                 Said({statement.row->word, " stands further up already."}));
    }
    seen.set(word);
  }
}

void FindNoValue(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  const Setting* setting = SettingOf(statement);
  if (setting == nullptr || !setting->values.empty() || statement.row->word == "RATE") return;
  report.Add(place, statement.word, Said({"Nothing stands behind ", statement.row->word, "."}));
}

bool IsMouseType(std::string_view word) {
  return std::ranges::any_of(tables::kMouseLists, [word](const tables::MouseListRow& list) {
    const auto number = word.empty() ? std::nullopt : NumberIn(word.substr(1));
    return number && SameWord(word.substr(0, 1), {&list.letter, 1}) && *number >= 1 &&
           *number <= list.types.size();
  });
}

bool IsThing(std::string_view word) {
  return std::ranges::any_of(tables::kUses, [word](const tables::UseRow& row) {
    return row.text.starts_with("USE ") && SameWord(row.text.substr(4), word);
  });
}

bool IsUse(const JoystickStatement& statement) {
  return statement.row != nullptr && statement.row->word == kUse && !SettingOf(statement)->values.empty();
}

void FindUnknownUse(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  if (!IsUse(statement)) return;
  const std::vector<Range>& values = SettingOf(statement)->values;
  const std::string_view word = place.Words(values[0]);
  const bool isMouse = SameWord(word, kMouseType);
  if (!isMouse && !IsThing(word)) {
    report.Add(place, values[0], Said({"USE does not know ", Shown(word), "."}));
  } else if (isMouse && (values.size() < 2 || !IsMouseType(place.Words(values[1])))) {
    const std::string_view type = values.size() < 2 ? std::string_view{} : place.Words(values[1]);
    report.Add(place, values.size() < 2 ? values[0] : values[1],
               type.empty() ? std::string("MTYPE has no type of a mouse behind it.")
                            : Said({Shown(type), " is no type of a mouse."}));
  } else if (values.size() > (isMouse ? 2U : 1U)) {
    const Range more = values[isMouse ? 2 : 1];
    report.Add(place, more, Said({"USE takes one thing, and ", Shown(place.Words(more)), " is a second."}));
  }
}

/// Which matter a USE is about, and what it says of it.
enum class Matter { None, Throttle, Rudders, Mouse };

Matter MatterOf(std::string_view word) {
  const auto is = [word](std::string_view other) { return SameWord(word, other); };
  if (is("TQS") || is("WCS") || is("NOTHR")) return Matter::Throttle;
  if (is("RCS") || is("NORDDR")) return Matter::Rudders;
  return is(kMouseType) || is("NOMOUSE") ? Matter::Mouse : Matter::None;
}

void FindContradictions(const Checked& checked, Report& report, Matter first, Matter last) {
  std::string said[4];
  for (std::size_t i = 0; i < checked.pair.joystick.size(); ++i) {
    const JoystickStatement& statement = checked.pair.joystick[i];
    if (!IsUse(statement)) continue;
    const Place place = checked.PlaceOf({FileKind::Joystick, i, {}});
    const std::vector<Range>& values = SettingOf(statement)->values;
    const Matter matter = MatterOf(place.Words(values[0]));
    if (matter < first || matter > last) continue;
    std::string& before = said[static_cast<std::size_t>(matter)];
    const Range whole{values[0].start, values.back().End() - values[0].start};
    const std::string_view now = place.Words(whole);
    if (!before.empty() && !SameWord(before, now)) {
      report.Add(place, whole,
                 Said({"USE ", Shown(now), " contradicts USE ", Shown(before), " further up."}));
    }
    if (before.empty()) before = now;
  }
}

void FindUseContradictions(const Checked& checked, Report& report) {
  FindContradictions(checked, report, Matter::Throttle, Matter::Rudders);
}

void FindMouseContradictions(const Checked& checked, Report& report) {
  FindContradictions(checked, report, Matter::Mouse, Matter::Mouse);
}

constexpr Rule kRules[] = {
    {"no-mdef",
     Severity::Warning,
     "The joystick file uses macros and has no MDEF.",
     "Write MDEF and the name of the macro file, without its ending.",
     {"BTN S1 Gun\n", "Gun = SPC\n"},
     {"MDEF a\nBTN S1 Gun\n", "Gun = SPC\n"},
     FindNoMdef},
    {"mdef-other-file",
     Severity::Warning,
     "MDEF names another macro file than the one that is open.",
     "Open the pair that belongs together, or correct MDEF.",
     {"MDEF strike\nBTN S1 Gun\n", "Gun = SPC\n", {}, {"strike.b50", "patrol.m50"}},
     {"MDEF strike\nBTN S1 Gun\n", "Gun = SPC\n", {}, {"strike.b50", "strike.m50"}},
     FindOtherFile},
    {"macro-file-missing",
     Severity::Error,
     "The macro file that MDEF names is not there.",
     "Put it into the folder of the joystick file, or correct MDEF.",
     {"MDEF strike\nBTN S1 Gun\n", "", {}, {"strike.b50", "", true}},
     {"MDEF strike\nBTN S1 Gun\n", "Gun = SPC\n", {}, {"strike.b50", "strike.m50"}},
     FindNoMacroFile},
    {"name-not-dos",
     Severity::Warning,
     "A file has a name that DOS does not know.",
     "Give the file a name of up to eight letters and digits.",
     {"MDEF strike_eagle\nBTN S1 Gun\n", "Gun = SPC\n"},
     {"MDEF strike\nBTN S1 Gun\n", "Gun = SPC\n"},
     FindLongNames},
    {"mdef-with-ending",
     Severity::Warning,
     "MDEF names the macro file with its ending.",
     "Write the name alone.",
     {"MDEF strike.m50\nBTN S1 Gun\n", "Gun = SPC\n"},
     {"MDEF strike\nBTN S1 Gun\n", "Gun = SPC\n"},
     FindEnding},
    {"setting-twice",
     Severity::Warning,
     "A statement that can count once stands twice.",
     "Keep one of the two.",
     {"RATE 80\nRATE 60\n"},
     {"RATE 80\n"},
     FindSettingTwice},
    {"setting-without-value",
     Severity::Error,
     "Nothing stands behind USE, MDEF or NULLCHR.",
     "Write the value behind the word, or take the statement out.",
     {"NULLCHR\n"},
     {"NULLCHR ^\n"},
     FindNoValue},
    {"unknown-use",
     Severity::Warning,
     "USE names something that is not known.",
     "Write what the Composer's page for USE has, one statement for each thing.",
     {"USE PEDALS\n"},
     {"USE RCS\n"},
     FindUnknownUse},
    {"use-contradicts",
     Severity::Warning,
     "Two USE statements contradict each other.",
     "Keep the one that tells what is attached.",
     {"USE TQS\nUSE NOTHR\n"},
     {"USE TQS\nUSE NORDDR\n"},
     FindUseContradictions},
    {"mouse-contradicts",
     Severity::Hint,
     "Two USE statements say different things of the mouse.",
     "Keep the one that is meant. Which of them counts is not known.",
     {"USE MTYPE A1\nUSE NOMOUSE\n"},
     {"USE MTYPE A1\n"},
     FindMouseContradictions},
};

}  // namespace

std::span<const Rule> SettingRules() { return kRules; }

}  // namespace tarvik::model
