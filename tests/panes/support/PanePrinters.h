// How a failing expectation shows what becomes of the text of a pane.
#pragma once

#include "panes/Pane.h"
#include "support/ControlPrinters.h"

namespace tarvik {

void PrintTo(const PaneEdit& edit, std::ostream* out);

}  // namespace tarvik
