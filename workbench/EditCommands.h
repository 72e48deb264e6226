// What the Edit menu does to the selection of the file on top, by way of the clipboard, and which of its
// entries can be chosen.
#pragma once

#include "workbench/ColouredInsertion.h"
#include "workbench/Documents.h"

namespace tarvik {

/// Puts the pane's selection on the clipboard, as text and with its colours.
void CopySelection(const Pane& pane, Clipboard& clipboard);

/// What the clipboard holds for a pane: coloured text from a program that gives it, else plain text.
class Clipping {
 public:
  explicit Clipping(Clipboard& clipboard);
  [[nodiscard]] bool Empty() const { return rtf_.empty() && text_.text.empty(); }
  void ReplaceSelectionOf(Pane& pane) const;

 private:
  std::string rtf_;
  Converted text_;
};

class EditCommands {
 public:
  EditCommands(Documents& documents, ColouredInsertion& insertion)
      : documents_(documents), insertion_(insertion) {}

  void Copy();
  void Cut();
  /// Pastes the clipboard's text, with its colours when it comes from a program that gives them, as one step
  /// of undo.
  void Paste();
  void Delete();
  void SelectAll();
  /// In a text with no selection, puts the caret on a line of its own: a caret within a line goes behind a
  /// new line end at the line's end.
  void CheckAtLineBeginning();

  /// Fires when the program has put something of its own on the clipboard.
  Signal<> Copied;

 private:
  [[nodiscard]] bool Refuses() const;
  void DeleteSelection(Document& document);

  Documents& documents_;
  ColouredInsertion& insertion_;
};

}  // namespace tarvik
