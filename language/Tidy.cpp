#include "language/Tidy.h"

#include <algorithm>

namespace tarvik::model {
namespace {

/// A line with the tokens of its statement that stand on it.
struct Line {
  std::size_t start = 0;
  std::size_t statement = 0;
  std::vector<Token> tokens;  ///< neither blanks nor line ends; in the whole text
  bool hasTabs = false;       ///< outside its remark

  [[nodiscard]] bool HasRemarkBehind() const {
    return tokens.size() > 1 && tokens.back().kind == TokenKind::Comment;
  }
};

/// The lines of a file with what is to change in them.
class Layout {
 public:
  Layout(std::string_view text, FirstEquals equals) : text_(text), equals_(equals) {}

  void AddStatement(Range range, std::size_t statement) {
    lines_.push_back({range.start, statement, {}, false});
    for (Token token : TokensOf(In(text_, range), equals_)) {
      token.range.start += range.start;
      if (token.kind == TokenKind::LineEnd) {
        lines_.push_back({token.range.End(), statement, {}, false});
      } else if (token.kind != TokenKind::Blank) {
        lines_.back().tokens.push_back(token);
      } else if (In(text_, token.range).find_first_not_of(' ') != std::string_view::npos) {
        lines_.back().hasTabs = true;
      }
    }
    // Behind the last line end stands the next statement.
    if (lines_.back().start == range.End()) lines_.pop_back();
  }

  [[nodiscard]] std::size_t size() const { return lines_.size(); }
  [[nodiscard]] const Line& operator[](std::size_t at) const { return lines_[at]; }
  [[nodiscard]] std::string_view Words(const Token& token) const { return In(text_, token.range); }

  /// Where a token of a line stands once the line is changed.
  [[nodiscard]] std::size_t ColumnOf(std::size_t line, std::size_t token) const {
    std::size_t column = lines_[line].tokens[token].range.start - lines_[line].start;
    for (const Replacement& edit : EditsOf(line)) {
      if (edit.range.start >= lines_[line].tokens[token].range.start) continue;
      column += edit.text.size() - edit.range.length;  // may wrap round, and back
    }
    return column;
  }
  /// Where the words end before a token; 0 for the first.
  [[nodiscard]] std::size_t EndBefore(std::size_t line, std::size_t token) const {
    return token == 0 ? 0 : ColumnOf(line, token - 1) + lines_[line].tokens[token - 1].range.length;
  }

  /// Makes the blanks before a token so many that it stands in a column.
  void Move(std::size_t line, std::size_t token, std::size_t column) {
    if (ColumnOf(line, token) == column) return;
    const Line& at = lines_[line];
    const std::size_t start = token == 0 ? at.start : at.tokens[token - 1].range.End();
    const std::size_t length = at.tokens[token].range.start - start;
    edits_.resize(lines_.size());
    edits_[line].push_back({{start, length}, std::string(column - EndBefore(line, token), ' ')});
  }

  [[nodiscard]] std::vector<Replacement> TakeEdits() {
    std::vector<Replacement> all;
    for (std::vector<Replacement>& line : edits_) {
      for (Replacement& edit : line) all.push_back(std::move(edit));
    }
    std::ranges::sort(all, {}, [](const Replacement& edit) { return edit.range.start; });
    return all;
  }

 private:
  [[nodiscard]] std::span<const Replacement> EditsOf(std::size_t line) const {
    return line < edits_.size() ? std::span<const Replacement>(edits_[line]) : std::span<const Replacement>();
  }

  std::string_view text_;
  FirstEquals equals_;
  std::vector<Line> lines_;
  std::vector<std::vector<Replacement>> edits_;
};

/// Lines up a token of each line on end that `tokenOf` finds one on.
template <class TokenOf>
void AlignBlocks(Layout& layout, const TokenOf& tokenOf) {
  for (std::size_t first = 0; first < layout.size();) {
    std::size_t end = first;
    std::size_t room = 0;
    while (end < layout.size() && tokenOf(layout[end])) {
      room = std::max(room, layout.EndBefore(end, *tokenOf(layout[end])) + 1);
      ++end;
    }
    if (end == first) {
      ++first;
      continue;
    }
    const std::size_t column = std::max(room, layout.ColumnOf(first, *tokenOf(layout[first])));
    for (; first < end; ++first) layout.Move(first, *tokenOf(layout[first]), column);
  }
}

std::optional<std::size_t> RemarkOf(const Line& line) {
  if (line.hasTabs || !line.HasRemarkBehind()) return std::nullopt;
  return line.tokens.size() - 1;
}

std::optional<std::size_t> EqualsOf(const Line& line) {
  const auto equals = std::ranges::find(line.tokens, TokenKind::Equals, &Token::kind);
  const bool hasName = equals != line.tokens.end() && equals != line.tokens.begin();
  if (line.hasTabs || !hasName || line.tokens.front().range.start != line.start) return std::nullopt;
  return static_cast<std::size_t>(equals - line.tokens.begin());
}

/// The modifiers that are open in a statement, each with its column; none where tabs hide it.
class ModifierColumns {
 public:
  void Align(Layout& layout, std::size_t line) {
    for (std::size_t i = 0; i < layout[line].tokens.size(); ++i) {
      const Token& token = layout[line].tokens[i];
      if (token.kind != TokenKind::Modifier) continue;
      const auto* slash =
          std::ranges::find(kSlashLetters, ToUpperOf(layout.Words(token).back()), &SlashLetter::letter);
      if (slash == std::end(kSlashLetters)) continue;
      const auto open = std::ranges::find(open_, slash->group, &Open::group);
      const bool isSetIn = i == 0 && token.range.start > layout[line].start && !layout[line].hasTabs;
      if (isSetIn && open != open_.end() && open->column) layout.Move(line, i, *open->column);
      if (open != open_.end()) open_.erase(open, open_.end());
      const auto column = layout[line].hasTabs ? std::nullopt : std::optional(layout.ColumnOf(line, i));
      open_.push_back({slash->group, column});
    }
  }

 private:
  struct Open {
    SlashGroup group;
    std::optional<std::size_t> column;
  };

  static char ToUpperOf(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
  }

  std::vector<Open> open_;
};

void AlignModifiers(Layout& layout) {
  ModifierColumns columns;
  for (std::size_t i = 0; i < layout.size(); ++i) {
    if (i > 0 && layout[i].statement != layout[i - 1].statement) columns = {};
    columns.Align(layout, i);
  }
}

template <class File>
std::vector<Replacement> TidyFile(const File& file, std::string_view text, FirstEquals equals, Range lines) {
  if (file.size() == 0) return {};
  Layout layout(text, equals);
  const std::size_t last = file.IndexAt(std::max(lines.start, lines.End() - (lines.length > 0 ? 1 : 0)));
  for (std::size_t i = file.IndexAt(lines.start); i <= last; ++i) layout.AddStatement(file.RangeOf(i), i);
  if (equals == FirstEquals::EndsName) AlignBlocks(layout, EqualsOf);
  AlignModifiers(layout);
  AlignBlocks(layout, RemarkOf);
  return layout.TakeEdits();
}

}  // namespace

std::vector<Replacement> Tidy(const FilePair& pair, FileKind file, Range lines) {
  if (file == FileKind::Joystick) {
    return TidyFile(pair.joystick, pair.joystickText, FirstEquals::IsKey, lines);
  }
  return TidyFile(pair.macros, pair.macroText, FirstEquals::EndsName, lines);
}

}  // namespace tarvik::model
