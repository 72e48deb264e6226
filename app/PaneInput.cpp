#include "app/PaneInput.h"

namespace tarvik {

void PaneInput::Attach(Document& document) {
  Pane& pane = document.text;
  pane.KeyDown = [this, &document](Key& key) { KeyDown(document, key); };
  pane.KeyPress = [this, &document](int& character) { KeyPress(document, character); };
  pane.KeyUp = [this, &document](Key&) { KeyUp(document); };
  pane.Click = [this, &document] { RememberCaret(document); };
  pane.MouseUp = [this, &document](const Mouse&) { RememberCaret(document); };
  pane.GotFocus = [this, &document] { GotFocus(document); };
  pane.LostFocus = [&document] { document.SelLength = document.text.SelLength; };
  pane.Change = [this, &document] { Change(document); };
}

void PaneInput::KeyDown(Document& document, Key& key) {
  document.Caret = document.text.SelStart;
  if (key.shift == shift::kCtrl && RunShortcut(key)) {
    key = {};
    return;
  }
  desk_.ShowLineNumber(document, document.text.SelStart);
}

/// True when the key is a menu entry's. The entry runs only when it is enabled.
bool PaneInput::RunShortcut(const Key& key) {
  if (key.code < 'A' || key.code > 'Z') return false;
  const MenuItem* item = menus_.WithShortcut(std::string("Ctrl+") + static_cast<char>(key.code));
  if (!item) return false;
  if (item->Enabled) item->Click();
  return true;
}

void PaneInput::KeyPress(Document& document, int character) {
  document.Caret = document.text.SelStart;
  document.Undo.KeyPress(character, document.text.Characters().empty());
}

void PaneInput::RememberCaret(Document& document) {
  document.SelLength = document.text.SelLength;
  document.Caret = document.text.SelStart;
  desk_.ShowLineNumber(document, document.Caret);
}

void PaneInput::KeyUp(Document& document) {
  RememberCaret(document);
  if (document.SelLength == 0) desk_.swatch.BackColor = document.text.SelColor;
}

void PaneInput::GotFocus(Document& document) {
  RememberCaret(document);
  desk_.Select(document);
  desk_.updateUndoRedoMenus();
}

void PaneInput::Change(Document& document) {
  document.SelLength = 0;
  if (desk_.values.LoadingFile == 1) return;
  changed_(document);
  document.Undo.Start = 1;
}

}  // namespace tarvik
