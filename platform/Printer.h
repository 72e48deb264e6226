// The printer as whatever prints sees it: lines of a header, and formatted text that is rendered page by
// page.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Outcome.h"
#include "text/RichText.h"

namespace tarvik {

/// The sheet, and how far its printable area lies from its left and upper edge; all in twips (1440 an inch).
struct Paper {
  int width = 0;
  int height = 0;
  int offsetX = 0;
  int offsetY = 0;
};

/// A rectangle on the sheet in twips, from the corner of the printable area.
struct PrintArea {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

/// Text in the code page with its look, one font for all of it. Refers to the characters.
struct FormattedText {
  std::string_view text;
  ColourRuns colours;
  std::string font;
  float size = 0;  ///< in points
  bool bold = false;
  int indent = 0;  ///< from the left of the area, in twips
};

enum class Weight { Regular, Bold };

/// Where the pages of a document go.
enum class PagesGo { OnScreen, OnPaper };

/// Prints a document, whole, through the printer that asks for it.
using PrintDocumentOn = std::function<void(PagesGo)>;

class Printer {
 public:
  virtual ~Printer() = default;
  /// Lets the user choose the printer and its paper, for all that is printed from now on. Failure 32755 when
  /// the user cancels.
  virtual Outcome<> SetUp() = 0;
  /// Whether there is a printer, or a file that was chosen to stand in for it. To find out may take a moment.
  virtual bool IsThere() = 0;
  /// Shows the pages of a document, also where there is no printer, until the user has seen enough. `print`
  /// is asked for them whenever they are to be laid out, and at the end, where the user asks for that, to
  /// print.
  virtual void Preview(const std::string& title, const PrintDocumentOn& print) = 0;
  /// A line below the last one, from the corner of the printable area down. The first one starts a document.
  virtual Outcome<> Print(const std::string& line, Weight weight) = 0;
  virtual Outcome<Paper> Sheet() = 0;
  /// Renders the characters from `from` on, as many as the area takes, in lines that are wrapped at its
  /// right. The first character that is not printed yet; the length of the text when all of it is.
  virtual Outcome<std::size_t> FormatRange(const FormattedText& text, std::size_t from,
                                           const PrintArea& area) = 0;
  virtual Outcome<> NewPage() = 0;
  virtual Outcome<> EndDocument() = 0;
};

}  // namespace tarvik
