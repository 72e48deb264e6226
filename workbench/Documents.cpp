#include "workbench/Documents.h"

namespace tarvik {
namespace {

constexpr int kPaneIndent = 20;  // pixels

constexpr const char* kSavedStateTips[] = {
    " has no text and isn't saved",
    " is saved",
    " has been modified and isn't saved",
};

}  // namespace

Documents::Documents(Platform& services, Settings& theSettings, SharedValues& theValues, Errors& theErrors)
    : Component("Documents"),
      platform(services),
      settings(theSettings),
      values(theValues),
      errors(theErrors) {
  for (Pane* const hidden : {&scratch, &compare}) hidden->Visible = false;
}

void Documents::Say(const std::string& text) const { status.Panels(panel::kSaid).Text = text; }

void Documents::SayIsProtected(const Document& document) const {
  Say(TabOf(document).Caption.Get() + " is protected and can't be edited.");
}

void Documents::SayLost(std::size_t characters) const {
  const std::string many = characters == 1 ? "1 character is" : TextOf(characters) + " characters are";
  Say(many + " not in the code page of the files, and became \"?\"");
}

void Documents::ShowLineNumber(const Document& document) { ShowLine(document, document.Caret); }

void Documents::ShowCaretLine() { ShowLine(Active(), Active().text.SelStart); }

/// This is called at every key, so the panel is written only when the line has changed.
void Documents::ShowLine(const Document& document, std::size_t position) {
  const std::size_t line = 1 + document.text.GetLineFromChar(position);
  if (std::exchange(shownLine_, line) != line) status.Panels(panel::kLine).Text = "Line no: " + TextOf(line);
}

/// This is called at every key, so the panel is written only when the state has changed.
void Documents::UpdateSavedIcon() const {
  const Document& document = Active();
  const int image = document.Dirty + 2;
  const std::string& name = document.Name.Get().Text();
  const std::string_view state = kSavedStateTips[image - 1];
  Panel& panel = status.Panels(panel::kSavedState);
  panel.Picture = image;
  const std::string& shown = panel.ToolTipText;
  const bool isShown =
      shown.size() == name.size() + state.size() && shown.starts_with(name) && shown.ends_with(state);
  if (!isShown) panel.ToolTipText = name + std::string(state);
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

void Documents::ApplyLook(const Document& document) const {
  ApplyBackground(document);
  ApplyFont(document.text, settings);
}

void Documents::ApplyBackground(const Document& document) const {
  document.text.BackColor = (settings.*document.traits.background).Get();
}

/// A file that comes to the top puts its caret where it remembers it.
void Documents::GoTo(Document& document, Range place) {
  document.Caret = place.start;
  document.text.Select(place);
  if (&Active() != &document) Select(document);
  document.text.Select(place);
  FocusActiveText();
}

void Documents::Reformat() {
  const ProgramEdit edit(values);
  Say("Reformatting layout. Please wait ...");
  const Document& document = Active();
  ApplyFont(document.text, settings);
  document.text.SelStart = document.Caret;
}

void Documents::TextChanged(Document& document) {
  document.Dirty = saved::kModified;
  UpdateSavedIcon();
  if (document.Undo.Absorbs()) return document.Undo.Absorb();
  document.Undo.Open(settings.UndoMax);
  HistoryChanged();
  document.Undo.GoToNewest();
  RedoEnded();
}

void Documents::Reset() {
  const ProgramEdit edit(values);
  for (Document* const document : {&joystick, &macro}) document->Reset();
  tabs.Begin(1);
  status.Panels(panel::kInsert).Enabled = true;
  shownLine_.reset();
  UpdateSavedIcon();
}

}  // namespace tarvik
