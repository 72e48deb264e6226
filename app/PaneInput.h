// What keyboard and mouse do in the two panes, told once for both: caret and selection memories, shortcuts,
// the line number, and the decision which change is a step of undo.
#pragma once

#include "app/Desk.h"
#include "controls/Menu.h"

namespace tarvik {

class PaneInput {
 public:
  /// `changed` marks the document as modified and records the change.
  PaneInput(Desk& desk, const Menus& menus, std::function<void(Document&)> changed)
      : desk_(desk), menus_(menus), changed_(std::move(changed)) {}

  /// Takes over the events of a document's pane.
  void Attach(Document& document);

 private:
  void KeyDown(Document& document, Key& key);
  void KeyPress(Document& document, int character);
  void KeyUp(Document& document);
  void GotFocus(Document& document);
  void Change(Document& document);
  void RememberCaret(Document& document);
  bool RunShortcut(const Key& key);

  Desk& desk_;
  const Menus& menus_;
  std::function<void(Document&)> changed_;
};

}  // namespace tarvik
