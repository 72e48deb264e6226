// The axes of a kneeboard: how far each is moved, and what it sends there.
#pragma once

#include "kneeboard/Deeds.h"
#include "language/AxisStatement.h"

namespace tarvik::kneeboard {

/// The scales of all statements for an axis.
[[nodiscard]] std::vector<Scale> ScalesOf(const DeedWriter& writer, std::string_view axis);

}  // namespace tarvik::kneeboard
