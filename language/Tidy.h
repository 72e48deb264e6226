// Blanks that line up what belongs together.
#pragma once

#include "language/FilePair.h"

namespace tarvik::model {

/// Blanks, and what comes in their place. The range is in the whole text and may be empty.
struct TidyEdit {
  Range range;
  std::string replacement;

  friend bool operator==(const TidyEdit&, const TidyEdit&) = default;
};

/// What lines up the statements that `lines` touches, in the order of the text: the "=" of macros on lines on
/// end, slash modifiers below those of their matter, and the remarks behind statements on lines on end. The
/// first of them tells the column where all have room there. No edit is needed a second time. A line with
/// tabs before its remark stays as it is.
[[nodiscard]] std::vector<TidyEdit> Tidy(const FilePair& pair, FileKind file, Range lines);

}  // namespace tarvik::model
