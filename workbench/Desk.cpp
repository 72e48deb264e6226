#include "workbench/Desk.h"

namespace tarvik {
namespace {

constexpr int kPaneIndent = 20;  // pixels

constexpr const char* kSavedStateTips[] = {
    " has no text and isn't saved",
    " is saved",
    " has been modified and isn't saved",
};

}  // namespace

void Desk::Say(const std::string& text) const { status.Panels(1).Text = text; }

void Desk::SayIsProtected(const Document& document) const {
  Say(TabOf(document).Caption.Get() + " is protected and can't be edited.");
}

void Desk::ShowLineNumber(const Document& document) const { ShowLine(document, document.Caret); }

void Desk::ShowCaretLine() const { ShowLine(Active(), Active().text.SelStart); }

void Desk::ShowLine(const Document& document, std::size_t position) const {
  status.Panels(3).Text = "Line no: " + TextOf(1 + document.text.GetLineFromChar(position));
}

void Desk::UpdateSavedIcon() const {
  const Document& document = Active();
  const int image = document.Dirty + 2;
  status.Panels(2).Picture = image;
  status.Panels(2).ToolTipText = document.Name.Get().Text() + kSavedStateTips[image - 1];
}

void ApplyFont(Pane& pane, const Settings& settings) {
  pane.SelIndent = kPaneIndent;
  ApplyFontOnly(pane, settings);
}

void ApplyFontOnly(Pane& pane, const Settings& settings) {
  pane.SelFontName = settings.TextFontName;
  pane.SelBold = settings.TextFontBold != 0;
  pane.SelFontSize = static_cast<float>(settings.TextFontSize);
}

void Desk::ApplyLook(const Document& document) const {
  ApplyBackground(document);
  ApplyFont(document.text, settings);
}

void Desk::ApplyBackground(const Document& document) const {
  document.text.BackColor = (settings.*document.traits.background).Get();
}

}  // namespace tarvik
