// The journals of the two documents: each begins with the first change behind a save, and ends when the file
// is saved, or the user gives the text up.
#pragma once

#include "workbench/FileCommands.h"
#include "workbench/Journal.h"
#include "workbench/Notices.h"

namespace tarvik {

class UnsavedWork {
 public:
  UnsavedWork(JournalKeeper& keeper, Documents& documents, FileCommands& files, Notices& notices);

  /// The program ends: what the user was asked about and did not want needs no journal any more. What could
  /// not be saved has one at the next start.
  void End();

 private:
  struct Work {
    Work(JournalKeeper& keeper, Document& itsDocument);

    Document& document;
    Journal journal;
    std::vector<Connection> connections;
  };

  void Leaves(const Document& document);
  void Written(Document& document, const Outcome<>& outcome);
  void KeepsNothing(const Failure& failure);

  JournalKeeper& keeper_;
  FileCommands& files_;
  Notices& notices_;
  PerDocument<Work> work_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
