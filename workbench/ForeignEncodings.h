// Files that are not in the code page: a notice above the text tells of it, and the user says whether the
// text is to be converted. Until then nothing takes the file's place.
#pragma once

#include "workbench/ColouredInsertion.h"
#include "workbench/FileCommands.h"
#include "workbench/Notices.h"

namespace tarvik {

class ForeignEncodings {
 public:
  ForeignEncodings(Documents& documents, FileCommands& files, ColouredInsertion& insertion, Notices& notices);

  /// Takes the text out of its encoding, as one step of undo.
  void Convert(Document& document);
  /// The text's bytes are to take the file's place when it is saved next.
  void KeepAsItIs(Document& document);

 private:
  void LookAt(Document& document);
  void WasEdited(Document& document);
  void Written(Document& document, const Outcome<>& outcome);
  void Tell(Document& document, const std::string& text);

  Documents& documents_;
  FileCommands& files_;
  ColouredInsertion& insertion_;
  Notices& notices_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
