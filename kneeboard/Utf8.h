// Kneeboards in the encoding that is painted.
#pragma once

#include "kneeboard/Contents.h"

namespace tarvik::kneeboard {

/// The same contents with all their words, which are in the code page as the files are, in UTF-8.
[[nodiscard]] Contents InUtf8(Contents contents);

}  // namespace tarvik::kneeboard
