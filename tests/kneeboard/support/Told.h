// A sheet in words, for people to compare.
#pragma once

#include <string>

#include "kneeboard/Sheet.h"

namespace tarvik::kneeboard {

/// Its words, leaders, drawings and boxes, each with its place in tenths of a millimetre, in a line of its
/// own.
[[nodiscard]] std::string Told(const Sheet& sheet);

}  // namespace tarvik::kneeboard
