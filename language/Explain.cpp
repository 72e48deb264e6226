#include "language/Explain.h"

#include "language/Checking.h"
#include "language/Places.h"
#include "language/Spoken.h"

namespace tarvik::model {
namespace {

constexpr std::string_view kMouseType = "MTYPE";

struct UseWords {
  std::string_view word;
  std::string_view sentence;
};

constexpr UseWords kUseWords[] = {
    {"TQS", "A TQS throttle is attached."}, {"WCS", "A WCS throttle is attached."},
    {"NOTHR", "No throttle is attached."},  {"RCS", "RCS rudders are attached."},
    {"NORDDR", "No rudders are attached."}, {"NOMOUSE", "The throttle has no mouse."},
    {"FCLK", "The frame clock is used."},
};

std::string_view WithoutEnds(std::string_view text) {
  const auto isShown = [](char byte) { return !IsBlank(byte) && byte != '\n'; };
  while (!text.empty() && !isShown(text.front())) text.remove_prefix(1);
  while (!text.empty() && !isShown(text.back())) text.remove_suffix(1);
  return text;
}

/// Explains a statement of the joystick file by what it is.
class StatementWords {
 public:
  StatementWords(const Speaker& speaker, const JoystickStatement& statement, std::string_view lines)
      : speaker_(speaker), statement_(statement), lines_(lines) {}

  std::string operator()(const Blank&) const { return {}; }
  std::string operator()(const Remark&) const { return {}; }
  std::string operator()(const Unknown&) const {
    return Said({Shown(WithoutEnds(lines_)), " begins with no word of a statement."});
  }

  std::string operator()(const Button& button) const {
    if (button.control.length == 0) return "It does not say which control it is for.";
    const std::string control = ControlInWords(Words(button.control));
    std::string said = speaker_.Sentence(control, lines_, button.sends) + ".";
    const auto flag = FlagNumber(Words(button.control));
    if (flag) said.append(DefinitionOf(*flag));
    return said;
  }

  std::string operator()(const Definition& definition) const {
    if (definition.flag.length == 0) return "It does not say which flag it is for.";
    const std::string flag = AsSentence(FlagInWords(Words(definition.flag)));
    return Said({flag, " is on while ", speaker_.InWords(lines_, definition.condition), "."});
  }

  std::string operator()(const Axis& axis) const { return AxisInWords(speaker_, lines_, axis) + "."; }

  std::string operator()(const Setting& setting) const {
    const std::string_view word = statement_.row->word;
    if (setting.values.empty()) return Said({"Nothing stands behind ", word, "."});
    if (word == "USE") return UsesInWords(setting);
    const std::string_view value = Words(setting.values.front());
    if (word == "MDEF") return Said({"The macros stand in the macro file ", value, "."});
    if (word == "NULLCHR") return Said({Shown(value), " stands for no key."});
    if (!NumberIn(value)) return Said({"The pace of the keys is ", Shown(value), ", which is no number."});
    return Said({"Keys are sent at the pace ", value, "."});
  }

  std::string operator()(const Port& port) const {
    const std::string number(1, statement_.row->word.back());
    if (port.control.length == 0) {
      return Said({"It does not say what presses button ", number, " of the game port."});
    }
    return AsSentence(
        Said({ControlInWords(Words(port.control)), " presses button ", number, " of the game port."}));
  }

  std::string operator()(const Command&) const {
    if (statement_.row->word == "SWAPTG") return "The two stages of the trigger, TG1 and TG2, are exchanged.";
    const MacroNames* macro = speaker_.Names().FindMacro(statement_.row->word);
    std::string said = "The throttle sends what the macro file has under @digitalthrottle.";
    if (macro == nullptr || macro->definitions.empty()) return said;
    const std::size_t at = macro->definitions.front().statement;
    const FilePair& pair = speaker_.Pair();
    const auto& definition = std::get<MacroDefinition>(pair.macros[at].body);
    const auto* axis = std::get_if<Axis>(&definition.sends);
    if (axis == nullptr) return said;
    return Said({said, " ", AxisInWords(speaker_, pair.macros.LinesOf(at, pair.macroText), *axis), "."});
  }

