// How a failing expectation shows the program's own values: in words. A test that compares such values
// includes this.
#pragma once

#include <ostream>

#include "controls/PlotBox.h"
#include "language/MacroAnalysis.h"
#include "language/Passes.h"
#include "panes/Pane.h"
#include "platform/Platform.h"

namespace tarvik {

void PrintTo(WindowStyle style, std::ostream* out);
void PrintTo(ProgramState state, std::ostream* out);
void PrintTo(BoxIcon icon, std::ostream* out);
void PrintTo(BoxButtons buttons, std::ostream* out);
void PrintTo(Answer answer, std::ostream* out);
void PrintTo(FileDialogKind kind, std::ostream* out);
void PrintTo(const MessageBox& box, std::ostream* out);
void PrintTo(const FileRequest& request, std::ostream* out);
void PrintTo(const FontChoice& font, std::ostream* out);
void PrintTo(const Failure& failure, std::ostream* out);
void PrintTo(const Key& key, std::ostream* out);
void PrintTo(const Mouse& mouse, std::ostream* out);
void PrintTo(const Stroke& stroke, std::ostream* out);
void PrintTo(const Range& range, std::ostream* out);
void PrintTo(const ColourRuns& colours, std::ostream* out);
/// The text as a literal, and the colours below it.
void PrintTo(const RichText& text, std::ostream* out);
void PrintTo(const PaneEdit& edit, std::ostream* out);
void PrintTo(PassKind kind, std::ostream* out);
void PrintTo(const MacroCategory& category, std::ostream* out);

/// "black", "red 255 green 0 blue 0". A colour is a number to the compiler, so that nothing prints it so by
/// itself.
[[nodiscard]] std::string ColourInWords(Colour colour);

/// A text as a literal: line breaks as \r\n, what is not printable as \x80.
[[nodiscard]] std::string Quoted(std::string_view text);

/// That it worked, or the failure.
template <class T>
void PrintTo(const Outcome<T>& outcome, std::ostream* out) {
  if (outcome) {
    *out << "success";
  } else {
    PrintTo(outcome.failure(), out);
  }
}

}  // namespace tarvik
