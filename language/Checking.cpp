#include "language/Checking.h"

#include <algorithm>

#include "language/KeyBalance.h"

namespace tarvik::model {
namespace {

constexpr std::size_t kLongestShown = 40;
constexpr std::string_view kLogicWords[] = {"AND", "OR", "NOT", "PULSE", "DELAY", "CMPLT", "CMPGT"};
/// These words are coloured wherever they stand; only the manuals of the sticks tell what they mean.
constexpr std::string_view kForeignWords[] = {"GAME1", "GAME2"};

bool IsAmong(std::span<const std::string_view> words, std::string_view word) {
  return std::ranges::any_of(words, [word](std::string_view each) { return SameWord(each, word); });
}

/// The words of the line that a position is in, or the line end of an empty one.
Range LineOf(std::string_view text, std::size_t position) {
  if (text.empty()) return {0, 0};
  position = std::min(position, text.size() - 1);
  if (text[position] == '\n' && position > 0) --position;
  const std::size_t before = position == 0 ? std::string_view::npos : text.rfind('\n', position - 1);
  std::size_t start = before == std::string_view::npos ? 0 : before + 1;
  std::size_t end = std::min(text.find('\n', position), text.size());
  while (start < end && IsBlank(text[start])) ++start;
  while (end > start && IsBlank(text[end - 1])) --end;
  if (end > start) return {start, end - start};
  return {position, 1};
}

/// Tarjan's search for circles with a path of its own in the place of recursion, which a long chain of names
/// would make too deep.
class CircleSearch {
 public:
  explicit CircleSearch(const Graph& graph)
      : graph_(graph), number_(graph.size(), kUnseen), low_(graph.size()), onStack_(graph.size()) {
    found_.inCircle.resize(graph.size());
  }

  GraphOrder Run() {
    for (std::size_t node = 0; node < graph_.size(); ++node) {
      if (number_[node] == kUnseen) SearchFrom(node);
    }
    return std::move(found_);
  }

 private:
  static constexpr std::size_t kUnseen = static_cast<std::size_t>(-1);

  struct Step {
    std::size_t node;
    std::size_t next = 0;  ///< of what the node points at
  };

  void Enter(std::size_t node) {
    number_[node] = low_[node] = count_++;
    stack_.push_back(node);
    onStack_[node] = true;
    path_.push_back({node});
  }

  void SearchFrom(std::size_t root) {
    Enter(root);
    while (!path_.empty()) {
      Step& step = path_.back();
      const std::size_t node = step.node;
      if (step.next < graph_[node].size()) {
        const std::size_t target = graph_[node][step.next++];
        if (number_[target] == kUnseen) {
          Enter(target);
        } else if (onStack_[target]) {
          low_[node] = std::min(low_[node], number_[target]);
        }
        continue;
      }
      path_.pop_back();
      if (!path_.empty()) low_[path_.back().node] = std::min(low_[path_.back().node], low_[node]);
      if (low_[node] == number_[node]) Leave(node);
    }
  }

  /// Takes all off the stack that lead to `node` and are led to from it.
  void Leave(std::size_t node) {
    const bool pointsAtItself = std::ranges::find(graph_[node], node) != graph_[node].end();
    const bool isCircle = stack_.back() != node || pointsAtItself;
    std::size_t taken = kUnseen;
    while (taken != node) {
      taken = stack_.back();
      stack_.pop_back();
      onStack_[taken] = false;
      found_.inCircle[taken] = isCircle;
      found_.order.push_back(taken);
    }
  }

