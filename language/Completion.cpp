#include "language/Completion.h"

#include <algorithm>

#include "language/Checking.h"
#include "language/KeyTable.h"
#include "language/LogicLines.h"
#include "language/Spoken.h"
#include "text/CodePage.h"

namespace tarvik::model {
namespace {

constexpr std::string_view kRocker = "RKR ";
constexpr std::string_view kSequenceWords[] = {"SHF", "CTL", "ALT", "RAW", "DLY", "RPT"};
constexpr std::string_view kJoiningWords[] = {"AND", "OR"};
constexpr std::string_view kBeginningWords[] = {"NOT", "PULSE", "DELAY", "CMPLT", "CMPGT"};
constexpr std::string_view kUses[] = {"TQS", "WCS", "NOTHR", "RCS", "NORDDR", "NOMOUSE", "FCLK", "MTYPE"};

/// What stands before a position in its statement.
struct Before {
  std::vector<Token> words;  ///< that mean something
  std::string_view lines;
  std::string_view typed;  ///< the beginning of the word that is being written
  bool inComment = false;
  bool beginsLine = false;
  bool inBracket = false;

  [[nodiscard]] std::string_view Word(std::size_t at) const {
    return at < words.size() ? In(lines, words[at].range) : std::string_view{};
  }
};

/// A blank line belongs to no statement until something stands on it: then, to the one above.
template <class File>
Range LinesBefore(const File& file, std::size_t position) {
  if (file.size() == 0) return {0, position};
  std::size_t at = file.IndexAt(position);
  const std::size_t start = file.RangeOf(at).start;
  const bool isBlank = std::holds_alternative<Blank>(file[at].body);
  const bool isRemarkAbove = at > 0 && (std::holds_alternative<Blank>(file[at - 1].body) ||
                                        std::holds_alternative<Remark>(file[at - 1].body));
  if (isBlank && at > 0 && !isRemarkAbove && position > start) --at;
  return {file.RangeOf(at).start, position - file.RangeOf(at).start};
}

Before ReadBefore(std::string_view lines, FirstEquals equals) {
  Before before;
  before.lines = lines;
  std::size_t typed = lines.size();
  bool onNewLine = true;
  for (const Token& token : TokensOf(lines, equals)) {
    const bool isLast = token.range.End() == lines.size();
    const bool isShown = token.kind != TokenKind::Blank && token.kind != TokenKind::LineEnd;
    const bool isWord = isShown && token.kind != TokenKind::Comment && token.kind != TokenKind::Opening &&
                        token.kind != TokenKind::Closing && token.kind != TokenKind::Equals;
    before.inComment = isLast && token.kind == TokenKind::Comment;
    if (token.kind == TokenKind::Opening) before.inBracket = true;
    if (token.kind == TokenKind::Closing || token.kind == TokenKind::Modifier) before.inBracket = false;
    if (isLast && isWord) {
      typed = token.range.start;
      before.beginsLine = onNewLine;
      break;
    }
    if (isShown && token.kind != TokenKind::Comment) before.words.push_back(token);
    onNewLine = token.kind == TokenKind::LineEnd;
    before.beginsLine = onNewLine;
  }
  if (lines.empty()) before.beginsLine = true;
  if (before.beginsLine) before.words.clear();
  before.typed = lines.substr(typed);
  return before;
}

bool BeginsWith(std::string_view text, std::string_view typed) {
  return text.size() >= typed.size() && SameWord(text.substr(0, typed.size()), typed);
}

bool BeginsInside(std::string_view text, std::string_view typed) {
  for (std::size_t i = 1; i + typed.size() <= text.size(); ++i) {
    const bool small = text[i - 1] >= 'a' && text[i - 1] <= 'z';
    const bool begins =
        !IsWordCharacter(text[i - 1]) || text[i - 1] == '_' || (small && text[i] >= 'A' && text[i] <= 'Z');
    if (begins && BeginsWith(text.substr(i), typed)) return true;
  }
  return false;
}

/// Takes what fits to what is written, best first, and no more than are offered.
class Offers {
 public:
  Offers(std::string_view typed, std::size_t position)
      : typed_(typed), replaces_{position - typed.size(), typed.size()} {}

  void Add(CandidateKind kind, std::string_view text, std::string_view note = {}) {
    if (first_.size() >= kMostCandidates) return;
    if (BeginsWith(text, typed_)) {
      first_.push_back({kind, replaces_, std::string(text), std::string(note)});
    } else if (second_.size() < kMostCandidates && BeginsInside(text, typed_)) {
      second_.push_back({kind, replaces_, std::string(text), std::string(note)});
    }
  }

  std::vector<Candidate> Take() {
    const std::size_t room = kMostCandidates - std::min(kMostCandidates, first_.size());
    second_.resize(std::min(second_.size(), room));
    first_.insert(first_.end(), second_.begin(), second_.end());
    return std::move(first_);
  }

