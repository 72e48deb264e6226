// Rules about lines: where statements begin, what is left over, which characters there are.
#include <algorithm>

#include "language/Checking.h"
#include "language/Lines.h"

namespace tarvik::model {
namespace {

/// What the loaders take is not known. DOS programs often read lines of up to this many characters.
constexpr std::size_t kLongestLine = 255;

void FindSetIn(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  if (!statement.IsSetIn()) return;
  report.Add(place, statement.word,
             Said({"Blanks stand before ", place.Words(statement.word), ", which must begin its line."}));
}

void FindInsideLine(const Checked& checked, const Place& place, const Item& item, Report& report) {
  const std::string_view word = place.Words(item.range);
  if (item.kind != ItemKind::Name || FindStatementWord(word) == nullptr || checked.names.Defines(word))
    return;
  if (checked.IsNullSign(word)) return;
  report.Add(place, item.range, Said({Shown(word), " begins a statement, and stands inside another one."}));
}

void FindUnknown(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  if (!std::holds_alternative<Unknown>(statement.body)) return;
  const std::string_view words = WithoutIndent(place.lines);
  const std::string_view line = words.substr(0, words.find_first_of("\r\n"));
  const std::size_t length = std::min(line.find_first_of(" \t"), line.size());
  if (SameWord(FirstWord(line), "DEF")) return;
  const bool setIn = words.size() < place.lines.size();
  report.Add(
      place, {place.lines.size() - words.size(), length},
      setIn ? std::string("This line is set in, and there is no statement above that it could belong to.")
            : Said({"No statement begins with ", Shown(line.substr(0, length)), "."}),
      setIn ? "Take the blank line or the remark above it away, or the blanks before it." : "");
}

void FindLeftOver(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  const bool judged = statement.row == nullptr || std::holds_alternative<Definition>(statement.body);
  if (judged || statement.rest.length == 0) return;
  report.Add(place, statement.rest,
             Said({Shown(place.Words(statement.rest)), " stands behind the end of the statement."}));
}

/// Whether a byte is no text: neither a character nor a blank, nor part of a line end.
bool IsUnreadable(std::string_view text, std::size_t at) {
  const char byte = text[at];
  if (byte == '\r') return at + 1 >= text.size() || text[at + 1] != '\n';
  return (byte >= 0 && byte < ' ' && byte != '\t' && byte != '\n') || byte == 0x7F;
}

void FindUnreadable(const Checked& checked, Report& report) {
  for (const FileKind file : {FileKind::Joystick, FileKind::Macros}) {
    const std::string_view text = checked.TextOf(file);
    for (std::size_t at = 0; at < text.size(); ++at) {
      // Nearly all bytes are seen to be text at once.
      if (text[at] >= ' ' ? text[at] != 0x7F : text[at] < 0) continue;
      const std::size_t start = at;
      while (at < text.size() && IsUnreadable(text, at)) ++at;
      if (at == start) continue;
      const std::string_view what =
          text[start] == '\r' ? "a carriage return without a line feed" : "a control character";
      report.Add(file, {start, at - start}, Said({"Here is ", what, ", which the loaders cannot read."}));
    }
  }
}

bool IsBeyondAscii(char byte) { return byte < 0; }

/// Looks at what lies between the comments of a statement.
template <class Statement>
void FindBeyondAscii(const Place& place, const Statement& statement, Report& report) {
  auto comment = statement.comments.begin();
  for (std::size_t at = 0; at < place.lines.size(); ++at) {
    if (comment != statement.comments.end() && at >= comment->start) at = (comment++)->End();
    const std::size_t start = at;
    while (at < place.lines.size() && IsBeyondAscii(place.lines[at])) ++at;
    if (at == start) continue;
    report.Add(place, {start, at - start},
               Said({"Whether the loaders read ", Shown(place.lines.substr(start, at - start)),
                     " outside a remark is not known."}));
  }
}

void FindAccents(const Checked&, const Place& place, const JoystickStatement& statement, Report& report) {
  FindBeyondAscii(place, statement, report);
}

void FindAccentsInMacros(const Checked&, const Place& place, const MacroStatement& statement,
                         Report& report) {
  FindBeyondAscii(place, statement, report);
}

void FindLongLines(const Checked& checked, Report& report) {
  for (const FileKind file : {FileKind::Joystick, FileKind::Macros}) {
    const std::string_view text = checked.TextOf(file);
    for (std::size_t start = 0; start < text.size();) {
      const std::size_t feed = std::min(text.find('\n', start), text.size());
      const std::size_t end = feed > start && text[feed - 1] == '\r' ? feed - 1 : feed;
      if (end - start > kLongestLine) {
        report.Add(file, {start + kLongestLine, end - start - kLongestLine},
                   Said({"The line has ", std::to_string(end - start),
                         " characters. How many the loaders take is not known, and ",
                         std::to_string(kLongestLine), " are safe."}));
      }
      start = feed + 1;
    }
  }
}

constexpr std::string_view kLongLine =
    "BTN S1 a b c d e f g h i j k l m n o p q r s t u v w x y z a b c d e f g h i j k l m n o p q r s t u v "
    "w x y z "
    "a b c d e f g h i j k l m n o p q r s t u v w x y z a b c d e f g h i j k l m n o p q r s t u v w x y z "
    "a b c d e f g h i j k l m n o p q r s t u v w x y z a b c d e f g h i j k l m n o p q r s t u v w x y "
    "z\n";

constexpr Rule kRules[] = {
    {"set-in-statement",
     Severity::Warning,
     "A statement does not begin its line.",
     "Take the blanks before it away.",
     {"USE TQS\n  BTN S1 a\n"},
     {"USE TQS\nBTN S1 a\n"},
     FindSetIn},
    {"statement-inside-line",
     Severity::Warning,
     "A statement begins inside another one.",
     "Begin a new line before it.",
     {"BTN S1 a BTN\n"},
     {"BTN S1 a\nBTN S2 b\n"},
     FindInsideLine},
    {"unknown-statement",
     Severity::Error,
     "A line begins with no word that a statement begins with.",
     "Begin it with Rem if it is a remark, or with the word of a statement.",
     {"BUTTON S1 a\n"},
     {"BTN S1 a\n"},
     FindUnknown},
    {"left-over-words",
     Severity::Warning,
     "Words stand behind the end of a statement.",
     "Take them away, or write Rem before them.",
     {"SWAPTG now\n"},
     {"SWAPTG Rem now\n"},
     FindLeftOver},
    {"unreadable-character",
     Severity::Warning,
     "There are characters that the loaders cannot read.",
     "Take them out: they come from another program or a damaged file.",
     {"BTN S1 a\x01\x62\n"},
     {"BTN S1 a b\n"},
     FindUnreadable},
    {"accented-character",
     Severity::Hint,
     "An accented letter or a sign stands outside a remark.",
     "Write it without the accent unless you know better.",
     {"BTN S1 \xF6\n"},
     {"BTN S1 o Rem \xF6\n"},
     FindAccents},
    {"accented-macro",
     Severity::Hint,
     "An accented letter or a sign stands outside a remark in the macro file.",
     "Write it without the accent unless you know better.",
     {"MDEF a\nBTN S1 Gun\n", "Gun = \xF6\n"},
     {"MDEF a\nBTN S1 Gun\n", "Gun = o\n"},
     FindAccentsInMacros},
    {"long-line",
     Severity::Hint,
     "A line is probably longer than the loaders take.",
     "Go on in a new line that is set in by blanks.",
     {kLongLine},
     {"BTN S1 a b c d e f g h i j k l m n o p\n       q r s t u v w x y z\n"},
     FindLongLines},
};

}  // namespace

std::span<const Rule> LineRules() { return kRules; }

}  // namespace tarvik::model
