// The one way in which tools write text into a document: pieces in their colours, between the opening and the
// closing of a group, which is one step of undo.
#pragma once

#include "workbench/Documents.h"

namespace tarvik {

/// Marks the document of the selected tab as changed and records the change for undo; the editor's part of
/// it.
using DocumentChanged = std::function<void(Document&)>;

class ColouredInsertion {
 public:
  explicit ColouredInsertion(Documents& documents) : documents_(documents) {}

  void BeginColInsert();
  void EndColInsert();

  /// Writes the text at the caret of the document of the selected tab. What the user types next is black.
  void InsertColouredString(const std::string& text, Colour colour);
  /// The same, for a piece that joins the one before it.
  void InsertColouredStringNoSpace(const std::string& text, Colour colour) {
    InsertColouredString(text, colour);
  }
  /// Writes InsertionText in black, with a blank before it where the caret needs one.
  void InsertBlackText();
  void InsertBlackBlanks(std::size_t count = 5);
  void InsertCarriageReturn();
  /// Puts a blank before InsertionText unless the caret stands at the start, behind a blank or at a line's
  /// start.
  void AddSpaceToColouredText();

 private:
  void InsertBlack(const std::string& text);

  Documents& documents_;
};

}  // namespace tarvik
