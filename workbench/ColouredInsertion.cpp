#include "workbench/ColouredInsertion.h"

namespace tarvik {

void ColouredInsertion::BeginColInsert() {
  documents_.values.LoadingFile = 1;
  documents_.Active().Undo.BeginCommand(documents_.settings.UndoMax);
}

void ColouredInsertion::EndColInsert() {
  documents_.values.LoadingFile = 0;
  Document& document = documents_.Active();
  document.Undo.Start = 1;  // a key that changed nothing may have asked for the next change to be absorbed
  documents_.TextChanged(document);
  document.text.SetFocus();
}

void ColouredInsertion::InsertColouredString(const std::string& text, Colour colour) {
  Document& document = documents_.Active();
  Pane& pane = document.text;
  const std::size_t place = pane.SelStart;
  pane.SelStart = place;
  ApplyFont(pane, documents_.settings);
  pane.SelColor = colour;
  pane.SelText = text;
  document.Caret = place + text.size();
  pane.SelStart = document.Caret;
  pane.SelColor = kBlack;
  pane.SetFocus();
}

void ColouredInsertion::InsertBlackText() {
  documents_.swatch.BackColor = kBlack;
  AddSpaceToColouredText();
  InsertColouredStringNoSpace(documents_.values.InsertionText, kBlack);
}

void ColouredInsertion::InsertBlack(const std::string& text) {
  Document& document = documents_.Active();
  const std::size_t place = document.text.SelStart;
  document.text.SelStart = place;
  document.text.SelColor = kBlack;
  document.text.SelText = text;
  document.Caret = place + text.size();
  documents_.swatch.BackColor = kBlack;
}

void ColouredInsertion::InsertBlackBlanks(std::size_t count) { InsertBlack(std::string(count, ' ')); }
void ColouredInsertion::InsertCarriageReturn() { InsertBlack("\r\n"); }

void ColouredInsertion::AddSpaceToColouredText() {
  const Pane& pane = documents_.Active().text;
  const std::size_t caret = pane.SelStart;
  if (caret == 0) return;
  const char before = pane.Characters()[caret - 1];
  if (before != ' ' && before != '\n')
    documents_.values.InsertionText = " " + documents_.values.InsertionText.Get();
}

}  // namespace tarvik
