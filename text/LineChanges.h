// Which lines of a text differ from the text as it was saved, kept up to date edit by edit.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "text/RichText.h"

namespace tarvik {

/// Lines are counted from 0, and end at line feeds. A line that is again what it was, at its own place, is
/// not changed any more.
class LineChanges {
 public:
  /// The text is saved as it is now: nothing is changed.
  void Begin(std::string_view text);
  /// `text` is what an edit made: from `position` on `removed` went and `inserted` came; `line` is that of
  /// the position. It costs what the changed lines cost, and the number of lines where that changes.
  void Edit(std::string_view text, std::size_t line, std::size_t position, std::string_view removed,
            std::string_view inserted);

  [[nodiscard]] std::size_t Lines() const { return lines_.size(); }
  /// The line is new or another one than it was; false for a line that is not there.
  [[nodiscard]] bool IsChanged(std::size_t line) const;
  /// Lines that were saved are gone, and nothing stands in their place: before this line, or behind the last
  /// one where `line` is the number of lines.
  [[nodiscard]] bool LacksLinesBefore(std::size_t line) const;

 private:
  using Hash = std::size_t;
  struct Line {
    Hash hash;
    std::size_t saved;  ///< the saved line that it is, or kNone
  };
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  void Match(std::size_t from, std::size_t to);

  std::vector<Hash> saved_;
  std::vector<Line> lines_;
};

}  // namespace tarvik
