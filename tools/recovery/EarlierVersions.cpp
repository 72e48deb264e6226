#include "tools/recovery/EarlierVersions.h"

#include <algorithm>

namespace tarvik {

EarlierVersions::EarlierVersions(Workbench& bench, Shell& shell) : ToolForm("EarlierVersions", bench, shell) {
  Caption = "Earlier versions";
  Explanation.BackColor = ToggleLabel::kOff;
  RestoreLines.ToolTipText =
      "Makes the marked lines that are selected, on either side, what they were; undo brings them back";
  RestoreAll.ToolTipText = "Makes the text what it was in this version; undo brings it back";
  Done.ToolTipText = "Leaves the text as it is";
  Done.Cancel = true;
  connections_ = {
      Versions.ListIndex.Changed.Connect([this] { ShowPicked(); }),
      texts.before.SelectionChanged.Connect([this] { ShowWhatCanBeRestored(); }),
      texts.after.SelectionChanged.Connect([this] { ShowWhatCanBeRestored(); }),
  };
  FillList();
}

void EarlierVersions::FillList() {
  const Document& document = bench_.documents.Active();
  versions_ = bench_.versions.Of(document);
  std::vector<std::string> lines;
  for (const Version& version : versions_) lines.push_back(Describe(version));
  const bool any = !lines.empty();
  Explanation.Caption =
      any ? "What " + document.Path.Get() +
                " held when it was saved, the newest first. Marked lines differ from the text "
                "in the editor."
          : "There is no earlier version of " + document.Path.Get() +
                ". While backups are made, each save keeps one.";
  Versions.FillInOrder(std::move(lines));
  Versions.ListIndex = any ? 0 : -1;
  ShowPicked();
}

std::string EarlierVersions::Describe(const Version& version) const {
  const auto state = bench_.platform.files.State(bench_.versions.PathOf(bench_.documents.Active(), version));
  std::string line = version.saved;
  std::ranges::replace(line, '.', ':');  // which stand in its file's name for colons
  if (state) line += ", " + TextOf(state->size) + (state->size == 1 ? " byte" : " bytes");
  if (version.author == Author::OtherProgram) line += ", by another program";
  return line;
}

void EarlierVersions::ShowPicked() {
  const Document& document = bench_.documents.Active();
  const Trap trap{bench_.errors, "EarlierVersions ShowPicked"};
  const int picked = Versions.ListIndex;
  const auto text = picked < 0
                        ? std::nullopt
                        : trap(bench_.versions.TextOf(document, versions_[static_cast<std::size_t>(picked)]));
  if (picked >= 0 && !text) Say("This version can't be opened");
  if (text) {
    texts.Show(*text, std::string(document.text.Characters()));
  } else {
    texts.Show({}, {});
  }
  ShowWhatCanBeRestored();
}

void EarlierVersions::ShowWhatCanBeRestored() {
  const bool isProtected = bench_.documents.Active().text.Locked;
  NextDifference.Enabled = texts.Differ();
  RestoreAll.Enabled = texts.Differ() && !isProtected;
  RestoreLines.Enabled = !texts.Picked().empty() && !isProtected;
}

/// From the last one to the first, so that those before it stand where they stood.
void EarlierVersions::Restore(const std::vector<Difference>& differences) {
  Document& document = bench_.documents.Active();
  bench_.insertion.BeginColInsert();
  for (auto each = differences.rbegin(); each != differences.rend(); ++each) {
    document.text.Select(each->after);
    document.text.ReplaceSelection(RichText(texts.TextBefore(each->before)));
  }
  document.Caret = document.text.SelStart;
  bench_.insertion.EndColInsert();
  Say("The lines are as they were; Undo brings the others back");
  ShowPicked();
}

}  // namespace tarvik