 private:
  [[nodiscard]] std::string_view Words(Range range) const { return In(lines_, range); }
  static std::string FlagInWords(std::string_view word) {
    return FlagNumber(word) ? ControlInWords(word) : Shown(word);
  }

  [[nodiscard]] std::string DefinitionOf(std::uint32_t flag) const {
    const FlagNames* names = speaker_.Names().FindFlag(flag);
    if (names == nullptr || names->definitions.empty()) return {};
    const FilePair& pair = speaker_.Pair();
    const std::size_t at = names->definitions.front().statement;
    const auto& definition = std::get<Definition>(pair.joystick[at].body);
    const std::string_view lines = pair.joystick.LinesOf(at, pair.joystickText);
    return Said({" It is on while ", speaker_.InWords(lines, definition.condition), "."});
  }

  [[nodiscard]] std::string UsesInWords(const Setting& setting) const {
    std::string said;
    for (std::size_t i = 0; i < setting.values.size(); ++i) {
      const std::string_view value = Words(setting.values[i]);
      if (!said.empty()) said.append(" ");
      if (SameWord(value, kMouseType) && i + 1 < setting.values.size()) {
        said.append(Said({"The throttle's mouse is of type ", Words(setting.values[++i]), "."}));
        continue;
      }
      const UseWords* row = kUseWords;
      while (row != std::end(kUseWords) && !SameWord(row->word, value)) ++row;
      said.append(row == std::end(kUseWords) ? Said({"Nobody knows here what ", Shown(value), " is."})
                                             : std::string(row->sentence));
    }
    return said;
  }

