#include "support/TextPrinters.h"

#include <iomanip>
#include <sstream>

namespace tarvik {

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
  if (colour == kBlack) return "black";
  return "red " + std::to_string(RedOf(colour)) + " green " + std::to_string(GreenOf(colour)) + " blue " +
         std::to_string(BlueOf(colour));
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

}  // namespace tarvik
