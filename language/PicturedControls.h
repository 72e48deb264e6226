// Which controls of the language a label of the pictured hardware stands for.
#pragma once

#include <string>
#include <vector>

#include "language/ComposerTables.h"

namespace tarvik {

/// What the statements of a label's control call it, by position; `caption` is what the label says.
[[nodiscard]] std::vector<std::string> ControlsOf(const tables::HardwareRow& row, std::string_view caption);

}  // namespace tarvik