  const Speaker& speaker_;
  const JoystickStatement& statement_;
  std::string_view lines_;
};

std::string LeftOver(std::string_view lines, Range rest) {
  return rest.length == 0
             ? std::string()
             : Said({" What makes no sense in it is ", Shown(WithoutEnds(In(lines, rest))), "."});
}

std::string ExplainStatement(const Speaker& speaker, std::size_t at) {
  const FilePair& pair = speaker.Pair();
  const JoystickStatement& statement = pair.joystick[at];
  const std::string_view lines = pair.joystick.LinesOf(at, pair.joystickText);
  std::string said = std::visit(StatementWords(speaker, statement, lines), statement.body);
  if (statement.row != nullptr) said.append(LeftOver(lines, statement.rest));
  return said;
}

std::string ExplainMacro(const Speaker& speaker, std::size_t at) {
  const FilePair& pair = speaker.Pair();
  const MacroStatement& statement = pair.macros[at];
  const std::string_view lines = pair.macros.LinesOf(at, pair.macroText);
  if (std::holds_alternative<Unknown>(statement.body)) {
    return Said({Shown(WithoutEnds(lines)), " is neither a macro nor a remark."});
  }
  const auto* definition = std::get_if<MacroDefinition>(&statement.body);
  if (definition == nullptr) return {};
  const std::string_view name = In(lines, definition->name);
  const std::string subject = name.empty() ? "a macro without a name" : NameInWords(name);
  const auto* axis = std::get_if<Axis>(&definition->sends);
  std::string said = axis == nullptr ? speaker.Sentence(subject, lines, std::get<Sequence>(definition->sends))
                                     : Said({subject, " is this: ", AxisInWords(speaker, lines, *axis)});
  return said + "." + LeftOver(lines, statement.rest);
}

template <class File>
std::optional<std::size_t> StatementAt(const File& file, std::size_t position) {
  if (file.size() == 0) return std::nullopt;
  return file.IndexAt(position);
}

void AddLine(std::string& text, std::string_view line) {
  if (line.empty()) return;
  if (!text.empty()) text.append("\n");
  text.append(line);
}

std::string HoverMacro(const Speaker& speaker, const NameHere& here) {
  const MacroNames* macro = speaker.Names().FindMacro(here.name);
  if (macro->definitions.empty()) return Said({"No macro ", Shown(here.name), " is defined."});
  const FilePair& pair = speaker.Pair();
  const std::size_t at = macro->definitions.front().statement;
  const std::string_view lines = pair.macros.LinesOf(at, pair.macroText);
  const MacroStatement& statement = pair.macros[at];
  std::string_view line = WithoutEnds(lines.substr(0, lines.find('\n')));
  if (!statement.comments.empty() && statement.comments.front().start < line.size()) {
    line = WithoutEnds(lines.substr(0, statement.comments.front().start));
  }
  std::string text(line);
  AddLine(text, ExplainMacro(speaker, at));
  AddLine(text, speaker.CommentOf(*macro));
  return text;
}

std::string HoverFlag(const Speaker& speaker, const NameHere& here) {
  const FlagNames* flag = speaker.Names().FindFlag(*FlagNumber(here.name));
  std::string text;
  for (const Mention& each : flag->definitions) AddLine(text, ExplainStatement(speaker, each.statement));
  if (flag->definitions.empty()) AddLine(text, Said({"No DEF says when flag ", here.name, " is on."}));
  for (const Mention& each : flag->buttons) {
    const JoystickStatement& statement = speaker.Pair().joystick[each.statement];
    const std::string_view lines =
        speaker.Pair().joystick.LinesOf(each.statement, speaker.Pair().joystickText);
    const auto& button = std::get<Button>(statement.body);
    AddLine(text, speaker.Sentence(Said({"flag ", here.name}), lines, button.sends) + ".");
  }
  return text;
}

std::string HoverControl(const Speaker& speaker, const NameHere& here) {
  const ControlNames* control = speaker.Names().FindControl(here.name);
  std::string text;
  for (const Mention& each : control->assignments) AddLine(text, ExplainStatement(speaker, each.statement));
  if (!text.empty()) return text;
  return AsSentence(Said({ControlInWords(here.name), " has no statement that says what it sends."}));
}

/// The word of a statement's lines that holds a place, or ends there; none where it stands in a remark.
Token WordAt(std::string_view lines, std::size_t place) {
  Token found;
  for (const Token& token : TokensOf(lines)) {
    const bool isWord = token.kind == TokenKind::Word || token.kind == TokenKind::Modifier ||
                        token.kind == TokenKind::Logic || token.kind == TokenKind::Number;
    if (isWord && token.range.start <= place && place <= token.range.End()) found = token;
  }
  return found;
}

std::string HoverWord(const FilePair& pair, FileKind file, std::size_t position) {
  const bool inJoystick = file == FileKind::Joystick;
  const auto at = inJoystick ? StatementAt(pair.joystick, position) : StatementAt(pair.macros, position);
  if (!at) return {};
  const Range range = inJoystick ? pair.joystick.RangeOf(*at) : pair.macros.RangeOf(*at);
  const std::string_view lines = In(inJoystick ? pair.joystickText : pair.macroText, range);
  const Token token = WordAt(lines, position - range.start);
  if (token.range.length == 0) return {};
  const std::string_view word = In(lines, token.range);
  if (const std::string_view help = HelpOf(word); !help.empty()) return std::string(help);
  const bool isKey = token.kind == TokenKind::Word && word.size() > 1 && IsKeyName(word);
  return isKey ? Said({"The key ", KeyInWords(word), "."}) : std::string();
}

}  // namespace

std::string Explain(const FilePair& pair, const NameIndex& names, FileKind file, std::size_t position) {
  const Speaker speaker(pair, names);
  const bool inJoystick = file == FileKind::Joystick;
  const auto at = inJoystick ? StatementAt(pair.joystick, position) : StatementAt(pair.macros, position);
  if (!at) return {};
  return inJoystick ? ExplainStatement(speaker, *at) : ExplainMacro(speaker, *at);
}

std::string Hover(const FilePair& pair, const NameIndex& names, FileKind file, std::size_t position) {
  const auto here = NameAt(names, file, position);
  // The word of an axis, and of the throttle, begins its statement.
  if (here && HelpOf(here->name).empty()) {
    const Speaker speaker(pair, names);
    if (here->kind == NameKind::Macro) return HoverMacro(speaker, *here);
    return here->kind == NameKind::Flag ? HoverFlag(speaker, *here) : HoverControl(speaker, *here);
  }
  return HoverWord(pair, file, position);
}

}  // namespace tarvik::model
