#include "tools/find/RenameForm.h"

namespace tarvik {

RenameForm::RenameForm(Workbench& bench, Shell& shell)
    : ToolForm("RenameForm", bench, shell), name_(bench.rewriting.NameAtCaret()) {
  Caption = "Rename everywhere";
  for (Label* const label : {&Found, &Why}) label->BackColor = ToggleLabel::kOff;
  NewName.Text = name_ ? name_->name : std::string();
  NewName.Change = [this] { Judge(); };
  NewName.SelectAll();
  NewName.ToolTipText = "The new name, in both files";
  InRemarks.Click = [this] { ShowPlaces(); };
  InRemarks.ToolTipText = "Also changes the name where it stands as a word in a remark";
  Rename.Default = true;
  Rename.ToolTipText = "Changes all these places; one step of undo in each file brings them back";
  Cancelled.Cancel = true;
  Cancelled.ToolTipText = "Leaves the name as it is";
  ShowPlaces();
  Judge();
}

void RenameForm::ShowPlaces() {
  if (!name_) return;
  const auto places = bench_.definitions.Describe(bench_.rewriting.PlacesOf(name_->name, Comments()));
  std::vector<std::string> lines;
  lines.reserve(places.size());
  for (const Definitions::Place& place : places) lines.push_back(place.words);
  Found.Caption =
      name_->name + " stands in " + TextOf(lines.size()) + (lines.size() == 1 ? " place:" : " places:");
  Places.FillInOrder(std::move(lines));
}

void RenameForm::Judge() {
  const std::string& name = NewName.Text.Get();
  const bool isSame = !name_ || name == name_->name;
  const auto why =
      isSame ? std::nullopt : model::WhyNoName(bench_.models.Names(), name_->kind, name_->name, name);
  Why.Caption = why.value_or(std::string());
  Rename.Enabled = !isSame && !why;
}

void RenameForm::Rename_Click() {
  const std::string from = name_->name;
  const std::string to = NewName.Text.Get();
  const model::InComments comments = Comments();
  Workbench& bench = bench_;
  Close();
  bench.rewriting.Rename(from, to, comments);
}

void AskForName(Workbench& bench, Shell& shell) {
  if (!bench.rewriting.NameAtCaret())
    return bench.documents.Say("There is no macro and no flag at the caret.");
  shell.ShowModal(shell.Tool<RenameForm>());
}

}  // namespace tarvik
