// The user's own programs in the Apps menu.
#pragma once

#include "workbench/Shell.h"

namespace tarvik {

/// Starts the program of that row, counted from 1.
void RunCustomApp(Workbench& bench, int index);

}  // namespace tarvik
