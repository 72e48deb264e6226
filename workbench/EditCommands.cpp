#include "workbench/EditCommands.h"

#include <algorithm>

#include "text/Rtf.h"

namespace tarvik {
void CopySelection(const Pane& pane, Clipboard& clipboard) { clipboard.Put(pane.SelText, pane.SelRTF); }

Clipping::Clipping(Clipboard& clipboard) : rtf_(clipboard.Rtf()) {
  if (LooksLikeRtf(rtf_)) return;
  rtf_.clear();
  text_ = clipboard.Text();
}

void Clipping::ReplaceSelectionOf(Pane& pane) const {
  if (rtf_.empty()) {
    pane.SelText = text_.text;
    if (text_.lost > 0) pane.CharactersLost(text_.lost);
  } else {
    pane.SelRTF = rtf_;
  }
}

void EditCommands::Copy() {
  CopySelection(documents_.Active().text, documents_.platform.clipboard);
  Copied();
}

/// A protected file takes none of the user's edits, and says so.
bool EditCommands::Refuses() const {
  if (!documents_.Active().text.Locked) return false;
  documents_.SayIsProtected(documents_.Active());
  return true;
}

void EditCommands::DeleteSelection(Document& document) {
  if (document.text.SelLength == 0) return;
  document.Undo.BeginCommand(documents_.settings.UndoMax);
  document.text.SelText = std::string();
  document.Caret = document.text.SelStart;
}

void EditCommands::Cut() {
  Copy();
  if (!Refuses()) DeleteSelection(documents_.Active());
}

void EditCommands::Delete() {
  if (!Refuses()) DeleteSelection(documents_.Active());
}

void EditCommands::Paste() {
  if (Refuses()) return;
  const Clipping clipping(documents_.platform.clipboard);
  if (clipping.Empty()) return;
  insertion_.BeginColInsert();
  Document& document = documents_.Active();
  ApplyFont(document.text, documents_.settings);
  clipping.ReplaceSelectionOf(document.text);
  document.Caret = document.text.SelStart;
  document.text.SetFocus();
  insertion_.EndColInsert();
}

void EditCommands::SelectAll() {
  Document& document = documents_.Active();
  document.Caret = 0;
  document.text.Select({0, document.text.Characters().size()});
}

void EditCommands::CheckAtLineBeginning() {
  Pane& pane = documents_.Active().text;
  const std::string_view text = pane.Characters();
  const std::size_t caret = pane.SelStart;
  if (!text.empty() && pane.SelLength == 0 && caret > 0 && text[caret - 1] != '\n') {
    pane.SelStart = std::min(text.find('\r', caret), text.size());
    insertion_.InsertCarriageReturn();
  }
  pane.SetFocus();
}

}  // namespace tarvik
