#include "app/OutlinePanel.h"

#include <algorithm>

namespace tarvik {
namespace {

enum Page { kMacros = 1, kOutline = 2 };

}  // namespace

OutlinePanel::OutlinePanel(Form& form, Workbench& bench)
    : tabs(form, "OutlineTabs", 2),
      list(form, "OutlineList"),
      pause(form, "TimerOutline", 80, [this] { Fill(); }),
      bench_(bench) {
  tabs.Tabs(kMacros).Caption = "Macros";
  tabs.Tabs(kOutline).Caption = "Outline";
  Settings& settings = bench.settings;
  tabs.Click = [this, &settings] {
    settings.Change(settings.Outline, tabs.SelectedIndex() == kOutline ? 1 : 0);
  };
  connections_ = {
      settings.Outline.Changed.Connect([this] { Show(); }),
      bench.documents.tabs.SelectedItem.Changed.Connect([this] {
        if (list.Visible) pause.Begin();
      }),
  };
  for (Pane* const pane : {&bench.documents.joystickText, &bench.documents.macroText}) {
    connections_.push_back(pane->SelectionChanged.Connect([this] { FollowCaret(); }));
    connections_.push_back(pane->Edited.Connect([this](const PaneEdit& edit) {
      if (list.Visible && !edit.OnlyColours()) pause.Begin();
    }));
  }
  // Whoever walks through the list stays in it.
  list.MouseDown = [this](const Mouse&) {
    GoToRow();
    list.SetFocus();
  };
  list.DblClick = [this] { GoToRow(); };
  Show();
}

void OutlinePanel::Show() {
  list.Visible = bench_.settings.Outline != 0;
  tabs.Begin(list.Visible ? kOutline : kMacros);
  if (list.Visible) {
    Fill();
  } else {
    pause.Cancel();
  }
}

void OutlinePanel::Fill() {
  constexpr std::size_t kIndent = 4;
  rows_ = model::OutlineOf(bench_.models.Pair(), FileKindOf(bench_.documents.Active()));
  std::vector<std::string> lines;
  lines.reserve(rows_.size());
  for (const model::OutlineRow& row : rows_) {
    lines.push_back(std::string(kIndent * row.indent, ' ').append(row.text));
  }
  list.FillInOrder(std::move(lines));
  FollowCaret();
}

/// Rows that an edit has moved are put right at the end of the pause.
void OutlinePanel::FollowCaret() {
  if (!list.Visible || pause.timer.Enabled) return;
  const std::size_t caret = bench_.documents.Active().text.Selection().start;
  const auto behind = std::ranges::upper_bound(rows_, caret, {}, &model::OutlineRow::position);
  list.ListIndex = static_cast<int>(behind - rows_.begin()) - 1;
}

void OutlinePanel::GoToRow() {
  const auto row = static_cast<std::size_t>(list.ListIndex.Get());
  if (row >= rows_.size()) return;
  bench_.documents.Active().text.SelStart = rows_[row].position;
  bench_.documents.FocusActiveText();
}

}  // namespace tarvik
