#include "app/PaneInput.h"

#include "workbench/HelpTopics.h"

namespace tarvik {
namespace {

/// The word that the caret stands in, before or behind.
std::string WordAt(const Pane& pane) {
  constexpr std::string_view kBetween = " \t\r\n(),=";
  const std::string_view text = pane.Characters();
  const std::size_t caret = pane.Selection().start;
  const std::size_t before = caret == 0 ? std::string_view::npos : text.find_last_of(kBetween, caret - 1);
  const std::size_t start = before == std::string_view::npos ? 0 : before + 1;
  return std::string(text.substr(start, text.find_first_of(kBetween, caret) - start));
}

}  // namespace

void PaneInput::Attach(Document& document) {
  Pane& pane = document.text;
  pane.KeyDown = [this, &document](Key& key) { KeyDown(document, key); };
  pane.KeyPress = [this, &document](int& character) { KeyPress(document, character); };
  pane.MouseDown = [this, &document](const Mouse& mouse) { MouseDown(document, mouse); };
  pane.SelChange = [this] { hooks_.updateCCPButtons(); };
  pane.KeyUp = [this, &document](Key&) { KeyUp(document); };
  pane.Click = [this, &document] { RememberCaret(document); };
  pane.MouseUp = [this, &document](const Mouse& mouse) { MouseUp(document, mouse); };
  pane.GotFocus = [this, &document] { GotFocus(document); };
  pane.LostFocus = [&document] { document.SelLength = document.text.SelLength; };
  pane.Change = [this, &document] { Change(document); };
  connections_.push_back(pane.SelectionChanged.Connect([this, &document] { CaretMoved(document); }));
  connections_.push_back(
      pane.CharactersLost.Connect([this](std::size_t characters) { documents_.SayLost(characters); }));
  connections_.push_back(pane.Edited.Connect([this, &document](const PaneEdit& edit) {
    if (!edit.OnlyColours()) CaretMoved(document);
  }));
}

void PaneInput::CaretMoved(const Document& document) const {
  if (&document == &documents_.Active()) documents_.ShowCaretLine();
}

void PaneInput::KeyDown(Document& document, Key& key) {
  document.Caret = document.text.SelStart;
  if (hooks_.suggestions->TakesKey(key) || menus_.RunCtrlLetter(key)) {
    key = {};
    return;
  }
  const bool enter = key.code == key::kEnter || key.code == key::kKeypadEnter;
  if (enter && key.shift == 0 && hooks_.findNext(document)) {
    key = {};
    return;
  }
  if (key.code == key::kInsert && key.shift == 0) TurnOvertypeOver();
  if (key.code == key::kEscape) hooks_.popUp("mnuInsert");
  if (key.code != key::kF1) return;
  const std::string selected = document.text.SelText;
  const std::string keyword = selected.empty() ? WordAt(document.text) : selected;
  if (!keyword.empty()) ShowHelp(keyword);
}

void PaneInput::TurnOvertypeOver() {
  const bool overtype = !documents_.joystick.text.Overtype;
  for (const Document* document : {&documents_.joystick, &documents_.macro})
    document->text.Overtype = overtype;
  documents_.status.Panels(panel::kInsert).Enabled = !overtype;
}

void PaneInput::ShowHelp(const std::string& keyword) const {
  documents_.platform.help.ShowKeyword(HelpFilePath(documents_.platform), keyword);
}

/// Ctrl with a click on a name leads to where it is defined.
void PaneInput::MouseUp(Document& document, const Mouse& mouse) {
  RememberCaret(document);
  const bool leads = mouse.button == button::kLeft && mouse.shift == shift::kCtrl;
  if (leads && document.text.SelLength == 0) hooks_.goToDefinition();
}

/// The right button's pop-up, with what can be done here and now.
void PaneInput::MouseDown(const Document& document, const Mouse& mouse) {
  if (mouse.button != button::kRight) return;
  hooks_.updateCCPButtons();
  struct Row {
    const char* entry;
    const char* like;  // the entry of the menu bar
  };
  constexpr Row kRows[] = {
      {"mnuRHMCut", "mnuEditCut"},
      {"mnuRHMCopy", "mnuEditCopy"},
      {"mnuRHMDelete", "mnuEditDelete"},
      {"mnuRHMPaste", "mnuEditPaste"},
      {"mnuRHMUndo", "mnuEditUndo"},
      {"mnuRHMRedo", "mnuEditRedo"},
      {"mnuRHMColoursSelection", "mnuEditCut"},
  };
  for (const Row& row : kRows) popUps_(row.entry).Enabled = menus_(row.like).Enabled;
  const bool joystick = document.IsJoystick();
  popUps_("mnuRHMProtect").Enabled = !joystick;
  for (const char* const entry : {"mnuRHMGoto", "mnuRHMIdentify", "mnuRHMDivider8"}) {
    popUps_(entry).Visible = joystick;
  }
  popUps_("mnuRHMUpdateMacros").Visible = !joystick;
  hooks_.popUp("mnuRHMouse");
}

void PaneInput::KeyPress(Document& document, int character) {
  typing_ = character != key::kEscape;
  document.Caret = document.text.SelStart;
  document.Undo.KeyPress(character, document.text.Characters().empty());
}

void PaneInput::RememberCaret(Document& document) {
  document.SelLength = document.text.SelLength;
  document.Caret = document.text.SelStart;
  hooks_.updateCCPButtons();
}

void PaneInput::KeyUp(Document& document) {
  typing_ = false;
  RememberCaret(document);
  if (document.SelLength == 0) documents_.swatch.BackColor = document.text.SelColor;
}

void PaneInput::GotFocus(Document& document) {
  RememberCaret(document);
  documents_.Select(document);
  documents_.HistoryChanged();
}

void PaneInput::Change(Document& document) {
  document.SelLength = 0;
  if (documents_.values.LoadingFile == 1) return;
  // A change that no key has typed, such as a drop, is a step of its own.
  const bool isTyped = std::exchange(typing_, false);
  if (!isTyped) document.Undo.BeginCommandBehindItsChange(documents_.settings.UndoMax);
  documents_.TextChanged(document);
  document.Undo.Start = 1;
  using enum SuggestionList::Change;
  hooks_.suggestions->TextChanged(isTyped ? ByTyping : Otherwise);
}

}  // namespace tarvik
