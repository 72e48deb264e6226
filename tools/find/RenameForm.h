// The window that gives a macro or a flag another name in both files, and shows all places first.
#pragma once

#include "workbench/ToolForm.h"

namespace tarvik {

class RenameForm : public ToolForm {
 public:
  RenameForm(Workbench& bench, Shell& shell);

  TextBox NewName{*this, "NewName"};
  CheckBox InRemarks{*this, "InRemarks", "In &remarks, too"};
  Label Found{*this, "Found"};      ///< how many places there are
  ListBox Places{*this, "Places"};  ///< a line for each
  Label Why{*this, "Why"};          ///< why the name will not do
  CommandButton Rename{*this, "Rename", "Re&name", &RenameForm::Rename_Click};
  CommandButton Cancelled{*this, "Cancelled", "Cancel", &RenameForm::Close};

  void Rename_Click();

 private:
  void ShowPlaces();
  void Judge();
  [[nodiscard]] model::InComments Comments() const {
    return InRemarks.Value == 1 ? model::InComments::Yes : model::InComments::No;
  }

  std::optional<model::NameHere> name_;
};

/// Asks for another name of the macro or flag at the caret. Where there is none the status bar says so.
void AskForName(Workbench& bench, Shell& shell);

}  // namespace tarvik
