#include "tools/recovery/UnsavedTexts.h"

namespace tarvik {
namespace {

constexpr int kNoWrapping = 2000;
constexpr Colour kGone = Rgb(178, 24, 24);
constexpr Colour kCome = Rgb(0, 112, 48);

/// Black, but for the lines that the other text lacks.
RichText Marked(const std::string& text, const std::vector<Difference>& differences, Range Difference::*side,
                Colour colour) {
  RichText marked(text);
  for (const Difference& difference : differences) {
    const Range range = difference.*side;
    marked.colours.Replace(range, ColourRuns(range.length, colour));
  }
  return marked;
}

}  // namespace

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
  for (Pane* const pane : {&FileText, &UnsavedText}) {
    ApplyFont(*pane, bench.settings);
    pane->Locked = true;
    pane->RightMargin = kNoWrapping;
  }
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
  differences_.clear();
  next_ = 0;
  const int picked = Texts.ListIndex;
  if (picked < 0) {
    for (Pane* const pane : {&FileText, &UnsavedText}) pane->SetContent({});
    return;
  }
  const LeftText& left = bench_.recovery.Texts()[static_cast<std::size_t>(picked)];
  const std::string inFile = bench_.recovery.InFile(left).text;
  const std::string& unsaved = left.unsaved.text.text;
  differences_ = DifferencesOf(inFile, unsaved);
  FileText.SetContent(Marked(inFile, differences_, &Difference::before, kGone));
  UnsavedText.SetContent(Marked(unsaved, differences_, &Difference::after, kCome));
  NextDifference.Enabled = !differences_.empty();
  if (!differences_.empty()) NextDifference_Click();
}

void UnsavedTexts::NextDifference_Click() {
  const Difference& difference = differences_[next_];
  next_ = (next_ + 1) % differences_.size();
  FileText.Select(difference.before);
  UnsavedText.Select(difference.after);
}

void UnsavedTexts::WithPicked(void (Recovery::*act)(const std::string& journal)) {
  const std::string journal = bench_.recovery.Texts()[static_cast<std::size_t>(Texts.ListIndex)].journal;
  (bench_.recovery.*act)(journal);
  if (bench_.recovery.Texts().empty()) Close();
}

}  // namespace tarvik
