#include "language/Places.h"

#include <algorithm>

#include "language/Checking.h"
#include "text/CodePage.h"

namespace tarvik::model {
namespace {

/// The largest number of a flag.

using Mentions = std::vector<Mention>;

/// Names never touch: what stands just behind one is no part of another.
bool Holds(const Mention& mention, FileKind file, std::size_t position) {
  return mention.file == file && mention.range.start <= position && position <= mention.range.End();
}

/// What a name does where it stands.
enum class Role { Definition, Use };

/// Goes over the names and keeps the one that is at the position.
class NameSearch {
 public:
  NameSearch(FileKind file, std::size_t position) : file_(file), position_(position) {}

  template <class NameOf>
  void Look(const Mentions& mentions, NameKind kind, Role role, const NameOf& nameOf) {
    for (const Mention& mention : mentions) {
      if (!Holds(mention, file_, position_)) continue;
      found_ = NameHere{kind, nameOf(), mention, role == Role::Definition};
    }
  }

  [[nodiscard]] std::optional<NameHere> Take() { return std::move(found_); }

 private:
  FileKind file_;
  std::size_t position_;
  std::optional<NameHere> found_;
};

std::string FlagName(std::uint32_t number) { return "X" + std::to_string(number); }

const MacroNames* MacroOf(const NameIndex& names, const NameHere& here) {
  return here.kind == NameKind::Macro ? names.FindMacro(here.name) : nullptr;
}
const FlagNames* FlagOf(const NameIndex& names, const NameHere& here) {
  return here.kind == NameKind::Flag ? names.FindFlag(*FlagNumber(here.name)) : nullptr;
}

bool StandsBefore(const Mention& one, const Mention& other) {
  return std::pair(one.file, one.range.start) < std::pair(other.file, other.range.start);
}

void Append(Mentions& all, const Mentions& more) { all.insert(all.end(), more.begin(), more.end()); }

/// Finds a word in the remarks of a file, where no other letter stands beside it.
class CommentSearch {
 public:
  CommentSearch(std::string_view name, Mentions& found) : name_(LowerCase(name)), found_(found) {}

  template <class File>
  void Search(const File& file, FileKind kind, std::string_view text) {
    const std::string folded = LowerCase(text);
    for (std::size_t i = 0; i < file.size(); ++i) {
      const std::size_t start = file.RangeOf(i).start;
      const auto in = [&](Range comment) {
        SearchIn(folded, {start + comment.start, comment.length}, {kind, i, {}});
      };
      if (const auto* remark = std::get_if<Remark>(&file[i].body)) in(remark->comment);
      for (const Range& comment : file[i].comments) in(comment);
    }
  }

 private:
  void SearchIn(std::string_view text, Range range, Mention mention) {
    if (name_.empty()) return;
    const std::string_view comment = In(text, range);
    for (std::size_t at = comment.find(name_); at != std::string_view::npos;
         at = comment.find(name_, at + name_.size())) {
      const std::size_t end = at + name_.size();
      const bool cutBefore = at > 0 && IsWordCharacter(comment[at - 1]) && IsWordCharacter(comment[at]);
      const bool cutBehind =
          end < comment.size() && IsWordCharacter(comment[end]) && IsWordCharacter(comment[end - 1]);
      if (cutBefore || cutBehind) continue;
      mention.range = {range.start + at, name_.size()};
      found_.push_back(mention);
    }
  }

