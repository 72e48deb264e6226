// The coloured copies of the two files: RTF under the file's own name in a folder beside the executable. The
// files themselves stay plain text.
#pragma once

#include "workbench/Documents.h"

namespace tarvik {

class ColouredCopies {
 public:
  explicit ColouredCopies(Documents& documents) : documents_(documents) {}

  /// Stores the document as it looks now.
  void Save(const Document& document);
  [[nodiscard]] bool Exists(const Document& document) const;
  /// Shows the copy if there is one with exactly the text of the file on disk, which always wins. False: the
  /// pane is as it was.
  bool Load(Document& document);

 private:
  [[nodiscard]] std::string PathOf(const Document& document) const;

  Documents& documents_;
};

}  // namespace tarvik