 private:
  std::string_view typed_;
  Range replaces_;
  std::vector<Candidate> first_;
  std::vector<Candidate> second_;
};

/// The modifiers that are open behind words, each matter with the letters given in it.
class OpenMatters {
 public:
  void Pass(const SlashLetter& slash) {
    const auto open = std::ranges::find(matters_, slash.group, &Matter::group);
    if (open == matters_.end()) {
      matters_.push_back({slash.group, std::string(1, slash.letter)});
      return;
    }
    matters_.erase(open + 1, matters_.end());
    matters_.back().letters.push_back(slash.letter);
  }
  [[nodiscard]] bool MayCome(const SlashLetter& slash) const {
    const auto open = std::ranges::find(matters_, slash.group, &Matter::group);
    if (open == matters_.end() || slash.group == SlashGroup::Turns) return true;
    return open->letters.find(slash.letter) == std::string::npos;
  }

 private:
  struct Matter {
    SlashGroup group;
    std::string letters;
  };
  std::vector<Matter> matters_;
};

class CandidateSearch {
 public:
  CandidateSearch(const NameIndex& names, const Abilities& abilities, const Before& before, Offers& offers)
      : names_(names), abilities_(abilities), before_(before), offers_(offers) {}

  void SearchJoystick() {
    if (before_.words.empty()) return AddWords(CandidateKind::Statement);
    const StatementWord* row = FindStatementWord(before_.Word(0));
    if (row == nullptr) return;
    const std::size_t count = before_.words.size();
    switch (row->form) {
      case StatementForm::Button:
        return count == 1 ? AddFree() : AddSequence();
      case StatementForm::Rocker:
        return count == 1 ? AddRocker() : AddSequence();
      case StatementForm::Definition:
        return count == 1 ? AddNewFlags() : AddCondition();
      case StatementForm::Axis:
        return count == 1 ? void() : AddSequence();
      case StatementForm::Values:
        return row->word == "USE" && count == 1 ? AddHelped(kUses) : void();
      case StatementForm::Port:
        if (count == 1) return offers_.Add(CandidateKind::Word, "IS", HelpOf("IS"));
        return count == 2 ? AddUsable() : void();
      default:
        return;
    }
  }

  void SearchMacros() {
    const auto equals = std::ranges::find(before_.words, TokenKind::Equals, &Token::kind);
    if (equals != before_.words.end()) AddSequence();
  }

 private:
  [[nodiscard]] bool Has(std::string_view control) const {
    return abilities_.Has(AbilityKind::Control, control);
  }

  void AddWords(CandidateKind kind) {
    for (const StatementWord& row : kStatementWords) {
      const bool known = abilities_.Of(AbilityKind::Statement, row.word) == Abilities::Place::Elsewhere;
      if (!known) offers_.Add(kind, row.word, HelpOf(row.word));
    }
  }
  void AddHelped(std::span<const std::string_view> words) {
    for (const std::string_view word : words) offers_.Add(CandidateKind::Word, word, HelpOf(word));
  }

  [[nodiscard]] bool IsAssigned(std::string_view control) const {
    const ControlNames* names = names_.FindControl(control);
    return names != nullptr && !names->assignments.empty();
  }

  /// The controls that have no statement, and the flags that say nothing yet.
  void AddFree() {
    for (const Ability& each : AllAbilities()) {
      if (each.kind != AbilityKind::Control || each.name.starts_with(kRocker)) continue;
      if (Has(each.name) && !IsAssigned(each.name)) {
        offers_.Add(CandidateKind::Control, each.name, ControlInWords(each.name));
      }
    }
    for (const FlagNames& flag : names_.Flags()) {
      if (flag.buttons.empty()) AddFlag(flag.number);
    }
  }
  void AddRocker() {
    for (const Ability& each : AllAbilities()) {
      if (each.kind != AbilityKind::Control || !each.name.starts_with(kRocker)) continue;
      const std::string_view place = std::string_view(each.name).substr(kRocker.size());
      if (Has(each.name) && !IsAssigned(each.name)) {
        offers_.Add(CandidateKind::Control, place, ControlInWords(each.name));
      }
    }
  }
  void AddFlag(std::uint32_t number) {
    offers_.Add(CandidateKind::Flag, Said({"X", std::to_string(number)}));
  }

  void AddNewFlags() {
    for (std::uint32_t number = 1; number <= tables::kLogicLines; ++number) {
      const FlagNames* flag = names_.FindFlag(number);
      if (flag == nullptr || flag->definitions.empty()) AddFlag(number);
    }
  }

