#include "tools/wizards/Wizard.h"

namespace tarvik {

Wizard::Wizard(const Traits& traits, Workbench& bench, Shell& shell)
    : GuidedForm(traits.name, traits.guide, bench, shell),
      frames(*this, traits.frames, static_cast<int>(pages.size())),
      buttons(*this, traits.buttons, 4),
      traits_(traits) {
  constexpr float kMargin = 5;
  Caption = std::string(traits.caption);
  for (int i = 0; i < frames.Count(); ++i) {
    frames(i).Caption = std::string(pages[static_cast<std::size_t>(i)].heading);
    frames(i).Left = kMargin;
    frames(i).Top = kMargin;
  }
  const char* const captions[] = {traits.finish, "Next", "Back", "Cancel"};
  for (int i = 0; i < buttons.Count(); ++i) {
    buttons(i).Caption = std::string(captions[i]);
    buttons(i).Click = [this, i] { Button_Click(i); };
  }
  buttons(kCancel).Cancel = true;
  Load = [this] { TurnTo(0); };
}

void Wizard::TurnTo(int page) {
  const int last = frames.Count() - 1;
  Page = page;
  buttons(kFinish).Enabled = page >= traits_.finishFrom;
  buttons(kNext).Enabled = page < last;
  buttons(kBack).Enabled = page > 0;
  frames(page).ToFront();
  Turned();
}

void Wizard::Button_Click(int index) {
  const int last = frames.Count() - 1;
  if (index == kNext) return TurnTo(std::min(Page + 1, last));
  if (index == kBack) return TurnTo(std::max(Page - 1, 0));
  if (index == kFinish && Page < last) return TurnTo(last);
  Close();
}

}  // namespace tarvik
