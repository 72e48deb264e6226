// What the title at the top of the files tells of them.
#pragma once

#include "kneeboard/Contents.h"

namespace tarvik::kneeboard {

/// From the first remarks of the joystick file, or of the macro file where those tell nothing: "strike.b50
/// for Strike 97", "by Copper", "last modified: 14 December 1997". Any other first line is the title itself,
/// but for a heading.
[[nodiscard]] TitleBlock TitleOf(const model::FilePair& pair);

}  // namespace tarvik::kneeboard
