// What a click in the Composer does to the files: the caret goes behind the statement where the joystick file
// has it, or the statement is written.
#pragma once

#include "language/Statements.h"
#include "workbench/Shell.h"

namespace tarvik {

class StatementWriter {
 public:
  explicit StatementWriter(Workbench& bench) : bench_(bench) {}

  /// Looks for the text in the joystick file, which comes to the top for it, and puts the caret behind the
  /// first hit. False: it is not there, or the file is empty.
  bool FindButton(const std::string& text);
  /// Goes to the statement, unless `alwaysInsert` says not to look for it, or writes it. True when it was
  /// written.
  bool FindOrWrite(const Statement& statement, bool alwaysInsert);
  /// Writes it into the file on top, as one step of undo.
  void Write(const Statement& statement);

 private:
  void WritePiece(const Piece& piece);

  Workbench& bench_;
};

}  // namespace tarvik
