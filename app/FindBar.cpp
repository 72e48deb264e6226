#include "app/FindBar.h"

namespace tarvik {

FindBar::FindBar(Form& form, Workbench& bench)
    : frame(form, "FindFrame"),
      text(form, "FindText"),
      matchCase(form, "FindMatchCase", "Match case"),
      wholeWord(form, "FindWholeWord", "Whole word"),
      count(form, "FindCount"),
      previous(form, "FindPrevious", "Previous"),
      next(form, "FindNext", "Next"),
      close(form, "FindClose", "Done"),
      bench_(bench) {
  frame.Visible = false;
  connections_ = {
      bench_.search.Changed.Connect([this] { ShowCount(); }),
  };
  count.BackColor = ToggleLabel::kOff;
  text.ToolTipText =
      "Text to look for in both files; Enter goes on, Shift+Enter back, Escape to where you were";
  text.Change = [this] { LookFor(); };
  for (CheckBox* const option : {&matchCase, &wholeWord}) option->Click = [this] { LookFor(); };
  next.Click = [this] { Go(&IncrementalSearch::Next); };
  previous.Click = [this] { Go(&IncrementalSearch::Previous); };
  close.Click = [this] { Close(); };
}

void FindBar::Open() {
  if (!frame.Visible) bench_.search.Begin();
  const Document& document = bench_.documents.Active();
  const std::string selected = document.text.SelText;
  frame.Visible = true;
  const bool isWords = !selected.empty() && selected.find('\n') == std::string::npos;
  if (isWords && selected != text.Text.Get()) {
    text.Text = selected;
  } else {
    LookFor();
  }
  text.SelectAll();
  text.SetFocus();
}

void FindBar::LookFor() {
  if (!frame.Visible) return;
  const int options =
      (matchCase.Value == 1 ? find::kMatchCase : 0) + (wholeWord.Value == 1 ? find::kWholeWord : 0);
  bench_.search.LookFor(text.Text, options);
  text.SetFocus();  // the hit may be in the other file, whose pane has got it
}

void FindBar::Go(void (IncrementalSearch::*step)()) {
  (bench_.search.*step)();
  text.SetFocus();
}

void FindBar::ShowCount() {
  const IncrementalSearch& search = bench_.search;
  const bool any = search.Count() > 0;
  next.Enabled = any;
  previous.Enabled = any;
  if (text.Empty()) {
    count.Caption = std::string();
  } else if (!any) {
    count.Caption = "No hit";
  } else {
    const std::string all = TextOf(search.Count());
    count.Caption = search.InHand() > 0 ? TextOf(search.InHand()) + " of " + all : all + " hits";
  }
}

void FindBar::Close() {
  frame.Visible = false;
  bench_.search.End();
  bench_.documents.FocusActiveText();
}

void FindBar::Cancel() {
  bench_.search.GoBack();
  Close();
}

}  // namespace tarvik
