// How a failing expectation shows what comes from outside.
#pragma once

#include "platform/Platform.h"
#include "support/TextPrinters.h"

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
