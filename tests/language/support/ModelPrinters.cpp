#include "support/ModelPrinters.h"

namespace tarvik::model {
namespace {

template <class Value>
void PrintAll(const char* what, const std::vector<Value>& values, std::ostream* out) {
  if (values.empty()) return;
  *out << " " << what << "[";
  for (const Value& value : values) {
    if (&value != &values.front()) *out << ", ";
    PrintTo(value, out);
  }
  *out << "]";
}

void PrintRange(const char* what, const Range& range, std::ostream* out) {
  *out << " " << what << " ";
  PrintTo(range, out);
}

/// What the bodies of the statements of both files are.
struct BodyPrinter {
  std::ostream* out;

  void operator()(const Blank&) const { *out << "blank"; }
  void operator()(const Remark& remark) const { PrintRange("remark", remark.comment, out); }
  void operator()(const Unknown&) const { *out << "unknown"; }
  void operator()(const Command&) const { *out << "command"; }
  void operator()(const Axis& axis) const { PrintTo(axis, out); }
  void operator()(const Sequence& sequence) const { PrintTo(sequence, out); }
  void operator()(const Button& button) const {
    PrintRange("control", button.control, out);
    PrintTo(button.sends, out);
  }
  void operator()(const Definition& definition) const {
    PrintRange("flag", definition.flag, out);
    PrintTo(definition.condition, out);
  }
  void operator()(const Setting& setting) const { PrintAll("values ", setting.values, out); }
  void operator()(const Port& port) const {
    PrintRange("is", port.is, out);
    PrintRange("control", port.control, out);
  }
  void operator()(const MacroDefinition& definition) const {
    PrintRange("name", definition.name, out);
    std::visit(*this, definition.sends);
  }
};

}  // namespace

void PrintTo(TokenKind kind, std::ostream* out) {
  PrintName(kind,
            std::array{"Blank", "LineEnd", "Comment", "Word", "Number", "Modifier", "Code", "Opening",
                       "Closing", "Logic", "Equals"},
            out);
}

void PrintTo(const Token& token, std::ostream* out) {
  PrintTo(token.kind, out);
  PrintRange("at", token.range, out);
}

void PrintTo(ItemKind kind, std::ostream* out) {
  PrintName(kind, std::array{"Key", "Prefix", "Name", "Raw", "Delay", "Repeat", "Reset", "Unknown"}, out);
}

void PrintTo(const Item& item, std::ostream* out) {
  PrintTo(item.kind, out);
  if (item.number) *out << " " << *item.number;
  if (!item.closed) *out << " not closed";
  PrintRange("at", item.range, out);
}

void PrintTo(const RawCode& code, std::ostream* out) {
  *out << (code.value ? std::to_string(*code.value) : "no code");
  PrintRange("at", code.range, out);
}

void PrintTo(const Sequence& sequence, std::ostream* out) {
  PrintAll("items ", sequence.items, out);
  for (const Branch& branch : sequence.branches) {
    *out << " /" << (branch.slash == nullptr ? '?' : branch.slash->letter) << " {";
    PrintTo(branch.sequence, out);
    *out << " }";
  }
}

void PrintTo(const Number& number, std::ostream* out) {
  *out << (number.value ? std::to_string(*number.value) : "no number");
  PrintRange("at", number.range, out);
}

void PrintTo(const Axis& axis, std::ostream* out) {
  *out << "axis " << axis.shape->word << " type ";
  PrintTo(axis.type, out);
  PrintAll("steps ", axis.steps, out);
  PrintTo(axis.keys, out);
}

void PrintTo(const Condition& condition, std::ostream* out) {
  PrintName(condition.kind,
            std::array{"Control", "And", "Or", "Not", "Pulse", "Delay", "Below", "Above", "Missing"}, out);
  if (!condition.closed) *out << " not closed";
  PrintRange("at", condition.range, out);
  PrintAll("operands ", condition.operands, out);
  PrintAll("arguments ", condition.arguments, out);
}

void PrintTo(const JoystickStatement& statement, std::ostream* out) {
  if (statement.row != nullptr) *out << statement.row->word << " ";
  std::visit(BodyPrinter{out}, statement.body);
  PrintRange("rest", statement.rest, out);
  PrintAll("comments ", statement.comments, out);
}

void PrintTo(const MacroStatement& statement, std::ostream* out) {
  std::visit(BodyPrinter{out}, statement.body);
  PrintRange("rest", statement.rest, out);
  PrintAll("comments ", statement.comments, out);
}

void PrintTo(FileKind kind, std::ostream* out) { PrintName(kind, std::array{"Joystick", "Macros"}, out); }

void PrintTo(const Hardware& hardware, std::ostream* out) {
  *out << "joystick " << hardware.joystick.value_or(-1) << " throttle " << hardware.throttle.value_or(-1)
       << " rudders " << hardware.rudders.value_or(-1);
}

void PrintTo(const Mention& mention, std::ostream* out) {
  PrintTo(mention.file, out);
  *out << " statement " << mention.statement;
  PrintRange("at", mention.range, out);
}

void PrintTo(const MacroNames& names, std::ostream* out) {
  *out << Quoted(names.name);
  PrintAll("definitions ", names.definitions, out);
  PrintAll("uses ", names.uses, out);
}

void PrintTo(const FlagNames& names, std::ostream* out) {
  *out << "X" << names.number;
  PrintAll("definitions ", names.definitions, out);
  PrintAll("buttons ", names.buttons, out);
  PrintAll("uses ", names.uses, out);
}

void PrintTo(const ControlNames& names, std::ostream* out) {
  *out << (names.isAxis ? "axis " : "") << Quoted(names.name);
  PrintAll("assignments ", names.assignments, out);
  PrintAll("uses ", names.uses, out);
}

void PrintTo(Severity severity, std::ostream* out) { *out << NameOf(severity); }

void PrintTo(const Problem& problem, std::ostream* out) {
  PrintTo(problem.file, out);
  PrintRange("at", problem.range, out);
  *out << ": " << NameOf(problem.rule->severity) << ": " << Quoted(problem.text) << " [" << problem.rule->id
       << "] " << Quoted(problem.advice);
}

void PrintTo(const LineAndColumn& position, std::ostream* out) {
  *out << "line " << position.line << ", column " << position.column;
}

}  // namespace tarvik::model
