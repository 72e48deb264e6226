// The libraries that the program runs with, for the box about it.
#pragma once

#include <vector>

#include "platform/Platform.h"

namespace tarvik::screen {

/// Each tells its own version as it runs; one that is built in tells the one that it was built from.
[[nodiscard]] std::vector<Library> Libraries();

}  // namespace tarvik::screen
