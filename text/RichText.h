// Coloured text as a value: what a pane holds, what a snapshot and a coloured copy are made of.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/Colour.h"

namespace tarvik {

/// Characters from `start`, 0-based; a line break is CR LF and counts as two.
struct Range {
  std::size_t start = 0;
  std::size_t length = 0;

  [[nodiscard]] std::size_t End() const { return start + length; }
  friend bool operator==(const Range&, const Range&) = default;
};

/// A text that comes in the place of a range, which may be empty.
struct Replacement {
  Range range;
  std::string text;

  friend bool operator==(const Replacement&, const Replacement&) = default;
};

/// The colours of consecutive characters, kept as runs: neighbouring runs differ and none is empty.
class ColourRuns {
 public:
  struct Run {
    std::size_t start;
    Colour colour;
    friend bool operator==(const Run&, const Run&) = default;
  };

  ColourRuns() = default;
  ColourRuns(std::size_t length, Colour colour) { Append(length, colour); }

  [[nodiscard]] std::size_t size() const { return size_; }
  [[nodiscard]] std::span<const Run> runs() const { return runs_; }
  /// The position behind run `index`.
  [[nodiscard]] std::size_t EndOf(std::size_t index) const {
    return index + 1 < runs_.size() ? runs_[index + 1].start : size_;
  }
  /// The index of the run that holds `position`, which is below size().
  [[nodiscard]] std::size_t RunAt(std::size_t position) const;
  /// The colour of the character at `position`; black from the end on.
  [[nodiscard]] Colour At(std::size_t position) const;

  void Append(std::size_t length, Colour colour);
  /// Colours of another text, those of the range.
  void Append(const ColourRuns& source, Range range);
  /// Makes room for as many runs as will be appended.
  void Reserve(std::size_t runs) { runs_.reserve(runs); }
  [[nodiscard]] ColourRuns Slice(Range range) const;
  /// Puts `colours` in the place of `range`; the two may differ in length.
  void Replace(Range range, const ColourRuns& colours);

  friend bool operator==(const ColourRuns&, const ColourRuns&) = default;

 private:
  std::vector<Run> runs_;
  std::size_t size_ = 0;
};

/// Text in the Windows-1252 code page and a colour for each of its characters.
struct RichText {
  std::string text;
  ColourRuns colours;

  RichText() = default;
  explicit RichText(std::string plain, Colour colour = kBlack)
      : text(std::move(plain)), colours(text.size(), colour) {}
  RichText(std::string characters, ColourRuns runs) : text(std::move(characters)), colours(std::move(runs)) {}

  [[nodiscard]] std::size_t size() const { return text.size(); }
  friend bool operator==(const RichText&, const RichText&) = default;
};

/// The one font of a pane's whole text. `size` is in points.
struct PaneFont {
  std::string name = "Arial";
  float size = 8.5F;
  bool bold = false;

  friend bool operator==(const PaneFont&, const PaneFont&) = default;
};

/// `text` with every line break a CR LF: a lone CR and a lone LF become one.
[[nodiscard]] std::string WithPaneLineBreaks(std::string_view text);

}  // namespace tarvik
