#include "app/NoticeBar.h"

namespace tarvik {

NoticeBar::NoticeBar(Form& form, Workbench& bench)
    : frame(form, "NoticeFrame"),
      text(form, "NoticeText"),
      commands(form, "NoticeCommand", kMostActions),
      bench_(bench),
      connections_{
          bench.notices.Changed.Connect([this] { Show(); }),
          bench.documents.tabs.SelectedItem.Changed.Connect([this] { Show(); }),
      } {
  frame.Visible = false;
  text.BackColor = ToggleLabel::kOff;
  for (int i = 0; i < kMostActions; ++i) commands(i).Click = [this, i] { Run(i); };
}

void NoticeBar::Show() {
  const Notice* const notice = bench_.notices.Of(bench_.documents.Active());
  if (notice) text.Caption = notice->text;
  for (int i = 0; i < kMostActions; ++i) {
    const bool any = notice && static_cast<std::size_t>(i) < notice->actions.size();
    commands(i).Visible = any;
    if (any) commands(i).Caption = notice->actions[static_cast<std::size_t>(i)].caption;
  }
  if (frame.Visible == (notice != nullptr)) return;
  frame.Visible = notice != nullptr;
  Resized();
}

void NoticeBar::Need(Pixels height) {
  if (std::exchange(height_, height) != height && frame.Visible) Resized();
}

/// The action may take the notice away in which it stands.
void NoticeBar::Run(int command) const {
  const Notice* const notice = bench_.notices.Of(bench_.documents.Active());
  const auto index = static_cast<std::size_t>(command);
  if (!notice || index >= notice->actions.size()) return;
  const NoticeAction action = notice->actions[index];
  action.run();
}

}  // namespace tarvik
