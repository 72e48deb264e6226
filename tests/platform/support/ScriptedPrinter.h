// A printer on which a page takes a number of lines, and a calendar that stands still. Sessions and tests
// read what was printed.
#pragma once

#include <limits>

#include "platform/Platform.h"

namespace tarvik {

/// A sheet of 8.5 by 11 inches, of which a strip of 360 twips on the left and 240 above can't be printed on.
class ScriptedPrinter : public Printer {
 public:
  Outcome<> SetUp() override;
  bool IsThere() override { return callsLeft > 0; }
  /// The pages come before those that are printed from there.
  void Preview(const std::string& title, const PrintDocumentOn& print) override;
  Outcome<> Print(const std::string& line, Weight weight) override;
  Outcome<Paper> Sheet() override;
  /// Lines are those of the text, whatever their length.
  Outcome<std::size_t> FormatRange(const FormattedText& text, std::size_t from,
                                   const PrintArea& area) override;
  Outcome<> NewPage() override;
  Outcome<> EndDocument() override;

  std::size_t linesPerPage = 60;
  std::size_t callsLeft = std::numeric_limits<std::size_t>::max();  ///< before the printer goes away
  std::string choice = "cancel";    ///< in the set-up dialog: a printer, "cancel", or "fails"
  bool printsFromPreview = false;   ///< what the user does there; closes it otherwise
  std::vector<std::string> record;  ///< a line for each call, and the rendered lines

 private:
  Outcome<> Call();
  void StartPage(int number);

  std::string chosen_;
  bool onScreen_ = false;
  int page_ = 0;  // 0 while no document is under way
};

/// Sunday the 14th of December 1997, at tea time.
class FixedCalendar : public Calendar {
 public:
  [[nodiscard]] std::string ShortDate() const override { return "14/12/97"; }
  [[nodiscard]] std::string LongDate() const override { return "14 December 1997"; }
  [[nodiscard]] std::string TimeOfDay() const override { return "16:00:00"; }
  [[nodiscard]] std::string Stamp() const override { return "1997-12-14 16.00.00"; }
};

}  // namespace tarvik
