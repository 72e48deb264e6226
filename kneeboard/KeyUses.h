// Which keys of the keyboard are on the stick, and by what.
#pragma once

#include "kneeboard/Deeds.h"

namespace tarvik::kneeboard {

/// Every key that a macro presses, or a control by itself, in the order of the key table.
[[nodiscard]] std::vector<KeyUse> KeyUsesOf(const DeedWriter& writer);

}  // namespace tarvik::kneeboard
