// What keyboard and mouse do in the two panes, told once for both: caret and selection memories, shortcuts,
// the line number, and the decision which change is a step of undo.
#pragma once

#include "app/SuggestionList.h"
#include "controls/Menu.h"

namespace tarvik {

class PaneInput {
 public:
  struct Hooks {
    /// Shows a pop-up menu at the pointer or the caret.
    std::function<void(std::string_view)> popUp;
    /// Fits the menus to the selection.
    std::function<void()> updateCCPButtons;
    /// Goes on to the next hit while a search is on and its hit stands untouched in the document.
    std::function<bool(const Document&)> findNext;
    /// Goes from the name at the caret to where it is defined.
    std::function<void()> goToDefinition;
    /// What is offered at the caret: whether a key is for it, and word of each change of the text.
    SuggestionList* suggestions;
  };

  PaneInput(Documents& documents, const Menus& menus, const Menus& popUps, Hooks hooks)
      : documents_(documents), menus_(menus), popUps_(popUps), hooks_(std::move(hooks)) {}

  /// Takes over the events of a document's pane.
  void Attach(Document& document);

 private:
  void KeyDown(Document& document, Key& key);
  void KeyPress(Document& document, int character);
  void KeyUp(Document& document);
  void MouseDown(const Document& document, const Mouse& mouse);
  void MouseUp(Document& document, const Mouse& mouse);
  void GotFocus(Document& document);
  void Change(Document& document);
  void RememberCaret(Document& document);
  /// The caret of a pane moved, or text before it came or went.
  void CaretMoved(const Document& document) const;
  /// Changes between inserting and overtyping in both files, and tells so in the status bar.
  void TurnOvertypeOver();
  void ShowHelp(const std::string& keyword) const;

  Documents& documents_;
  const Menus& menus_;
  const Menus& popUps_;
  Hooks hooks_;
  bool typing_ = false;  // a key that types is down
  std::vector<Connection> connections_;
};

}  // namespace tarvik
