// How a failing expectation shows a statement of the Composer.
#pragma once

#include "language/Statements.h"
#include "support/Printers.h"

namespace tarvik {

inline void PrintTo(const Piece& piece, std::ostream* out) {
  constexpr const char* kClasses[] = {"black", "button", "slash", "raw", "miscellaneous", "comment"};
  *out << Quoted(piece.text) << " " << kClasses[static_cast<std::size_t>(piece.colour)]
       << (piece.joins ? " joins" : "");
}

inline void PrintTo(const Statement& statement, std::ostream* out) {
  for (const Piece& piece : statement.pieces) {
    PrintTo(piece, out);
    *out << "; ";
  }
  *out << (statement.ownLine ? "own line, " : "") << (statement.endsLine ? "ends the line, " : "")
       << (statement.releasesPort ? "releases the port, " : "") << "looks for " << Quoted(statement.search)
       << " + " << statement.pastHit;
}

}  // namespace tarvik
