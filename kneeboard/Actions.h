// What a control does, layer by layer.
#pragma once

#include "kneeboard/Deeds.h"

namespace tarvik::kneeboard {

/// The actions of a statement whose lines these are. What is the same in all layers of a matter is one
/// action; what sends nothing is none.
[[nodiscard]] std::vector<Action> ActionsOf(const Deeds& deeds, std::string_view lines,
                                            const model::Sequence& sequence, const model::Mention& statement);

}  // namespace tarvik::kneeboard
