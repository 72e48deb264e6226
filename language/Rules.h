// The rules by which a pair of files is judged, as rows. The rows stand by their matter in the Rules*.cpp
// files, each with the function that finds what breaks it; docs/language.md lists them.
#pragma once

#include <span>
#include <variant>

#include "language/FilePair.h"

namespace tarvik::model {

enum class Severity : std::uint8_t {
  Error,    ///< the file cannot mean anything sensible
  Warning,  ///< it means something that nobody can want
  Hint,     ///< it may be meant, or nobody here knows what the loaders make of it
};

/// A pair that shows a rule. Lines end with LF.
struct Example {
  std::string_view joystick = {};
  std::string_view macros = {};
  Hardware hardware = {};
  FileNames names = {};
};

class Checked;
class Report;
struct Place;

// What a rule looks at, from the whole pair down to a single word. Sequences and items are those of both
// files, and a sequence behind a modifier is one too.
using PairFinder = void (*)(const Checked&, Report&);
using JoystickFinder = void (*)(const Checked&, const Place&, const JoystickStatement&, Report&);
using MacroFinder = void (*)(const Checked&, const Place&, const MacroStatement&, Report&);
using AxisFinder = void (*)(const Checked&, const Place&, const Axis&, Report&);
using SequenceFinder = void (*)(const Checked&, const Place&, const Sequence&, Report&);
using ItemFinder = void (*)(const Checked&, const Place&, const Item&, Report&);
using Finder = std::variant<PairFinder, JoystickFinder, MacroFinder, AxisFinder, SequenceFinder, ItemFinder>;

struct Rule {
  std::string_view id;  ///< words in small letters with hyphens
  Severity severity;
  std::string_view title;   ///< what is wrong, in a sentence
  std::string_view advice;  ///< what to do, in a sentence
  Example example;          ///< breaks this rule and no other
  Example counterExample;   ///< the same put right: breaks no rule
  Finder find;
};

/// Every rule, by matter.
[[nodiscard]] std::span<const Rule> AllRules();
/// Null for an id of no rule.
[[nodiscard]] const Rule* FindRule(std::string_view id);
[[nodiscard]] std::string_view NameOf(Severity severity);

// The rows of each matter.
[[nodiscard]] std::span<const Rule> MacroRules();
[[nodiscard]] std::span<const Rule> ControlRules();
[[nodiscard]] std::span<const Rule> SlashRules();
[[nodiscard]] std::span<const Rule> ItemRules();
[[nodiscard]] std::span<const Rule> CodeRules();
[[nodiscard]] std::span<const Rule> AxisRules();
[[nodiscard]] std::span<const Rule> FlagRules();
[[nodiscard]] std::span<const Rule> SettingRules();
[[nodiscard]] std::span<const Rule> LineRules();

}  // namespace tarvik::model
