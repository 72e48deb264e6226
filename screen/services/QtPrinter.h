// The printer that the user has, or a PDF file in its place: pages painted as the panes are. The program and
// the tests on real pages use it.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <functional>
#include <optional>
#include <vector>

#include "platform/Printer.h"

namespace tarvik::screen {

class QtPrinter : public Printer {
 public:
  Outcome<> SetUp() override;
  bool IsThere() override;
  void Preview(const std::string& title, const PrintDocumentOn& print) override;
  Outcome<> Print(const std::string& line, Weight weight) override;
  Outcome<Paper> Sheet() override;
  Outcome<std::size_t> FormatRange(const FormattedText& text, std::size_t from,
                                   const PrintArea& area) override;
  Outcome<> NewPage() override;
  Outcome<> EndDocument() override;

  /// Paints a page, in millimetres from the corner of its sheet.
  using PaintPage = std::function<void(QPainter& painter, std::size_t page)>;
  /// Asks for the printer and prints pages of those sizes in millimetres, whatever paper other documents go
  /// on. Failure 32755 when the user cancels.
  Outcome<> PrintPages(const std::vector<QSizeF>& sizes, const PaintPage& paint);

 private:
  /// The default printer until another one is set up. It is asked for as late as possible, which takes time.
  QPrinter& Device();
  Outcome<> Choose(QPrinter& device);
  /// True when the user wants the pages printed, and it is known where.
  bool ShowPages(const QString& title, const PrintDocumentOn& print);
  Outcome<> ChooseTarget();
  Outcome<> Begin();
  [[nodiscard]] bool IsWritten() const;
  /// Whether a document is under way and the printer still takes it.
  [[nodiscard]] bool Works() const;

  std::optional<QPrinter> device_;
  QPainter painter_;  // in twips, from the corner of the printable area
  qreal lineTop_ = 0;
  bool onScreen_ = false;  // the pages are painted for a preview
  QString file_;           // the first one written since the last set-up
};

}  // namespace tarvik::screen