  std::string name_;
  Mentions& found_;
};

/// Whether a reader of the file would see the word as one, and as nothing but a word.
bool IsOneWord(std::string_view name) {
  const std::vector<Token> tokens = TokensOf(name);
  return tokens.size() == 1 && tokens.front().kind == TokenKind::Word;
}

bool MeansSomething(std::string_view name) {
  constexpr std::string_view kOthers[] = {"SHF", "CTL", "ALT", "F22RST"};
  const auto isName = [name](std::string_view each) { return SameWord(each, name); };
  return FindStatementWord(name) != nullptr || SameWord(name, "DEF") || IsBracketWord(name) ||
         IsLogicWord(name) || IsForeignWord(name) || std::ranges::any_of(kOthers, isName);
}

std::optional<std::string> WhyNoMacro(const NameIndex& names, std::string_view oldName,
                                      std::string_view name) {
  if (std::ranges::any_of(name, [](char byte) { return IsBlank(byte) || byte == '\n'; })) {
    return "A name of a macro has no blanks in it.";
  }
  if (name.find('=') != std::string_view::npos) return "A \"=\" ends the name of a macro.";
  if (IsKeyName(name)) return Said({Shown(name), " is the name of a key."});
  if (MeansSomething(name)) return Said({Shown(name), " means something in the file already."});
  if (FlagNumber(name)) return Said({Shown(name), " is the name of a flag."});
  if (!IsOneWord(name) || name.starts_with('/')) {
    return "A name of a macro is one word, without brackets, and no remark.";
  }
  if (!SameWord(oldName, name) && names.Defines(name)) {
    return Said({"There is a macro ", Shown(names.FindMacro(name)->name), " already."});
  }
  return std::nullopt;
}

std::optional<std::string> WhyNoFlag(const NameIndex& names, std::string_view oldName,
                                     std::string_view name) {
  const auto number = FlagNumber(name);
  if (!number || !IsFlag(*number)) return "A flag is called X1 to X48.";
  if (number != FlagNumber(oldName) && names.FindFlag(*number) != nullptr) {
    return Said({"There is a flag ", FlagName(*number), " already."});
  }
  return std::nullopt;
}

}  // namespace

std::optional<NameHere> NameAt(const NameIndex& names, FileKind file, std::size_t position) {
  NameSearch search(file, position);
  for (const MacroNames& macro : names.Macros()) {
    const auto name = [&] { return macro.name; };
    search.Look(macro.definitions, NameKind::Macro, Role::Definition, name);
    search.Look(macro.uses, NameKind::Macro, Role::Use, name);
  }
  for (const FlagNames& flag : names.Flags()) {
    const auto name = [&] { return FlagName(flag.number); };
    search.Look(flag.definitions, NameKind::Flag, Role::Definition, name);
    search.Look(flag.buttons, NameKind::Flag, Role::Use, name);
    search.Look(flag.uses, NameKind::Flag, Role::Use, name);
  }
  for (const ControlNames& control : names.Controls()) {
    const auto name = [&] { return control.name; };
    search.Look(control.assignments, NameKind::Control, Role::Definition, name);
    search.Look(control.uses, NameKind::Control, Role::Use, name);
  }
  return search.Take();
}

std::vector<Mention> DefinitionsOf(const NameIndex& names, FileKind file, std::size_t position) {
  const auto here = NameAt(names, file, position);
  if (!here) return {};
  if (const MacroNames* macro = MacroOf(names, *here)) return macro->definitions;
  if (const FlagNames* flag = FlagOf(names, *here)) return flag->definitions;
  const ControlNames* control = names.FindControl(here->name);
  return control == nullptr ? Mentions{} : control->assignments;
}

std::vector<Mention> UsesOf(const NameIndex& names, FileKind file, std::size_t position) {
  const auto here = NameAt(names, file, position);
  if (!here) return {};
  if (const MacroNames* macro = MacroOf(names, *here)) return macro->uses;
  if (const FlagNames* flag = FlagOf(names, *here)) {
    Mentions uses = flag->buttons;
    Append(uses, flag->uses);
    std::ranges::sort(uses, StandsBefore);
    return uses;
  }
  const ControlNames* control = names.FindControl(here->name);
  return control == nullptr ? Mentions{} : control->uses;
}

std::vector<Mention> RenamePlaces(const FilePair& pair, const NameIndex& names, std::string_view name,
                                  InComments comments) {
  Mentions places;
  if (const auto number = FlagNumber(name); number && names.FindFlag(*number) != nullptr) {
    const FlagNames& flag = *names.FindFlag(*number);
    places = flag.definitions;
    Append(places, flag.buttons);
    Append(places, flag.uses);
  } else if (const MacroNames* macro = names.FindMacro(name)) {
    places = macro->definitions;
    Append(places, macro->uses);
  }
  if (!places.empty() && comments == InComments::Yes) {
    CommentSearch search(name, places);
    search.Search(pair.joystick, FileKind::Joystick, pair.joystickText);
    search.Search(pair.macros, FileKind::Macros, pair.macroText);
  }
  std::ranges::sort(places, StandsBefore);
  places.erase(std::unique(places.begin(), places.end()), places.end());
  return places;
}

std::optional<std::string> WhyNoName(const NameIndex& names, NameKind kind, std::string_view oldName,
                                     std::string_view newName) {
  if (newName.empty()) return "There is no name.";
  if (kind == NameKind::Control) return "A control has the name of its device.";
  if (kind == NameKind::Flag) return WhyNoFlag(names, oldName, newName);
  return WhyNoMacro(names, oldName, newName);
}

}  // namespace tarvik::model
