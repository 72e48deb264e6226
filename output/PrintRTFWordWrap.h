// Documents on paper: a header, and below it the text of a pane as it stands there, page after page. The
// editor's printing entries run this.
#pragma once

#include "app/Desk.h"

namespace tarvik {

/// Prints the pane's text in its colours and ends the document. The margins are in twips from the edges of
/// the sheet.
void PrintRTF(Printer& printer, Errors& errors, const Pane& pane, int left, int top, int right, int bottom);

/// Prints the document under its name and today's date, and tells so in status panel 1; an empty one not.
void PrintDocument(const Desk& desk, const Document& document);

/// Lets the user choose where everything is printed from now on.
void SetUpPrinter(const Desk& desk);

}  // namespace tarvik
