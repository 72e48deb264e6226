#include <algorithm>

#include "language/Checking.h"
#include "language/Spoken.h"

namespace tarvik::model {
namespace {

constexpr std::size_t kLongestBrief = 200;
constexpr std::string_view kSends = "sends ";
constexpr std::string_view kOtherwise = "otherwise";

/// What a modifier says of when and how its branch is sent.
struct SlashWords {
  char letter;
  std::string_view held = {};
  std::string_view when = {};
  std::string_view ofFlag = {};
  std::string_view how = {};
};

constexpr SlashWords kSlashWords[] = {
    {.letter = 'U', .held = "the dogfight switch up"},
    {.letter = 'M', .held = "the dogfight switch in the middle"},
    {.letter = 'D', .held = "the dogfight switch down"},
    {.letter = 'I', .held = "S3 held"},
    {.letter = 'O', .held = "S3 out"},
    {.letter = 'P', .when = "when pressed", .ofFlag = "when it comes on"},
    {.letter = 'R', .when = "when released", .ofFlag = "when it goes off"},
    {.letter = 'H', .how = "held down as long as it is"},
    {.letter = 'N', .how = "once"},
    {.letter = 'A', .how = "as analogue"},
    {.letter = 'F', .how = "again and again, whole"},
    {.letter = 'Q', .how = "repeating at once"},
};

std::string_view PrefixInWords(std::string_view word) {
  if (SameWord(word, "SHF")) return "Shift+";
  return SameWord(word, "CTL") ? "Ctrl+" : "Alt+";
}

bool IsTurn(const Branch& branch) { return branch.slash != nullptr && branch.slash->letter == 'T'; }

/// When and how something is sent, and what: a way through a sequence to what stands at its end.
struct Part {
  std::vector<std::string> held = {};
  std::vector<std::string> when = {};
  std::vector<std::string> how = {};
  std::string clause = {};  ///< "sends Gun (Space)"
  bool sendsAlone = false;  ///< and does nothing else
};

/// "a", "a and b", "a, b and c" of things that are done one after the other. Nothing but sending says
/// "sends" once.
class Deeds {
 public:
  void Send(std::string thing) {
    if (!sending_) deeds_.emplace_back();
    sending_ = true;
    deeds_.back().push_back(std::move(thing));
  }
  void Do(std::string deed) {
    sending_ = false;
    deeds_.push_back({std::move(deed)});
    others_.push_back(deeds_.size() - 1);
  }

  [[nodiscard]] std::string Sentence() const {
    std::vector<std::string> said;
    for (std::size_t i = 0; i < deeds_.size(); ++i) {
      const bool isOther = std::ranges::find(others_, i) != others_.end();
      said.push_back(isOther ? deeds_[i].front() : Said({kSends, AllOf(deeds_[i])}));
    }
    return said.empty() ? "sends nothing" : AllOf(said);
  }
  [[nodiscard]] std::string Brief() const {
    std::string brief;
    for (const std::vector<std::string>& deed : deeds_) {
      for (const std::string& thing : deed) {
        if (!brief.empty()) brief.append(", ");
        brief.append(thing);
      }
    }
    return brief.empty() ? "nothing" : brief;
  }
  [[nodiscard]] std::vector<std::string> Things() const {
    return others_.empty() && deeds_.size() == 1 ? deeds_.front() : std::vector<std::string>{};
  }

 private:
  std::vector<std::vector<std::string>> deeds_;
  std::vector<std::size_t> others_;
  bool sending_ = false;
};

}  // namespace

/// Goes through a sequence and puts each of its parts into words.
class Wording {
 public:
  enum class Style : std::uint8_t { Sentence, OfFlag, Brief };

  Wording(const Speaker& speaker, std::string_view lines, Style style)
      : speaker_(speaker), lines_(lines), style_(style) {}

  std::vector<Part> PartsOf(const Sequence& sequence) {
    Walk(sequence, {});
    return std::move(parts_);
  }

  [[nodiscard]] Deeds DeedsOf(std::span<const Item> items) const {
    Deeds deeds;
    std::string held;
    for (std::size_t i = 0; i < items.size(); ++i) {
      const std::string_view word = In(lines_, items[i].range);
      if (items[i].kind == ItemKind::Prefix && IsHeld(items, i)) {
        held.append(PrefixInWords(word));
      } else if (items[i].kind == ItemKind::Repeat && items[i].number && i + 1 < items.size()) {
        const std::string_view does = style_ == Style::Brief ? "" : "does ";
        deeds.Do(Said({does, std::to_string(*items[i].number), " times what follows"}));
      } else {
        Tell(items[i], word, held, deeds);
        held.clear();
      }
    }
    return deeds;
  }

 private:
  /// Whether a key comes behind the prefixes, with which they are held.
  static bool IsHeld(std::span<const Item> items, std::size_t at) {
    while (at < items.size() && items[at].kind == ItemKind::Prefix) ++at;
    return at < items.size() && items[at].kind == ItemKind::Key;
  }

