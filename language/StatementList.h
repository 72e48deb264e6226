// The statements of a file in order, kept up to date edit by edit. They hold positions and no text: each
// question that needs the text is handed the one that the list was last read or edited for.
#pragma once

#include <algorithm>
#include <iterator>
#include <vector>

#include "language/Tokens.h"

namespace tarvik::model {

/// `Statement` tells where one ends, by `EndOf(text, start)`, which looks at nothing before `start`, and
/// becomes one by `Read(lines, tokens)` of its own lines alone; `tokens` is room that is used again. The
/// statements cover the text without gaps.
template <class Statement>
class StatementList {
 public:
  StatementList() = default;
  explicit StatementList(std::string_view text) : size_(text.size()) {
    ReadWhile(text, 0, [](std::size_t) { return true; });
  }

  /// `text` is what an edit made: what `removed` covered before went, and `inserted` bytes came in its place.
  /// The statements that the edit touched are read again, and the one before them, which a line can come to.
  void Edit(std::string_view text, Range removed, std::size_t inserted) {
    const std::size_t first = std::max<std::size_t>(IndexAt(removed.start), 1) - 1;
    std::size_t kept = FirstFrom(removed.End());
    const std::size_t shift = inserted - removed.length;  // wraps round where the text gets shorter
    const auto isKept = [&](std::size_t at) {
      while (kept < size() && starts_[kept] + shift < at) ++kept;
      return kept < size() && starts_[kept] + shift == at;
    };
    StatementList anew;
    const std::size_t from = first < size() ? starts_[first] : 0;
    isKept(anew.ReadWhile(text, from, [&](std::size_t at) { return !isKept(at); }));
    for (std::size_t i = kept; i < size(); ++i) starts_[i] += shift;
    Replace(starts_, first, kept, anew.starts_);
    Replace(statements_, first, kept, anew.statements_);
    size_ = text.size();
  }

  [[nodiscard]] std::size_t size() const { return statements_.size(); }
  [[nodiscard]] const Statement& operator[](std::size_t index) const { return statements_[index]; }
  [[nodiscard]] auto begin() const { return statements_.begin(); }
  [[nodiscard]] auto end() const { return statements_.end(); }

  /// Where the lines of a statement stand in the text.
  [[nodiscard]] Range RangeOf(std::size_t index) const {
    const std::size_t end = index + 1 < size() ? starts_[index + 1] : size_;
    return {starts_[index], end - starts_[index]};
  }
  /// The lines of a statement, which its ranges are about.
  [[nodiscard]] std::string_view LinesOf(std::size_t index, std::string_view text) const {
    return In(text, RangeOf(index));
  }
  /// The statement that a position stands in, and the last one at the end of the text; 0 where there is none.
  [[nodiscard]] std::size_t IndexAt(std::size_t position) const {
    const auto behind = std::upper_bound(starts_.begin(), starts_.end(), position);
    return behind == starts_.begin() ? 0 : static_cast<std::size_t>(behind - starts_.begin()) - 1;
  }

  friend bool operator==(const StatementList&, const StatementList&) = default;

 private:
  /// The first statement that begins at a position or behind it.
  [[nodiscard]] std::size_t FirstFrom(std::size_t position) const {
    return static_cast<std::size_t>(std::lower_bound(starts_.begin(), starts_.end(), position) -
                                    starts_.begin());
  }

  /// Reads statements from `at` on, as long as one is wanted there, and tells where it stopped.
  template <class Wanted>
  std::size_t ReadWhile(std::string_view text, std::size_t at, const Wanted& wanted) {
    for (; at < text.size() && wanted(at); at = Statement::EndOf(text, at)) starts_.push_back(at);
    // Each is read in its place, for moving one takes about as long.
    statements_ = std::vector<Statement>(starts_.size());
    std::vector<Token> tokens;
    for (std::size_t i = 0; i < size(); ++i) {
      const std::size_t end = i + 1 < size() ? starts_[i + 1] : at;
      statements_[i].Read(text.substr(starts_[i], end - starts_[i]), tokens);
    }
    return at;
  }

  /// Puts `values` in the place of those from `first` to `end`, moving the others only where there are more
  /// or fewer.
  template <class Value>
  static void Replace(std::vector<Value>& all, std::size_t first, std::size_t end,
                      std::vector<Value>& values) {
    const auto begin = all.begin() + static_cast<std::ptrdiff_t>(first);
    const std::size_t same = std::min(end - first, values.size());
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(same);
    const auto behind = std::move(values.begin(), middle, begin);
    all.erase(behind, all.begin() + static_cast<std::ptrdiff_t>(end));
    all.insert(all.begin() + static_cast<std::ptrdiff_t>(first + same), std::move_iterator(middle),
               std::move_iterator(values.end()));
  }

  std::vector<std::size_t> starts_;
  std::vector<Statement> statements_;
  std::size_t size_ = 0;  // of the text
};

}  // namespace tarvik::model
