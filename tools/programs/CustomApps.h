// The user's own programs in the Apps menu.
#pragma once

#include "workbench/Shell.h"

namespace tarvik {

/// Starts one of them; 1-based.
void RunCustomApp(Workbench& bench, int index);

}  // namespace tarvik