  void Tell(const Item& item, std::string_view word, const std::string& held, Deeds& deeds) const {
    switch (item.kind) {
      case ItemKind::Key:
        return deeds.Send(held.empty() && speaker_.IsNullSign(word) ? "nothing" : held + KeyInWords(word));
      case ItemKind::Name:
        return deeds.Send(MacroInWords(word));
      case ItemKind::Raw:
        for (std::string& code : CodesInWords(lines_, item)) deeds.Send(std::move(code));
        return;
      case ItemKind::Delay:
        if (!item.number) return deeds.Send(Shown(word));
        return deeds.Do(Said({"waits ", std::to_string(*item.number), " ms"}));
      case ItemKind::Reset:
        return deeds.Do("resets the stick");
      default:
        return deeds.Send(Shown(word));
    }
  }

  [[nodiscard]] std::string MacroInWords(std::string_view word) const {
    if (speaker_.IsNullSign(word)) return "nothing";
    const MacroNames* macro = speaker_.names_.FindMacro(word);
    if (macro == nullptr || macro->definitions.empty()) {
      return speaker_.hasMacros_ ? Shown(word) : NameInWords(word);
    }
    const std::string keys = style_ == Style::Brief ? std::string() : speaker_.KeysOf(*macro);
    const std::string name = NameInWords(macro->name);
    return keys.empty() ? name : Said({name, " (", keys, ")"});
  }

  void TellClause(Part& part, const std::vector<Item>& items) const {
    const std::string_view verb = style_ == Style::Brief ? std::string_view{} : kSends;
    // A repetition of a single thing reads better behind it.
    if (items.size() > 1 && items[0].kind == ItemKind::Repeat && items[0].number) {
      const std::vector<std::string> things = DeedsOf(std::span(items).subspan(1)).Things();
      part.sendsAlone = things.size() == 1;
      if (part.sendsAlone) {
        part.clause = Said({verb, things[0], " ", std::to_string(*items[0].number), " times"});
        return;
      }
    }
    const Deeds deeds = DeedsOf(items);
    part.clause = style_ == Style::Brief ? deeds.Brief() : deeds.Sentence();
    part.sendsAlone = !deeds.Things().empty();
  }

  void Walk(const Sequence& sequence, const Part& part) {
    if (!sequence.items.empty() || sequence.branches.empty()) {
      Part own = part;
      TellClause(own, sequence.items);
      parts_.push_back(std::move(own));
    }
    for (std::size_t i = 0; i < sequence.branches.size();) {
      if (IsTurn(sequence.branches[i])) {
        i = WalkTurns(sequence, i, part);
        continue;
      }
      const Branch& branch = sequence.branches[i++];
      Part inner = part;
      AddModifier(inner, branch);
      Walk(branch.sequence, inner);
    }
  }

  /// Those beside each other, and tells where they end.
  std::size_t WalkTurns(const Sequence& sequence, std::size_t first, const Part& part) {
    std::size_t end = first;
    bool simple = true;
    while (end < sequence.branches.size() && IsTurn(sequence.branches[end])) {
      simple = simple && sequence.branches[end].sequence.branches.empty();
      ++end;
    }
    if (simple) {
      Part own = part;
      TellTurns(own, std::span(sequence.branches).subspan(first, end - first));
      parts_.push_back(std::move(own));
      return end;
    }
    for (std::size_t i = first; i < end; ++i) {
      Part inner = part;
      inner.when.push_back(Said({"in turn ", std::to_string(i - first + 1)}));
      Walk(sequence.branches[i].sequence, inner);
    }
    return end;
  }

  void TellTurns(Part& part, std::span<const Branch> turns) const {
    std::vector<std::string> single;
    std::vector<std::string> clauses;
    for (const Branch& turn : turns) {
      Part each;
      TellClause(each, turn.sequence.items);
      const std::vector<std::string> things = DeedsOf(turn.sequence.items).Things();
      if (things.size() == 1) single.push_back(things.front());
      clauses.push_back(std::move(each.clause));
    }
    part.sendsAlone = single.size() == turns.size();
    if (part.sendsAlone) {
      const std::string_view verb = style_ == Style::Brief ? std::string_view{} : kSends;
      part.clause = Said({verb, AllOf(single), turns.size() > 1 ? " in turns" : ""});
      return;
    }
    part.clause = "in turns: first ";
    for (std::size_t i = 0; i < clauses.size(); ++i) {
      if (i > 0) part.clause.append(", then ");
      part.clause.append(clauses[i]);
    }
  }

  void AddModifier(Part& part, const Branch& branch) const {
    const char letter = branch.slash == nullptr ? '\0' : branch.slash->letter;
    const auto* row = std::ranges::find(kSlashWords, letter, &SlashWords::letter);
    if (row == std::end(kSlashWords)) {
      part.when.push_back(Said({"behind ", Shown(In(lines_, branch.modifier))}));
      return;
    }
    const std::string_view when = style_ == Style::OfFlag ? row->ofFlag : row->when;
    if (!row->held.empty()) part.held.emplace_back(row->held);
    if (!when.empty()) part.when.emplace_back(when);
    if (!row->how.empty()) part.how.emplace_back(row->how);
  }

