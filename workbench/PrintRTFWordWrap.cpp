#include "workbench/PrintRTFWordWrap.h"

namespace tarvik {
namespace {

constexpr int kMargin = 1440;  // twips: an inch, above which the header has its place

FormattedText Formatted(const Pane& pane) {
  return {pane.Characters(), pane.Content().colours, pane.SelFontName,
          pane.SelFontSize,  pane.SelBold,           pane.SelIndent * static_cast<int>(kTwipsPerPixel)};
}

void PrintHeader(const Platform& platform, const Trap& trap, const std::string& title) {
  Printer& printer = platform.printer;
  trap(printer.Print("", Weight::Regular));
  trap(printer.Print(title, Weight::Bold));
  trap(printer.Print("Date printed: " + platform.calendar.ShortDate(), Weight::Bold));
  trap(printer.Print("", Weight::Regular));
}

std::string_view TagOf(const Document& document) {
  return document.IsJoystick() ? "ED_mnuFilePrintJoystick_Click" : "ED_mnuFilePrintMacro_Click";
}

void PrintPages(const Pane& pane, const std::string& title, std::string_view tag,
                const Documents& documents) {
  PrintHeader(documents.platform, Trap{documents.errors, tag}, title);
  PrintRTF(documents.platform.printer, documents.errors, pane, kMargin, kMargin, kMargin, kMargin);
}

}  // namespace

void PrintRTF(Printer& printer, Errors& errors, const Pane& pane, int left, int top, int right, int bottom) {
  const Trap trap{errors, "MODULE PrintRTF"};
  trap(printer.Print(" ", Weight::Regular));
  const Paper paper = trap(printer.Sheet()).value_or(Paper());
  const PrintArea area{left - paper.offsetX, top - paper.offsetY, paper.width - right - paper.offsetX,
                       paper.height - bottom - paper.offsetY};
  const FormattedText text = Formatted(pane);
  std::size_t from = 0;
  while (true) {
    const std::size_t next = trap(printer.FormatRange(text, from, area)).value_or(from);
    // Where nothing goes on the page nothing would go on the next ones either.
    if (next >= text.text.size() || next <= from) break;
    from = next;
    trap(printer.NewPage());
    trap(printer.Print(" ", Weight::Regular));
  }
  trap(printer.EndDocument());
}

void PrintPane(const Pane& pane, const std::string& title, std::string_view tag, const Documents& documents) {
  if (pane.Characters().empty()) return;
  documents.Say("Printing " + title);
  PrintPages(pane, title, tag, documents);
  documents.Say("Finished printing " + title);
}

void PrintDocument(const Documents& documents, const Document& document) {
  PrintPane(document.text, documents.TabOf(document).Caption, TagOf(document), documents);
}

void PreviewDocument(const Documents& documents, const Document& document) {
  if (document.text.Characters().empty()) return;
  const std::string title = documents.TabOf(document).Caption;
  documents.platform.printer.Preview(title, [&](PagesGo where) {
    const auto print = where == PagesGo::OnPaper ? PrintPane : PrintPages;
    print(document.text, title, TagOf(document), documents);
  });
}

std::string PrinterNote(Printer& printer) {
  return printer.IsThere() ? "" : "There is no printer; the printer set-up offers a PDF file";
}

void SetUpPrinter(const Documents& documents) {
  const Outcome<> chosen = documents.platform.printer.SetUp();
  if (!chosen && chosen.failure().number == error::kDialogCancelled) return;
  Trap{documents.errors, "ED_mnuFilePrinterSetup_Click"}(chosen);
}

}  // namespace tarvik
