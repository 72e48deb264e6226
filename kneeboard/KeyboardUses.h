// Which keys the files press, and the controls that lead to each.
#pragma once

#include "kneeboard/Deeds.h"

namespace tarvik::kneeboard {

/// The keys in the order of the keyboard, from its upper row down, those that it has not behind them.
[[nodiscard]] std::vector<KeyUse> KeyUsesOf(const Deeds& deeds);

}  // namespace tarvik::kneeboard