  const Speaker& speaker_;
  std::string_view lines_;
  Style style_;
  std::vector<Part> parts_;
};

namespace {

/// What comes before a part: "with S3 held, when pressed". Where it is held as the part before was, that is
/// not said again.
std::string LeadOf(const std::vector<Part>& parts, std::size_t at) {
  const Part& part = parts[at];
  const Part* before = at == 0 ? nullptr : &parts[at - 1];
  std::string lead;
  const auto isJust = [](const Part& each, std::string_view held) {
    return each.held.size() == 1 && each.held.front() == held;
  };
  const bool otherwise =
      at == 1 && isJust(part, "S3 out") && isJust(*before, "S3 held") && before->when.empty();
  const bool again = before != nullptr && before->held == part.held && !part.when.empty();
  if (otherwise) {
    lead = kOtherwise;
  } else if (!part.held.empty() && !again) {
    lead = Said({"with ", AllOf(part.held)});
  }
  for (const std::string& when : part.when) {
    if (!lead.empty()) lead.append(", ");
    lead.append(when);
  }
  return lead;
}

std::string HowOf(const Part& part) {
  std::string how;
  for (const std::string& each : part.how) how.append(", ").append(each);
  return how;
}

/// A definition with the lines that its ranges count in; none for a macro that there is not.
struct Defined {
  const MacroStatement* statement = nullptr;
  std::string_view lines;
};

Defined FirstDefinition(const FilePair& pair, const MacroNames& macro) {
  if (macro.definitions.empty()) return {};
  const std::size_t at = macro.definitions.front().statement;
  return {&pair.macros[at], pair.macros.LinesOf(at, pair.macroText)};
}

}  // namespace

Speaker::Speaker(const FilePair& pair, const NameIndex& names)
    : pair_(pair),
      names_(names),
      hasMacros_(!names.Macros().empty() && !names.Macros().front().definitions.empty()),
      nullSigns_(pair.joystick, pair.joystickText) {}

std::string Speaker::Sentence(std::string_view subject, std::string_view lines,
                              const Sequence& sequence) const {
  const bool ofFlag = FlagNumber(subject.substr(subject.rfind(' ') + 1)).has_value();
  Wording wording(*this, lines, ofFlag ? Wording::Style::OfFlag : Wording::Style::Sentence);
  const std::vector<Part> parts = wording.PartsOf(sequence);
  std::string said;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const std::string lead = LeadOf(parts, i);
    if (i > 0) said.append("; ");
    said.append(lead).append(lead.empty() ? "" : lead == kOtherwise ? " " : ", ");
    std::string_view clause = parts[i].clause;
    if (i == 0) {
      said.append(subject).append(" ");
    } else if (parts[i].sendsAlone) {
      clause.remove_prefix(kSends.size());  // which is said already
    } else {
      said.append("it ");
    }
    said.append(clause).append(HowOf(parts[i]));
  }
  // A macro keeps its name.
  const bool isName = said.starts_with(subject) && names_.FindMacro(subject) != nullptr;
  return isName ? said : AsSentence(std::move(said));
}

std::string Speaker::Brief(std::string_view lines, const Sequence& sequence) const {
  const std::vector<Part> parts = Wording(*this, lines, Wording::Style::Brief).PartsOf(sequence);
  std::string said;
  for (std::size_t i = 0; i < parts.size() && said.size() <= kLongestBrief; ++i) {
    if (i > 0) said.append("; ");
    const std::string lead = LeadOf(parts, i);
    said.append(lead).append(lead.empty() ? "" : " ").append(parts[i].clause).append(HowOf(parts[i]));
  }
  if (said.size() > kLongestBrief) said.replace(kLongestBrief, std::string::npos, "...");
  return said;
}

std::vector<std::string> Speaker::Keys(std::string_view lines, const Sequence& sequence) const {
  if (!sequence.branches.empty()) return {};
  return Wording(*this, lines, Wording::Style::Sentence).DeedsOf(sequence.items).Things();
}

std::string Speaker::KeysOf(const MacroNames& macro) const {
  const Defined defined = FirstDefinition(pair_, macro);
  if (defined.statement == nullptr) return {};
  const auto& definition = std::get<MacroDefinition>(defined.statement->body);
  const auto* sends = std::get_if<Sequence>(&definition.sends);
  return sends == nullptr || sends->IsEmpty() ? std::string() : Brief(defined.lines, *sends);
}

std::string Speaker::CommentOf(const MacroNames& macro) const {
  const Defined defined = FirstDefinition(pair_, macro);
  std::string words;
  if (defined.statement == nullptr) return words;
  for (const Range& comment : defined.statement->comments) {
    std::string_view each = In(defined.lines, comment);
    each.remove_prefix(std::min<std::size_t>(each.starts_with('~') ? 1 : 3, each.size()));
    while (!each.empty() && IsBlank(each.front())) each.remove_prefix(1);
    while (!each.empty() && IsBlank(each.back())) each.remove_suffix(1);
    if (!words.empty() && !each.empty()) words.append(" ");
    words.append(each);
  }
  return words;
}

}  // namespace tarvik::model
