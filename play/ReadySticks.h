// What a stick stands for before its user has said so: a map for common sticks and throttles, known by their
// names, and one for any other stick.
#pragma once

#include "language/Controllers.h"
#include "play/StickMap.h"

namespace tarvik::play {

/// How many of each a stick has.
struct StickShape {
  int axes = 0;
  int buttons = 0;
  int hats = 0;
};

/// What the ready map is called: the name of the stick that it was made for, or "plain stick".
[[nodiscard]] std::string_view ReadyMapFor(std::string_view stick);
/// Puts the ready map in the place of what the stick stood for, in the words of that language, as far as the
/// stick has the inputs.
void UseReadyMap(StickMap& map, const StickId& stick, const StickShape& shape, Dialect dialect);

}  // namespace tarvik::play
