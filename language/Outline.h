// What a file is made of, for a list that leads there.
#pragma once

#include "language/FilePair.h"

namespace tarvik::model {

struct OutlineRow {
  std::size_t indent = 0;  ///< 1 below a heading, 0 otherwise
  std::string text;
  std::size_t position = 0;  ///< of the heading's first line, or the word of the statement; in the whole text

  friend bool operator==(const OutlineRow&, const OutlineRow&) = default;
};

/// Headings, and below each its controls, axes, flags, ports and settings, or its macros.
[[nodiscard]] std::vector<OutlineRow> OutlineOf(const FilePair& pair, FileKind file);

}  // namespace tarvik::model
