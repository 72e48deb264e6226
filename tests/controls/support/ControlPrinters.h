// How a failing expectation shows what a user does to controls, and what a form draws.
#pragma once

#include "controls/PlotBox.h"
#include "support/TextPrinters.h"

namespace tarvik {

void PrintTo(const Key& key, std::ostream* out);
void PrintTo(const Mouse& mouse, std::ostream* out);
void PrintTo(const Stroke& stroke, std::ostream* out);

}  // namespace tarvik