  const Graph& graph_;
  std::vector<std::size_t> number_;
  std::vector<std::size_t> low_;
  std::vector<bool> onStack_;
  std::vector<std::size_t> stack_;
  std::vector<Step> path_;
  std::size_t count_ = 0;
  GraphOrder found_;
};

Graph UsesOf(const Checked& checked) {
  const std::vector<MacroNames>& macros = checked.names.Macros();
  constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  std::vector<std::size_t> macroOf(checked.pair.macros.size(), kNone);
  for (std::size_t i = 0; i < macros.size(); ++i) {
    for (const Mention& definition : macros[i].definitions) macroOf[definition.statement] = i;
  }
  Graph graph(macros.size());
  for (std::size_t i = 0; i < macros.size(); ++i) {
    for (const Mention& use : macros[i].uses) {
      if (use.file != FileKind::Macros || macroOf[use.statement] == kNone) continue;
      graph[macroOf[use.statement]].push_back(i);
    }
  }
  return graph;
}

}  // namespace

Checked::Checked(const FilePair& pair)
    : pair(pair),
      names(pair.joystick, pair.joystickText, pair.macros, pair.macroText),
      abilities(AttachedHardware(pair.joystick, pair.joystickText, pair.hardware)),
      hasMacros_(!names.Macros().empty() && !names.Macros().front().definitions.empty()),
      nullSigns_(pair.joystick, pair.joystickText) {}

Place Checked::PlaceOf(const Mention& mention) const {
  const Range range = mention.file == FileKind::Joystick ? pair.joystick.RangeOf(mention.statement)
                                                         : pair.macros.RangeOf(mention.statement);
  return {mention.file, range.start, In(TextOf(mention.file), range)};
}

const JoystickStatement* Checked::LastSetting(std::string_view word, Place& place) const {
  for (std::size_t i = pair.joystick.size(); i-- > 0;) {
    const JoystickStatement& statement = pair.joystick[i];
    if (statement.row == nullptr || statement.row->word != word) continue;
    place = PlaceOf({FileKind::Joystick, i, {}});
    return &statement;
  }
  return nullptr;
}

const Graph& Checked::MacroGraph() const {
  if (!macroGraph_) macroGraph_ = UsesOf(*this);
  return *macroGraph_;
}

const GraphOrder& Checked::MacroOrder() const {
  if (!macroOrder_) macroOrder_ = OrderOf(MacroGraph());
  return *macroOrder_;
}

const std::vector<KeyLeftDown>& Checked::LeftDown() const {
  if (!leftDown_) leftDown_ = KeysLeftDown(*this);
  return *leftDown_;
}

void Report::Add(const Place& place, Range range, std::string text, std::string advice) {
  Add(place.file, place.InText(range), std::move(text), std::move(advice));
}

void Report::Add(const Mention& mention, std::string text, std::string advice) {
  Add(mention.file, mention.range, std::move(text), std::move(advice));
}

void Report::Add(FileKind file, Range range, std::string text, std::string advice) {
  const std::string_view whole = file == FileKind::Joystick ? pair_.joystickText : pair_.macroText;
  if (range.length == 0) range = LineOf(whole, range.start);
  if (advice.empty()) advice = rule_->advice;
  problems_.push_back({rule_, file, range, std::move(text), std::move(advice)});
}

std::vector<Problem> Report::TakeSorted() {
  std::ranges::stable_sort(problems_, [](const Problem& one, const Problem& other) {
    return std::tuple(one.file, one.range.start, one.rule->severity) <
           std::tuple(other.file, other.range.start, other.rule->severity);
  });
  return std::move(problems_);
}

bool Checked::HasMeaning(std::string_view word) const {
  return FindStatementWord(word) != nullptr || IsBracketWord(word) || IsForeignWord(word) || IsNullSign(word);
}

std::string Said(std::initializer_list<std::string_view> pieces) {
  std::string said;
  for (const std::string_view piece : pieces) said.append(piece);
  return said;
}

std::string Shown(std::string_view word) {
  std::string shown = "\"";
  for (const char byte : word.substr(0, kLongestShown)) {
    const bool hidden = (byte >= 0 && byte < ' ') || byte == 0x7F;
    shown.push_back(hidden ? ' ' : byte);
  }
  shown.append(word.size() > kLongestShown ? "...\"" : "\"");
  return shown;
}

std::string OneOf(const std::vector<std::string>& things) {
  std::string words;
  for (std::size_t i = 0; i < things.size(); ++i) {
    if (i > 0) words.append(i + 1 < things.size() ? ", " : " or ");
    words.append(things[i]);
  }
  return words;
}

bool IsLogicWord(std::string_view word) { return IsAmong(kLogicWords, word); }
bool IsForeignWord(std::string_view word) { return IsAmong(kForeignWords, word); }

GraphOrder OrderOf(const Graph& graph) { return CircleSearch(graph).Run(); }

}  // namespace tarvik::model
