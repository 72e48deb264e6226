#include "support/Printers.h"

#include <array>
#include <iomanip>
#include <sstream>

namespace tarvik {
namespace {

/// The name of a value whose number is its place among the names.
template <class Enum, std::size_t N>
void PrintName(Enum value, const std::array<const char*, N>& names, std::ostream* out) {
  const auto place = static_cast<std::size_t>(value);
  *out << (place < N ? names[place] : "?");
}

std::string Shift(int state) {
  std::string text;
  if (state & shift::kCtrl) text += "Ctrl+";
  if (state & shift::kAlt) text += "Alt+";
  if (state & shift::kShift) text += "Shift+";
  return text;
}

}  // namespace

std::string Quoted(std::string_view text) {
  constexpr unsigned char kFirstPrintable = 0x20;
  constexpr unsigned char kLastPrintable = 0x7E;
  std::ostringstream out;
  out << '"' << std::hex << std::uppercase << std::setfill('0');
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (c == '\r') {
      out << "\\r";
    } else if (c == '\n') {
      out << "\\n";
    } else if (code < kFirstPrintable || code > kLastPrintable) {
      out << "\\x" << std::setw(2) << static_cast<int>(code);
    } else {
      out << (c == '"' || c == '\\' ? "\\" : "") << c;
    }
  }
  out << '"';
  return out.str();
}

std::string ColourInWords(Colour colour) {
  constexpr Colour kByte = 0xFF;
  if (colour == kBlack) return "black";
  return "red " + std::to_string(colour & kByte) + " green " + std::to_string(colour >> 8 & kByte) +
         " blue " + std::to_string(colour >> 16 & kByte);
}

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

void PrintTo(const Key& key, std::ostream* out) { *out << "key " << Shift(key.shift) << key.code; }

void PrintTo(const Mouse& mouse, std::ostream* out) {
  *out << Shift(mouse.shift) << "button " << mouse.button << " at " << mouse.x << ", " << mouse.y << " twips";
}

void PrintTo(const Stroke& stroke, std::ostream* out) {
  *out << "line from " << stroke.x1 << ", " << stroke.y1 << " to " << stroke.x2 << ", " << stroke.y2 << ", "
       << ColourInWords(stroke.colour) << ", style " << stroke.style << ", width " << stroke.width;
}

void PrintTo(const Range& range, std::ostream* out) {
  *out << range.length << " characters from " << range.start;
}

void PrintTo(const ColourRuns& colours, std::ostream* out) {
  *out << "[";
  for (std::size_t i = 0; i < colours.runs().size(); ++i) {
    const ColourRuns::Run& run = colours.runs()[i];
    *out << (i ? "; " : "") << run.start << " to " << colours.EndOf(i) << " " << ColourInWords(run.colour);
  }
  *out << "]";
}

void PrintTo(const RichText& text, std::ostream* out) {
  *out << Quoted(text.text) << " ";
  PrintTo(text.colours, out);
}

void PrintTo(const PaneEdit& edit, std::ostream* out) {
  *out << "at " << edit.position << " ";
  PrintTo(edit.removed, out);
  *out << " becomes ";
  PrintTo(edit.inserted, out);
}

void PrintTo(PassKind kind, std::ostream* out) {
  PrintName(
      kind,
      std::array{"WordAndOperand", "Modifier", "Bracket", "FollowedWord", "PlainWord", "Port", "Comment"},
      out);
}

void PrintTo(const MacroCategory& category, std::ostream* out) {
  *out << Quoted(category.heading) << ":";
  for (const std::string& macro : category.macros) *out << " " << Quoted(macro);
}

}  // namespace tarvik
