// What the Edit menu does to the selection of the file on top, by way of the clipboard, and which of its
// entries can be chosen.
#pragma once

#include "app/Desk.h"
#include "controls/Menu.h"
#include "language/ColouredInsertion.h"

namespace tarvik {

class EditCommands {
 public:
  EditCommands(Desk& desk, ColouredInsertion& insertion, const Menus& menus, Toolbar& toolbar)
      : desk_(desk), insertion_(insertion), menus_(menus), toolbar_(toolbar) {}

  void Copy();
  void Cut();
  /// With its colours when it comes from a program that gives them; one step of undo.
  void Paste();
  void Delete();
  void SelectAll();
  /// Fits menus and toolbar to the selection of the file on top, and to the clipboard.
  void UpdateCCPButtons();
  /// In a text with no selection, puts the caret on a line of its own: a caret within a line goes behind a
  /// new line end at the line's end.
  void CheckAtLineBeginning();

 private:
  [[nodiscard]] bool Refuses() const;
  void DeleteSelection(Document& document);

  Desk& desk_;
  ColouredInsertion& insertion_;
  const Menus& menus_;
  Toolbar& toolbar_;
};

}  // namespace tarvik
