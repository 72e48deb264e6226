// Documents on paper: a header, and below it the text of a pane as it stands there, page after page. The
// editor's printing entries run this.
#pragma once

#include "workbench/Documents.h"

namespace tarvik {

/// Prints the pane's text in its colours and ends the document. The margins are in twips from the edges of
/// the sheet.
void PrintRTF(Printer& printer, Errors& errors, const Pane& pane, int left, int top, int right, int bottom);

/// Prints the pane's text under a title and today's date, and tells so in the status bar. An empty pane is
/// not printed. Failures are recorded under `tag`.
void PrintPane(const Pane& pane, const std::string& title, std::string_view tag, const Documents& documents);

/// Prints the document under its name and today's date, and tells so in the status bar.
void PrintDocument(const Documents& documents, const Document& document);

/// Shows the pages that `PrintDocument` would print. The status bar tells of what is printed from there
/// alone.
void PreviewDocument(const Documents& documents, const Document& document);

/// What the tool tip of whatever prints has to add: empty where there is a printer.
std::string PrinterNote(Printer& printer);

/// Lets the tool tip of an entry or a button that prints say so when there is no printer. The printer is
/// looked for when somebody wants to know.
template <class Shown>
void TellOfPrinter(Shown& shown, Printer& printer) {
  shown.Pointed = [&shown, &printer, tip = shown.ToolTipText.Get()] {
    const std::string note = PrinterNote(printer);
    shown.ToolTipText = tip + (tip.empty() || note.empty() ? "" : ". ") + note;
  };
}

/// Lets the user choose where everything is printed from now on.
void SetUpPrinter(const Documents& documents);

}  // namespace tarvik
