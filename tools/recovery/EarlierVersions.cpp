#include "tools/recovery/EarlierVersions.h"

#include <algorithm>

namespace tarvik {

EarlierVersions::EarlierVersions(Workbench& bench, Shell& shell) : ToolForm("EarlierVersions", bench, shell) {
  Caption = "Earlier versions";
  Explanation.BackColor = ToggleLabel::kOff;
  RestoreLines.ToolTipText =
      "Puts the marked lines that are selected in the earlier version back into the text; undo takes them "
      "out";
  RestoreAll.ToolTipText = "Makes the text what it was in this version; undo brings it back";
  Done.ToolTipText = "Leaves the text as it is";
  Done.Cancel = true;
  connections_ = {
      Versions.ListIndex.Changed.Connect([this] { ShowPicked(); }),
      texts.before.SelectionChanged.Connect([this] { RestoreLines.Enabled = !texts.Picked().empty(); }),
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
          : "Nothing is kept of " + document.Path.Get() +
                " yet. Each save keeps a version while backups are made.";
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
  const int picked = Versions.ListIndex;
  std::string here(document.text.Characters());
  if (picked < 0) {
    texts.Show(here, here);
  } else {
    const Trap trap{bench_.errors, "EarlierVersions ShowPicked"};
    const Version& version = versions_[static_cast<std::size_t>(picked)];
    const auto bytes = trap(bench_.platform.files.Read(bench_.versions.PathOf(document, version)));
    if (!bytes) bench_.documents.Say("This version can't be opened");
    const std::string text = bytes ? WithPaneLineBreaks(*bytes) : here;
    texts.Show(text, std::move(here));
  }
  for (CommandButton* const command : {&RestoreAll, &NextDifference}) command->Enabled = texts.Differ();
  RestoreLines.Enabled = !texts.Picked().empty();
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
  bench_.documents.Say("The lines are back; Undo takes them out again");
  ShowPicked();
}

}  // namespace tarvik
