// How a failing expectation shows what the two files mean.
#pragma once

#include "language/MacroAnalysis.h"
#include "language/Passes.h"
#include "language/Statements.h"
#include "support/TextPrinters.h"

namespace tarvik {

void PrintTo(PassKind kind, std::ostream* out);
void PrintTo(const MacroCategory& category, std::ostream* out);
void PrintTo(const Piece& piece, std::ostream* out);
void PrintTo(const Statement& statement, std::ostream* out);

}  // namespace tarvik
