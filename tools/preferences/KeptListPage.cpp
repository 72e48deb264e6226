#include "tools/preferences/KeptListPage.h"

#include <algorithm>
#include <utility>

#include "text/CodePage.h"

namespace tarvik {

KeptListPage::KeptListPage(Workbench& bench, Traits traits) : bench_(bench), traits_(std::move(traits)) {
  Attach();
}

void KeptListPage::Attach() {
  rowChanged_ = traits_.rows.ListIndex.Changed.Connect([this] {
    if (!filling_ && traits_.rows.ListIndex >= 0) ShowRecord();
  });
  const auto store = [this](std::size_t part, const std::string& text) {
    const int row = traits_.rows.ListIndex;
    if (filling_ || row < 0) return;
    traits_.list.SetPart(row + 1, part, text);
    if (part == 0) Fill(row);
  };
  for (std::size_t part = 0; part < traits_.parts.size(); ++part) {
    TextBox& box = *traits_.parts[part];
    box.Change = [store, &box, part] { store(part, box.Text); };
  }
  for (std::size_t i = 0; i < traits_.ticks.size(); ++i) {
    CheckBox& tick = *traits_.ticks[i];
    tick.Click = [this, store, &tick, part = traits_.parts.size() + i] {
      store(part, tick.Value.ToText());
      if (!filling_ && traits_.rows.ListIndex >= 0) traits_.save();
    };
  }
  traits_.remove.Click = [this] { Remove(); };
}

void KeptListPage::Show(int row) {
  Fill(row);
  ShowRecord();
}

/// The names, with the row in hand.
void KeptListPage::Fill(int row) {
  const bool before = std::exchange(filling_, true);
  traits_.rows.FillInOrder(traits_.list.Names());
  traits_.rows.ListIndex = std::min(row, traits_.list.Count() - 1);
  traits_.hint.Visible = traits_.list.Count() == 0;
  filling_ = before;
}

/// Without a record in hand the boxes are empty and grey.
void KeptListPage::ShowRecord() {
  const int row = traits_.rows.ListIndex;
  const bool any = row >= 0;
  const auto part = [this, row](std::size_t number) { return traits_.list.Part(row + 1, number); };
  filling_ = true;
  for (std::size_t i = 0; i < traits_.parts.size(); ++i) {
    traits_.parts[i]->Text = any ? part(i) : std::string();
    traits_.parts[i]->Enabled = any;
  }
  for (std::size_t i = 0; i < traits_.ticks.size(); ++i) {
    if (any) traits_.ticks[i]->Value = part(traits_.parts.size() + i) == "1" ? 1 : 0;
    traits_.ticks[i]->Enabled = any;
  }
  traits_.remove.Enabled = any;
  for (Control* const other : traits_.others) other->Enabled = any;
  filling_ = false;
}

void KeptListPage::Choose(std::size_t part, const std::string& filter) {
  const int row = traits_.rows.ListIndex;
  if (row < 0) return;
  Dialogs& dialogs = bench_.platform.dialogs;
  TextBox& box = *traits_.parts[part];
  const std::string folder = box.Text.Get().substr(0, box.Text.Get().rfind('\\') + 1);
  const std::string title = "Select the working directory for " + traits_.list.Part(row + 1, 0);
  const auto chosen =
      Ignore(filter.empty() ? dialogs.AskForFolder(title, folder)
                            : dialogs.AskForFile({FileDialogKind::Open, "", filter, folder, "", ""}));
  if (!chosen) return;
  box.Text = LowerCase(*chosen);
  traits_.list.SetPart(row + 1, part, box.Text);  // the same path may be another file now
  traits_.save();
}

void KeptListPage::Remove() {
  const int row = traits_.rows.ListIndex;
  if (row < 0) return;
  const std::string name = traits_.list.Part(row + 1, 0);
  const std::string menu = traits_.menu;
  const Answer answer = bench_.platform.dialogs.Show(
      {"Remove " + name + " from " + menu + "?",
       "Are you sure you want to remove " + name + " from the " + menu + " menu?", BoxIcon::Question,
       BoxButtons::YesNo});
  if (answer != Answer::Yes) return;
  Trap{bench_.errors, traits_.removal}(traits_.list.Remove(row + 1));
  traits_.save();
  Show(std::max(0, traits_.rows.ListIndex.Get()));
}

}  // namespace tarvik
