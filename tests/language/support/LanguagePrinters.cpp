#include "support/LanguagePrinters.h"

namespace tarvik {

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

void PrintTo(const Piece& piece, std::ostream* out) {
  constexpr const char* kClasses[] = {"black", "button", "slash", "raw", "miscellaneous", "comment"};
  *out << Quoted(piece.text) << " " << kClasses[static_cast<std::size_t>(piece.colour)]
       << (piece.blank == BlankBefore::Never ? " without a blank" : "");
}

void PrintTo(const Statement& statement, std::ostream* out) {
  for (const Piece& piece : statement.pieces) {
    PrintTo(piece, out);
    *out << "; ";
  }
  *out << (statement.ownLine ? "own line, " : "") << (statement.endsLine ? "ends the line, " : "")
       << (statement.releasesPort ? "releases the port, " : "") << "looks for " << Quoted(statement.search)
       << " + " << statement.pastHit;
}

}  // namespace tarvik
