// Rules about buttons, hats, the rocker, ports and axes: what has them, and what is assigned to them.
#include "language/Checking.h"
#include "language/Controllers.h"

namespace tarvik::model {
namespace {

using Where = Abilities::Place;

constexpr std::string_view kRudderAxis = "RDDR";

/// Calls `tell` with each control that is no axis and no flag, by its places.
template <class Tell>
void ForEachControl(const Checked& checked, Where where, const Tell& tell) {
  for (const ControlNames& control : checked.names.Controls()) {
    if (control.isAxis || IsLogicWord(control.name)) continue;
    if (checked.abilities.Of(AbilityKind::Control, control.name) != where) continue;
    for (const Mention& mention : control.assignments) tell(control, mention);
    for (const Mention& mention : control.uses) tell(control, mention);
  }
}

void FindUnknown(const Checked& checked, Report& report) {
  ForEachControl(checked, Where::Nowhere, [&](const ControlNames&, const Mention& mention) {
    report.Add(mention, Said({"No controller has ", Shown(checked.Words(mention)), "."}));
  });
}

void FindElsewhere(const Checked& checked, Report& report) {
  ForEachControl(checked, Where::Elsewhere, [&](const ControlNames& control, const Mention& mention) {
    const unsigned devices = DevicesWith(AbilityKind::Control, control.name);
    report.Add(mention, Said({Shown(checked.Words(mention)), " is on ", InWords(devices),
                              ", which this file is not for."}));
  });
}

void FindAssignedTwice(const Checked& checked, Report& report) {
  const auto tell = [&](const std::vector<Mention>& mentions) {
    for (std::size_t i = 1; i < mentions.size(); ++i) {
      report.Add(mentions[i],
                 Said({Shown(checked.Words(mentions[i])), " has a statement further up already."}));
    }
  };
  for (const ControlNames& control : checked.names.Controls()) {
    if (!control.isAxis) tell(control.assignments);
  }
  for (const FlagNames& flag : checked.names.Flags()) tell(flag.buttons);
}

void FindAxisTwice(const Checked& checked, Report& report) {
  for (const ControlNames& control : checked.names.Controls()) {
    if (!control.isAxis) continue;
    for (std::size_t i = 1; i < control.assignments.size(); ++i) {
      report.Add(control.assignments[i],
                 Said({control.name, " has a statement further up already, and which counts is not known."}));
    }
  }
}

void FindAxisElsewhere(const Checked& checked, Report& report) {
  for (const ControlNames& control : checked.names.Controls()) {
    if (!control.isAxis || checked.abilities.Has(AbilityKind::Axis, control.name)) continue;
    const unsigned devices = DevicesWith(AbilityKind::Axis, control.name);
    const std::string text =
        control.name == kRudderAxis
            ? std::string("USE NORDDR says that there are no pedals.")
            : Said({control.name, " is on ", InWords(devices), ", which this file is not for."});
    for (const Mention& mention : control.assignments) report.Add(mention, text);
    for (const Mention& mention : control.uses) report.Add(mention, text);
  }
}

void FindStatementElsewhere(const Checked& checked, const Place& place, const JoystickStatement& statement,
                            Report& report) {
  if (statement.row == nullptr) return;
  const bool isPort = statement.row->form == StatementForm::Port;
  if (!isPort && statement.row->form != StatementForm::Alone) return;
  if (checked.abilities.Of(AbilityKind::Statement, statement.row->word) != Where::Elsewhere) return;
  const std::string only = InWords(DevicesWith(AbilityKind::Statement, statement.row->word));
  report.Add(place, statement.word,
             Said({"The help knows ", statement.row->word, " for ", only,
                   " alone. What other sticks make of it is not known."}));
}

void FindResetElsewhere(const Checked& checked, const Place& place, const Item& item, Report& report) {
  if (item.kind != ItemKind::Reset || checked.abilities.Has(AbilityKind::Statement, "F22RST")) return;
  report.Add(place, item.range, "F22RST is for an F-22 Pro. What other sticks make of it is not known.");
}

void FindNoControl(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  const auto* button = std::get_if<Button>(&statement.body);
  const auto* port = std::get_if<Port>(&statement.body);
  const bool missing =
      (button != nullptr && button->control.length == 0) || (port != nullptr && port->control.length == 0);
  if (missing) {
    report.Add(place, statement.word,
               Said({"Nothing that is pressed stands behind ", statement.row->word, "."}));
  }
}

void FindNoIs(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  const auto* port = std::get_if<Port>(&statement.body);
  if (port == nullptr || port->is.length > 0 || port->control.length == 0) return;
  report.Add(place, statement.word,
             Said({"IS is missing between ", statement.row->word, " and the control."}));
}

void FindNothingSent(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  const auto* button = std::get_if<Button>(&statement.body);
  if (button == nullptr || button->control.length == 0 || !button->sends.IsEmpty()) return;
  report.Add(place, button->control, Said({Shown(place.Words(button->control)), " sends nothing."}));
}

constexpr Hardware kF22{kF22Pro};
constexpr Hardware kF16{kFlcs};

constexpr Rule kRules[] = {
    {"unknown-control",
     Severity::Error,
     "A statement is for a button, hat or flag that no controller has.",
     "Write the control's name as it stands on the picture in the Composer.",
     {"BTN S5 a\n"},
     {"BTN S4 a\n"},
     FindUnknown},
    {"control-not-here",
     Severity::Warning,
     "A statement is for a control that this hardware lacks.",
     "Use a control of what is attached, or correct the USE statement that says what is.",
     {"BTN UB a\n", "", kF16},
     {"BTN S2 a\n", "", kF16},
     FindElsewhere},
    {"control-assigned-twice",
     Severity::Warning,
     "A control has two statements.",
     "Put all that the control sends into one statement.",
     {"BTN S1 a\nBTN S1 b\n"},
     {"BTN S1 /P a /R b\n"},
     FindAssignedTwice},
    {"axis-assigned-twice",
     Severity::Hint,
     "An axis has two statements.",
     "Keep one of them.",
     {"JSX 1 4 a b c\nJSX 3 a b c\n"},
     {"JSX 1 4 a b c\nJSY 3 a b c\n"},
     FindAxisTwice},
    {"axis-not-here",
     Severity::Hint,
     "A statement is for an axis that this hardware lacks.",
     "Take the statement out, or correct the USE statement that says what is attached.",
     {"USE NOTHR\nRNG 1 8 a b\n"},
     {"USE TQS\nRNG 1 8 a b\n"},
     FindAxisElsewhere},
    {"statement-not-here",
     Severity::Hint,
     "A statement is for another stick.",
     "Take it out unless you know better.",
     {"PortB1 IS S1\n", "", kF16},
     {"PortB1 IS S1\n", "", kF22},
     FindStatementElsewhere},
    {"reset-not-here",
     Severity::Hint,
     "F22RST stands in the file of another stick.",
     "Take it out unless you know better.",
     {"BTN S1 F22RST\n", "", kF16},
     {"BTN S1 F22RST\n", "", kF22},
     FindResetElsewhere},
    {"control-missing",
     Severity::Error,
     "A statement does not say which control it is for.",
     "Write the control's name behind the first word.",
     {"BTN\n"},
     {"BTN S1 a\n"},
     FindNoControl},
    {"port-without-is",
     Severity::Warning,
     "IS is missing in the statement of a port.",
     "Write it as in PortB1 IS TG1.",
     {"PortB1 TG1\n"},
     {"PortB1 IS TG1\n"},
     FindNoIs},
    {"nothing-sent",
     Severity::Warning,
     "Nothing stands behind a control.",
     "Write what it sends, or the sign for no key.",
     {"BTN S1\n"},
     {"BTN S1 ^\n"},
     FindNothingSent},
};

}  // namespace

std::span<const Rule> ControlRules() { return kRules; }

}  // namespace tarvik::model
