// What changes many places of the two files at once, by what they mean: a name in another, and blanks that
// line up what belongs together. Each is one step of undo in each file.
#pragma once

#include "language/Places.h"
#include "workbench/ColouredInsertion.h"
#include "workbench/FileModels.h"

namespace tarvik {

class Rewriting {
 public:
  Rewriting(Documents& documents, const FileModels& models, ColouredInsertion& insertion)
      : documents_(documents), models_(models), insertion_(insertion) {}

  /// The macro or flag at the caret of the file on top; none where there is none.
  [[nodiscard]] std::optional<model::NameHere> NameAtCaret() const;
  /// All places of a macro or flag.
  [[nodiscard]] std::vector<model::Mention> PlacesOf(const std::string& name,
                                                     model::InComments comments) const;
  /// Gives a macro or flag another name at all its places, unless one of them is in a protected file, which
  /// the status bar tells then. The name has been found good.
  void Rename(const std::string& name, const std::string& newName, model::InComments comments);

  /// Lines up the lines that the selection of the file on top touches, or all where nothing is selected, and
  /// says how many it has changed.
  void TidyUp();

 private:
  void Replace(Document& document, const std::vector<Replacement>& replacements);

  Documents& documents_;
  const FileModels& models_;
  ColouredInsertion& insertion_;
};

}  // namespace tarvik
