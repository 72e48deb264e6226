#include "app/ExplainPanel.h"

#include "language/Explain.h"

namespace tarvik {

ExplainPanel::ExplainPanel(Form& form, Workbench& bench)
    : frame(form, "ExplainFrame"),
      text(form, "ExplainText"),
      close(form, "ExplainClose", "Hide"),
      pause(form, "TimerExplain", 80, [this] { Explain(); }),
      bench_(bench) {
  frame.Visible = false;
  text.BackColor = ToggleLabel::kOff;
  Settings& settings = bench.settings;
  const auto follow = [this] {
    if (frame.Visible) pause.Begin();
  };
  connections_ = {
      settings.ExplainLine.Changed.Connect([this] { Show(); }),
      bench.documents.tabs.SelectedItem.Changed.Connect(follow),
  };
  for (Pane* const pane : {&bench.documents.joystickText, &bench.documents.macroText}) {
    connections_.push_back(pane->SelectionChanged.Connect(follow));
    connections_.push_back(pane->Edited.Connect([follow](const PaneEdit& edit) {
      if (!edit.OnlyColours()) follow();
    }));
  }
  close.Click = [this, &settings] {
    settings.Change(settings.ExplainLine, 0);
    bench_.documents.FocusActiveText();
  };
  Show();
}

void ExplainPanel::Show() {
  frame.Visible = bench_.settings.ExplainLine != 0;
  if (frame.Visible) {
    Explain();
  } else {
    pause.Cancel();
  }
}

void ExplainPanel::Explain() {
  const FileModels& models = bench_.models;
  const Document& document = bench_.documents.Active();
  const std::string words =
      model::Explain(models.Pair(), models.Names(), FileKindOf(document), document.text.Selection().start);
  text.Caption = words.empty() ? "There is no statement at the caret." : words;
}

}  // namespace tarvik
