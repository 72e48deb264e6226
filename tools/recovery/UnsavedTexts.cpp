#include "tools/recovery/UnsavedTexts.h"

namespace tarvik {
UnsavedTexts::UnsavedTexts(Workbench& bench, Shell& shell) : ToolForm("UnsavedTexts", bench, shell) {
  Caption = "Texts that were not saved";
  Explanation.Caption =
      "These texts were not saved. Nothing happens to them, or to a file, until you say "
      "so.";
  Explanation.BackColor = ToggleLabel::kOff;
  BringBack.ToolTipText = "Opens the file and puts this text in its place, to be looked at and saved";
  KeepBoth.ToolTipText = "Writes this text into a new file beside the other one";
  ThrowAway.ToolTipText = "Forgets this text";
  Later.ToolTipText = "Leaves all as it is, until the next start";
  Later.Cancel = true;
  connections_ = {
      bench.recovery.Changed.Connect([this] { FillList(); }),
      Texts.ListIndex.Changed.Connect([this] { ShowPicked(); }),
  };
  FillList();
}

void UnsavedTexts::FillList() {
  const Recovery& recovery = bench_.recovery;
  std::vector<std::string> lines;
  for (const LeftText& left : recovery.Texts()) lines.push_back(recovery.Describe(left));
  const bool any = !lines.empty();
  Texts.FillInOrder(std::move(lines));
  Texts.ListIndex = any ? 0 : -1;
  for (CommandButton* const command : {&BringBack, &KeepBoth, &ThrowAway, &NextDifference})
    command->Enabled = any;
  ShowPicked();
}

void UnsavedTexts::ShowPicked() {
  const int picked = Texts.ListIndex;
  if (picked < 0) return texts.Show({}, {});
  const LeftText& left = bench_.recovery.Texts()[static_cast<std::size_t>(picked)];
  texts.Show(bench_.recovery.InFile(left).text, left.unsaved.text.text);
  NextDifference.Enabled = texts.Differ();
}

void UnsavedTexts::WithPicked(void (Recovery::*act)(const std::string& journal)) {
  const std::string journal = bench_.recovery.Texts()[static_cast<std::size_t>(Texts.ListIndex)].journal;
  (bench_.recovery.*act)(journal);
  if (bench_.recovery.Texts().empty()) Close();
}

}  // namespace tarvik
