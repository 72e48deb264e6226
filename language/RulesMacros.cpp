// Rules about macros: their names, definitions and uses.
#include <algorithm>

#include "language/Checking.h"
#include "language/Lines.h"
#include "text/CodePage.h"

namespace tarvik::model {
namespace {

constexpr std::string_view kDigitalThrottle = "@digitalthrottle";

/// That there is no such macro, and what may be meant.
std::string NoSuchMacro(std::string_view name, const std::vector<std::string>& nearest) {
  if (nearest.empty()) return Said({"No macro is called ", Shown(name), "."});
  std::vector<std::string> shown;
  shown.reserve(nearest.size());
  for (const std::string& each : nearest) shown.push_back(Shown(each));
  return Said({"No macro is called ", Shown(name), ". Did you mean ", OneOf(shown), "?"});
}

void FindUndefined(const Checked& checked, Report& report) {
  if (!checked.HasMacros()) return;
  std::optional<NearestNames> nearest;
  for (const MacroNames& macro : checked.names.Macros()) {
    if (!macro.definitions.empty()) continue;
    if (macro.name != kDigitalThrottle && checked.HasMeaning(macro.name)) continue;
    if (!nearest) nearest.emplace(checked.names);
    const std::string text = NoSuchMacro(macro.name, nearest->To(macro.name));
    for (const Mention& use : macro.uses) report.Add(use, text);
  }
}

/// How a later definition of a macro writes the name.
enum class Spelling { AsTheFirst, InOtherCapitals };

/// Tells of all definitions but the first that have this spelling.
void FindMoreDefinitions(const Checked& checked, Report& report, Spelling spelling, std::string_view words) {
  for (const MacroNames& macro : checked.names.Macros()) {
    if (macro.definitions.size() < 2) continue;
    for (std::size_t i = 1; i < macro.definitions.size(); ++i) {
      const Mention& each = macro.definitions[i];
      const bool isAsTheFirst = checked.Words(each) == macro.name;
      if (isAsTheFirst != (spelling == Spelling::AsTheFirst)) continue;
      report.Add(each, Said({Shown(checked.Words(each)), words}));
    }
  }
}

void FindDefinedTwice(const Checked& checked, Report& report) {
  FindMoreDefinitions(checked, report, Spelling::AsTheFirst, " is defined further up already.");
}

void FindAlike(const Checked& checked, Report& report) {
  FindMoreDefinitions(checked, report, Spelling::InOtherCapitals,
                      " differs from a macro further up in capital letters alone.");
}

bool IsUsedByJoystick(const MacroNames& macro) {
  return !macro.definitions.empty() && !macro.uses.empty() && macro.uses.front().file == FileKind::Joystick;
}

/// What a name of a macro means already; empty for one that is free.
std::string_view MeaningOf(std::string_view name) {
  if (name == kDigitalThrottle) return {};
  if (IsKeyName(name)) return "a key";
  if (SameWord(name, "SHF") || SameWord(name, "CTL") || SameWord(name, "ALT")) return "a key that is held";
  const bool isWord = FindStatementWord(name) != nullptr || IsBracketWord(name) || IsLogicWord(name) ||
                      IsForeignWord(name) || SameWord(name, "DEF") || SameWord(name, "F22RST");
  return isWord ? "a word of the language" : std::string_view{};
}

/// Whether a use of the name would be read as something else.
bool IsUnusable(std::string_view name) {
  const auto breaks = [](char byte) { return IsBlank(byte) || byte == '\n' || byte == '(' || byte == ')'; };
  if (name.size() < 2) return false;
  return std::ranges::any_of(name, breaks) || name.starts_with('/') || name.starts_with('#');
}

void FindUnused(const Checked& checked, Report& report) {
  // A joystick file that uses none may be a new one, or not the macro file's own.
  const std::vector<MacroNames>& macros = checked.names.Macros();
  if (std::ranges::none_of(macros, IsUsedByJoystick)) return;
  for (const MacroNames& macro : macros) {
    if (macro.definitions.empty() || !macro.uses.empty()) continue;
    // Why nothing can use these is told by other rules.
    if (!MeaningOf(macro.name).empty() || IsUnusable(macro.name)) continue;
    report.Add(macro.definitions.front(), Said({"Nothing uses the macro ", Shown(macro.name), "."}));
  }
}

void FindCircles(const Checked& checked, Report& report) {
  const Graph& graph = checked.MacroGraph();
  const GraphOrder& order = checked.MacroOrder();
  const std::vector<MacroNames>& macros = checked.names.Macros();
  for (std::size_t i = 0; i < macros.size(); ++i) {
    if (!order.inCircle[i] || macros[i].definitions.empty()) continue;
    const bool direct = std::ranges::find(graph[i], i) != graph[i].end();
    report.Add(macros[i].definitions.front(), Said({"The macro ", Shown(macros[i].name), " contains itself",
                                                    direct ? "." : " by way of other macros."}));
  }
}

void FindTakenNames(const Checked& checked, Report& report) {
  for (const MacroNames& macro : checked.names.Macros()) {
    if (macro.definitions.empty()) break;  // those that are defined come first
    const std::string_view meaning = MeaningOf(macro.name);
    if (meaning.empty()) continue;
    report.Add(macro.definitions.front(), Said({Shown(macro.name), " is ", meaning, " already."}));
  }
}

void FindUnusableName(const Checked&, const Place& place, const MacroStatement& statement, Report& report) {
  const auto* definition = std::get_if<MacroDefinition>(&statement.body);
  if (definition == nullptr || !IsUnusable(place.Words(definition->name))) return;
  report.Add(place, definition->name,
             Said({"Nobody can use a macro by the name ", Shown(place.Words(definition->name)), "."}));
}

void FindNoName(const Checked&, const Place& place, const MacroStatement& statement, Report& report) {
  const auto* definition = std::get_if<MacroDefinition>(&statement.body);
  if (definition == nullptr || definition->name.length > 0) return;
  report.Add(place, definition->equals, "No name stands before the \"=\".");
}

void FindEmpty(const Checked&, const Place& place, const MacroStatement& statement, Report& report) {
  const auto* definition = std::get_if<MacroDefinition>(&statement.body);
  if (definition == nullptr || definition->name.length == 0) return;
  const auto* sends = std::get_if<Sequence>(&definition->sends);
  if (sends == nullptr || !sends->IsEmpty()) return;
  report.Add(place, definition->name,
             Said({"The macro ", Shown(place.Words(definition->name)), " sends nothing."}));
}

void FindNoDefinition(const Checked&, const Place& place, const MacroStatement& statement, Report& report) {
  if (!std::holds_alternative<Unknown>(statement.body)) return;
  const std::string_view words = WithoutIndent(place.lines);
  const Range first{place.lines.size() - words.size(), words.find_first_of(" \t\r\n")};
  report.Add(place, {first.start, std::min(first.length, words.size())},
             "This line is no remark, and has no \"=\" as a macro has.");
}

constexpr Rule kRules[] = {
    {"undefined-macro",
     Severity::Error,
     "A macro is used that the macro file does not define.",
     "Define it in the macro file, or write another name.",
     {"MDEF a\nBTN S1 Fire_Gnu\nBTN S2 Fire_Gun\n", "Fire_Gun = SPC\n"},
     {"MDEF a\nBTN S1 Fire_Gun\n", "Fire_Gun = SPC\n"},
     FindUndefined},
    {"macro-defined-twice",
     Severity::Warning,
     "A macro is defined a second time.",
     "Keep one of the two definitions, or give the other another name.",
     {"MDEF a\nBTN S1 Gun\n", "Gun = SPC\nGun = ENT\n"},
     {"MDEF a\nBTN S1 Gun\nBTN S2 Launch\n", "Gun = SPC\nLaunch = ENT\n"},
     FindDefinedTwice},
    {"macro-names-alike",
     Severity::Warning,
     "The names of two macros differ in capital letters alone.",
     "Give one of them a name that differs in more: capital and small letters mean the same.",
     {"MDEF a\nBTN S1 Gun\n", "Gun = SPC\nGUN = ENT\n"},
     {"MDEF a\nBTN S1 Gun\nBTN S2 Gun2\n", "Gun = SPC\nGun2 = ENT\n"},
     FindAlike},
    {"unused-macro",
     Severity::Hint,
     "Neither file uses a macro that is defined.",
     "It does no harm. Use it, or take it out where it is in the way.",
     {"MDEF a\nBTN S1 Gun\n", "Gun = SPC\nChaff = c\n"},
     {"MDEF a\nBTN S1 Gun\nBTN S2 Chaff\n", "Gun = SPC\nChaff = c\n"},
     FindUnused},
    {"macro-in-itself",
     Severity::Error,
     "A macro contains itself, so that it would never end.",
     "Put the keys that are meant in the place of the name.",
     {"MDEF a\nBTN S1 Burst\n", "Burst = SPC Again\nAgain = DLY(60) Burst\n"},
     {"MDEF a\nBTN S1 Burst\n", "Burst = Again Again\nAgain = SPC DLY(60)\n"},
     FindCircles},
    {"macro-name-taken",
     Severity::Warning,
     "The name of a macro means something already.",
     "Give the macro another name: its uses are read as what the name means otherwise.",
     {"MDEF a\nBTN S1 F1\n", "F1 = F2\n"},
     {"MDEF a\nBTN S1 Front\n", "Front = F2\n"},
     FindTakenNames},
    {"unusable-macro-name",
     Severity::Warning,
     "The name of a macro is one that cannot be used.",
     "Write a name without blanks and brackets that begins with no slash and no \"#\".",
     {"MDEF a\nBTN S1 SPC\n", "Fire Gun = SPC\n"},
     {"MDEF a\nBTN S1 Fire_Gun\n", "Fire_Gun = SPC\n"},
     FindUnusableName},
    {"macro-without-name",
     Severity::Error,
     "Nothing stands before the \"=\" of a macro.",
     "Write the macro's name at the beginning of the line.",
     {"MDEF a\nBTN S1 SPC\n", "= SPC\n"},
     {"MDEF a\nBTN S1 Gun\n", "Gun = SPC\n"},
     FindNoName},
    {"empty-macro",
     Severity::Warning,
     "Nothing stands behind the \"=\" of a macro.",
     "Write what it sends, or the sign for no key.",
     {"MDEF a\nBTN S1 Gun\n", "Gun =\n"},
     {"MDEF a\nBTN S1 Gun\n", "Gun = ^\n"},
     FindEmpty},
    {"not-a-definition",
     Severity::Error,
     "A line of the macro file is neither a macro nor a remark.",
     "Begin it with Rem if it is a remark, or write NAME = KEYS.",
     {"MDEF a\nBTN S1 Gun\n", "Gun = SPC\nWeapons\n"},
     {"MDEF a\nBTN S1 Gun\n", "Gun = SPC\nRem Weapons\n"},
     FindNoDefinition},
};

}  // namespace

std::span<const Rule> MacroRules() { return kRules; }

}  // namespace tarvik::model
