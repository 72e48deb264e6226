#include "support/ModelPrinter.h"

#include <algorithm>
#include <sstream>

namespace tarvik::model {
namespace {

constexpr const char* kItems[] = {"key", "with", "name", "raw", "delay", "repeat", "reset", "unknown"};
constexpr const char* kConditions[] = {"on",    "AND",   "OR",    "NOT",    "PULSE",
                                       "DELAY", "CMPLT", "CMPGT", "missing"};

/// Prints one statement, of whose lines all ranges are.
class StatementPrinter {
 public:
  StatementPrinter(std::ostream& out, std::string_view lines) : out_(out), lines_(lines) {}

  void operator()(const Blank&) {}
  void operator()(const Remark&) {}
  void operator()(const Unknown&) { Line(0, "unknown"); }
  void operator()(const Command&) {}

  void operator()(const Button& button) {
    Named("control", button.control);
    Print(button.sends, 1);
  }

  void operator()(const Definition& definition) {
    Named("flag", definition.flag);
    Print(definition.condition, 1);
  }

  void operator()(const Axis& axis) {
    Named("type", axis.type);
    for (const Number& steps : axis.steps) Named("steps", steps);
    Print(axis.keys, 1);
  }

  void operator()(const Setting& setting) {
    for (const Range& value : setting.values) Named("value", value);
  }

  void operator()(const Port& port) {
    if (port.is.length == 0) Line(1, "without IS");
    Named("control", port.control);
  }

  void operator()(const MacroDefinition& definition) {
    Named("macro", definition.name);
    std::visit([this](const auto& sends) { Print(sends, 1); }, definition.sends);
  }

  void Line(int depth, const std::string& words) {
    out_ << std::string(static_cast<std::size_t>(depth) * 2 + 2, ' ') << words << '\n';
  }

  void Named(const std::string& what, Range range) {
    Line(1, what + (range.length == 0 ? " missing" : " " + Quoted(range)));
  }

  /// The words of a range on one line, with one blank for all that is not shown.
  [[nodiscard]] std::string Quoted(Range range) const {
    std::string quoted;
    for (const char byte : In(lines_, range)) {
      const bool shown = byte > ' ' && byte <= '~';
      if (shown || byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n') {
        if (shown || !quoted.ends_with(' ')) quoted += shown ? byte : ' ';
      } else {
        quoted += '?';
      }
    }
    return quoted;
  }

 private:
  void Named(const std::string& what, const Number& number) {
    Named(what, number.range);
    if (number.range.length > 0 && !number.value) Line(2, "no number");
  }

  void Print(const Axis& axis, int depth) {
    Line(depth, "axis " + Quoted(axis.word));
    (*this)(axis);
  }

  void Print(const Sequence& sequence, int depth) {
    for (const Item& item : sequence.items) Print(item, depth);
    for (const Branch& branch : sequence.branches) {
      Line(depth, Quoted(branch.modifier) + (branch.slash == nullptr ? " is no modifier" : ""));
      Print(branch.sequence, depth + 1);
    }
  }

  void Print(const Item& item, int depth) {
    std::string words = kItems[static_cast<std::size_t>(item.kind)] + (" " + Quoted(item.range));
    if (item.number) words += " " + std::to_string(*item.number);
    const bool wantsNumber = item.kind == ItemKind::Delay || item.kind == ItemKind::Repeat;
    if (wantsNumber && !item.number) words += " no number";
    if (!item.closed) words += " not closed";
    if (item.kind == ItemKind::Raw) {
      const std::vector<RawCode> codes = RawCodesOf(lines_, item);
      words += " codes " + std::to_string(codes.size());
      for (const RawCode& code : codes) {
        if (!code.value) words += " wrong " + Quoted(code.range);
      }
    }
    Line(depth, words);
  }

  void Print(const Condition& condition, int depth) {
    std::string words = kConditions[static_cast<std::size_t>(condition.kind)];
    if (condition.kind == ConditionKind::Control) words += " " + Quoted(condition.range);
    for (const Range& argument : condition.arguments) words += " " + Quoted(argument);
    if (!condition.closed) words += " not closed";
    Line(depth, words);
    for (const Condition& operand : condition.operands) Print(operand, depth + 1);
  }

  std::ostream& out_;
  std::string_view lines_;
};

template <class Body>
bool SaysNothing(const Body& body) {
  return std::holds_alternative<Blank>(body) || std::holds_alternative<Remark>(body);
}

std::string FirstLine(const JoystickStatement& statement) {
  const std::string word(statement.row == nullptr ? "" : statement.row->word);
  return word + (statement.IsSetIn() ? " set in" : "");
}

std::string FirstLine(const MacroStatement&) { return {}; }

std::string HeadingLine(const JoystickFile&, std::string_view, std::size_t) { return {}; }
std::string HeadingLine(const MacroFile& file, std::string_view text, std::size_t index) {
  const std::string heading = HeadingOver(file, text, index);
  return heading.empty() ? "" : "under \"" + heading + "\"";
}

template <class Statement>
std::string PrintedFile(const StatementList<Statement>& file, std::string_view text) {
  std::ostringstream out;
  std::ptrdiff_t line = 1;
  for (std::size_t i = 0; i < file.size(); ++i) {
    const std::string_view lines = file.LinesOf(i, text);
    if (!SaysNothing(file[i].body)) {
      StatementPrinter printer(out, lines);
      const std::string words = FirstLine(file[i]) + HeadingLine(file, text, i);
      out << line << ':' << (words.empty() ? "" : " ") << words << '\n';
      std::visit(printer, file[i].body);
      if (file[i].rest.length > 0) printer.Named("left over", file[i].rest);
      for (const Range& comment : file[i].comments) printer.Named("comment", comment);
    }
    line += std::ranges::count(lines, '\n');
  }
  return out.str();
}

}  // namespace

std::string Printed(const JoystickFile& file, std::string_view text) { return PrintedFile(file, text); }
std::string Printed(const MacroFile& file, std::string_view text) { return PrintedFile(file, text); }

}  // namespace tarvik::model
