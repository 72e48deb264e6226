#include "workbench/EditCommands.h"

#include <algorithm>

#include "text/Rtf.h"

namespace tarvik {
namespace {

constexpr int kCutButton = 7;
constexpr int kCopyButton = 8;
constexpr int kPasteButton = 9;

}  // namespace

void CopySelection(const Pane& pane, Clipboard& clipboard) { clipboard.Put(pane.SelText, pane.SelRTF); }

Clipping::Clipping(Clipboard& clipboard) : rtf_(clipboard.Rtf()) {
  if (LooksLikeRtf(rtf_)) return;
  rtf_.clear();
  text_ = clipboard.Text();
}

void Clipping::ReplaceSelectionOf(Pane& pane) const {
  if (rtf_.empty()) {
    pane.SelText = text_;
  } else {
    pane.SelRTF = rtf_;
  }
}

void EditCommands::Copy() {
  CopySelection(desk_.Active().text, desk_.platform.clipboard);
  UpdateCCPButtons();
}

/// A protected file takes none of the user's edits, and says so.
bool EditCommands::Refuses() const {
  if (!desk_.Active().text.Locked) return false;
  desk_.SayIsProtected(desk_.Active());
  return true;
}

void EditCommands::DeleteSelection(Document& document) {
  if (document.text.SelLength == 0) return;
  document.Undo.BeginCommand(desk_.settings.UndoMax);
  document.text.SelText = std::string();
  document.Caret = document.text.SelStart;
}

void EditCommands::Cut() {
  Copy();
  if (!Refuses()) DeleteSelection(desk_.Active());
}

void EditCommands::Delete() {
  if (!Refuses()) DeleteSelection(desk_.Active());
}

void EditCommands::Paste() {
  if (Refuses()) return;
  const Clipping clipping(desk_.platform.clipboard);
  if (clipping.Empty()) return;
  insertion_.BeginColInsert();
  Document& document = desk_.Active();
  ApplyFont(document.text, desk_.settings);
  clipping.ReplaceSelectionOf(document.text);
  document.Caret = document.text.SelStart;
  document.text.SetFocus();
  insertion_.EndColInsert();
}

void EditCommands::SelectAll() {
  Document& document = desk_.Active();
  document.Caret = 0;
  document.text.Select({0, document.text.Characters().size()});
}

void EditCommands::UpdateCCPButtons() {
  const bool selected = desk_.Active().text.SelLength > 0;
  for (const char* const entry : {"mnuEditCut", "mnuEditCopy", "mnuEditDelete"}) {
    menus_(entry).Enabled = selected;
  }
  for (const int button : {kCutButton, kCopyButton}) toolbar_.Buttons(button).Enabled = selected;
  const bool text = desk_.platform.clipboard.HasText();
  menus_("mnuEditPaste").Enabled = text;
  toolbar_.Buttons(kPasteButton).Enabled = text;
}

void EditCommands::CheckAtLineBeginning() {
  Pane& pane = desk_.Active().text;
  const std::string_view text = pane.Characters();
  const std::size_t caret = pane.SelStart;
  if (!text.empty() && pane.SelLength == 0 && caret > 0 && text[caret - 1] != '\n') {
    pane.SelStart = std::min(text.find('\r', caret), text.size());
    insertion_.InsertCarriageReturn();
  }
  pane.SetFocus();
}

}  // namespace tarvik
