#include "support/PlatformPrinters.h"

namespace tarvik {

void PrintTo(WindowStyle style, std::ostream* out) {
  *out << (style == WindowStyle::Normal ? "Normal" : "Maximised");
}

void PrintTo(ProgramState state, std::ostream* out) {
  PrintName(state, std::array{"Running", "Ended", "Abandoned"}, out);
}

void PrintTo(BoxIcon icon, std::ostream* out) {
  PrintName(icon, std::array{"None", "Information", "Question", "Exclamation"}, out);
}

void PrintTo(BoxButtons buttons, std::ostream* out) {
  PrintName(buttons, std::array{"Ok", "YesNo", "YesNoCancel"}, out);
}

void PrintTo(Answer answer, std::ostream* out) {
  PrintName(answer, std::array{"Ok", "Yes", "No", "Cancel"}, out);
}

void PrintTo(FileDialogKind kind, std::ostream* out) { PrintName(kind, std::array{"Open", "Save"}, out); }

void PrintTo(const MessageBox& box, std::ostream* out) {
  *out << "box " << Quoted(box.title) << " " << Quoted(box.text) << ", icon ";
  PrintTo(box.icon, out);
  *out << ", buttons ";
  PrintTo(box.buttons, out);
  if (!box.preset) return;
  *out << ", Enter gives ";
  PrintTo(*box.preset, out);
}

void PrintTo(const FileRequest& request, std::ostream* out) {
  PrintTo(request.kind, out);
  *out << " dialog " << Quoted(request.title) << ", filter " << Quoted(request.filter) << ", folder "
       << Quoted(request.folder) << ", file " << Quoted(request.fileName) << ", ending "
       << Quoted(request.defaultExtension);
}

void PrintTo(const FontChoice& font, std::ostream* out) {
  *out << font.name << " " << font.size << (font.bold ? " bold" : "");
}

void PrintTo(const Failure& failure, std::ostream* out) {
  *out << "failure " << failure.number << " " << Quoted(failure.text) << ", the system's "
       << failure.systemCode;
}

}  // namespace tarvik
