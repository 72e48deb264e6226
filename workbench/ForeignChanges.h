// What other programs do to the two files while they are open: a notice above the text tells of it, and the
// user says which version is to stay.
#pragma once

#include "workbench/ColouredInsertion.h"
#include "workbench/FileCommands.h"
#include "workbench/Notices.h"

namespace tarvik {

/// What a file holds and what its document does, to be looked at side by side.
struct Comparison {
  std::string file;
  std::string inFile;
  std::string here;
};

class ForeignChanges {
 public:
  ForeignChanges(Documents& documents, FileCommands& files, ColouredInsertion& insertion, Notices& notices);

  /// Looks at both files, and tells what was done to them.
  void Look();
  /// The same for one. True where another program has written to it.
  bool HasChanged(Document& document);

  /// Puts what the file holds now into the document, as one step of undo.
  void Reload(Document& document);
  /// The document is to take the file's place when it is saved next. The file's version is kept beforehand.
  void KeepMine(Document& document);

  /// The user wants to see a document beside another version of it.
  Signal<const Comparison&> WantsComparison;

 private:
  void Compare(const Document& document, const std::string& path);
  void TellOfChange(Document& document);
  void TellOfLoss(Document& document);
  void TellOfVersions(const Document& document, const Outcome<>& outcome);
  void TellOfKept(Document& document, const std::string& kept);

  Documents& documents_;
  FileCommands& files_;
  ColouredInsertion& insertion_;
  Notices& notices_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
