// How a failing expectation shows what a user does to controls and panes.
#pragma once

#include "controls/PlotBox.h"
#include "panes/Pane.h"
#include "support/TextPrinters.h"

namespace tarvik {

void PrintTo(const Key& key, std::ostream* out);
void PrintTo(const Mouse& mouse, std::ostream* out);
void PrintTo(const Stroke& stroke, std::ostream* out);
void PrintTo(const PaneEdit& edit, std::ostream* out);

}  // namespace tarvik
