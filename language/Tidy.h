// Blanks that line up what belongs together.
#pragma once

#include "language/FilePair.h"
#include "text/RichText.h"

namespace tarvik::model {

/// The blanks that line up the statements that `lines` touches, in the order of the text: the "=" of macros
/// on lines on end, slash modifiers below those of their matter, and the remarks behind statements on lines
/// on end. The first of them tells the column where all have room there. No edit is needed a second time. A
/// line with tabs before its remark stays as it is.
[[nodiscard]] std::vector<Replacement> Tidy(const FilePair& pair, FileKind file, Range lines);

}  // namespace tarvik::model
