// Which lines of the two files differ from what was last read or saved.
#pragma once

#include "text/LineChanges.h"
#include "workbench/FileCommands.h"

namespace tarvik {

class ChangedLines {
 public:
  ChangedLines(Documents& documents, FileCommands& files);

  [[nodiscard]] const LineChanges& Of(const Document& document) const { return changes_.Of(document); }
  /// Nothing of the document is changed any more.
  Signal<const Document&> Begun;

 private:
  void Begin(const Document& document);
  void Follow(const Document& document);

  PerDocument<LineChanges> changes_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
