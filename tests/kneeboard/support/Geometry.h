// Whether everything on a sheet can be read.
#pragma once

#include <string>

#include "kneeboard/Layout.h"

namespace tarvik::kneeboard {

/// What is wrong on a sheet: what reaches out of its margins, words over words, frames that overlap in part,
/// leaders that cross each other, words or boxes, letters that are too small. Empty for nothing.
[[nodiscard]] std::string Faults(const Sheet& sheet, double margin);

}  // namespace tarvik::kneeboard