  void AddUsable() {
    for (const Ability& each : AllAbilities()) {
      const bool isButton = each.kind == AbilityKind::Control && !each.name.starts_with(kRocker);
      if (isButton && Has(each.name)) {
        offers_.Add(CandidateKind::Control, each.name, ControlInWords(each.name));
      }
    }
    for (const FlagNames& flag : names_.Flags()) AddFlag(flag.number);
  }

  void AddCondition() {
    if (before_.inBracket && IsComparison()) {
      for (const AxisShape& shape : kAxisShapes) {
        offers_.Add(CandidateKind::Word, shape.word, ControlInWords(shape.word));
      }
      return;
    }
    if (IsBehindOperand()) {
      AddHelped(kJoiningWords);
    } else {
      AddHelped(kBeginningWords);
      AddUsable();
    }
  }
  /// Whether what stands before is whole: then it is joined to more, or lasts.
  [[nodiscard]] bool IsBehindOperand() const {
    if (before_.words.size() <= 2) return false;
    if (before_.words.back().kind == TokenKind::Closing) return true;
    const std::string_view last = before_.Word(before_.words.size() - 1);
    const auto is = [last](std::string_view word) { return SameWord(word, last); };
    return before_.words.back().kind != TokenKind::Opening && !std::ranges::any_of(kJoiningWords, is) &&
           !std::ranges::any_of(kBeginningWords, is);
  }
  /// Whether the bracket that is open is that of CMPLT or CMPGT.
  [[nodiscard]] bool IsComparison() const {
    for (std::size_t i = before_.words.size(); i-- > 1;) {
      if (before_.words[i].kind != TokenKind::Opening) continue;
      return before_.Word(i - 1) == "CMPLT" || before_.Word(i - 1) == "CMPGT";
    }
    return false;
  }

  void AddSequence() {
    if (before_.inBracket) return;
    AddModifiers();
    for (const MacroNames& macro : names_.Macros()) {
      if (!macro.definitions.empty()) offers_.Add(CandidateKind::Macro, macro.name);
    }
    for (const KeyRow& row : kKeys) {
      if (row.name.size() > 1 && row.name != kNotSupported) {
        offers_.Add(CandidateKind::Key, row.name, KeyInWords(row.name));
      }
    }
    AddHelped(kSequenceWords);
    if (abilities_.Has(AbilityKind::Statement, "F22RST")) {
      offers_.Add(CandidateKind::Word, "F22RST", HelpOf("F22RST"));
    }
  }

  void AddModifiers() {
    OpenMatters open;
    for (const Token& token : before_.words) {
      if (token.kind != TokenKind::Modifier) continue;
      const char letter = ToUpper(In(before_.lines, token.range).back());
      const auto* row = std::ranges::find(kSlashLetters, letter, &SlashLetter::letter);
      if (row != std::end(kSlashLetters)) open.Pass(*row);
    }
    for (const SlashLetter& slash : kSlashLetters) {
      const bool here = abilities_.Has(AbilityKind::Slash, {&slash.letter, 1}) &&
                        (slash.group != SlashGroup::Dogfight || abilities_.HasDogfightSwitch());
      const std::string modifier = Said({"/", {&slash.letter, 1}});
      if (here && open.MayCome(slash)) offers_.Add(CandidateKind::Modifier, modifier, HelpOf(modifier));
    }
  }

  const NameIndex& names_;
  const Abilities& abilities_;
  const Before& before_;
  Offers& offers_;
};

void AddNotes(std::vector<Candidate>& candidates, const FilePair& pair, const NameIndex& names) {
  const Speaker speaker(pair, names);
  for (Candidate& each : candidates) {
    const MacroNames* macro = each.kind == CandidateKind::Macro ? names.FindMacro(each.text) : nullptr;
    if (macro == nullptr) continue;
    each.note = speaker.KeysOf(*macro);
    const std::string comment = speaker.CommentOf(*macro);
    if (!each.note.empty() && !comment.empty()) each.note.append(" - ");
    each.note.append(comment);
  }
}

}  // namespace

std::vector<Candidate> CandidatesAt(const FilePair& pair, const NameIndex& names, const Abilities& abilities,
                                    FileKind file, std::size_t position) {
  const bool inJoystick = file == FileKind::Joystick;
  const std::string_view text = inJoystick ? pair.joystickText : pair.macroText;
  position = std::min(position, text.size());
  const Range lines = inJoystick ? LinesBefore(pair.joystick, position) : LinesBefore(pair.macros, position);
  const Before before = ReadBefore(In(text, lines), inJoystick ? FirstEquals::IsKey : FirstEquals::EndsName);
  if (before.inComment) return {};
  Offers offers(before.typed, position);
  CandidateSearch search(names, abilities, before, offers);
  if (inJoystick) {
    search.SearchJoystick();
  } else {
    search.SearchMacros();
  }
  std::vector<Candidate> candidates = offers.Take();
  AddNotes(candidates, pair, names);
  return candidates;
}

}  // namespace tarvik::model
