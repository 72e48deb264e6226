// The earlier versions of the active document: each beside its text as it is now, to be put back whole or in
// the lines that are picked.
#pragma once

#include "tools/recovery/SideBySide.h"

namespace tarvik {

class EarlierVersions : public ToolForm {
 public:
  EarlierVersions(Workbench& bench, Shell& shell);

  Label Explanation{*this, "Explanation"};
  ListBox Versions{*this, "Versions"};  ///< a line for each, the newest first
  SideBySide texts{*this, bench_, "VersionText", "DocumentText"};
  CommandButton NextDifference{*this, "NextDifference", "Ne&xt difference",
                               &EarlierVersions::NextDifference_Click};
  CommandButton RestoreLines{*this, "RestoreLines", "Restore these &lines",
                             &EarlierVersions::RestoreLines_Click};
  CommandButton RestoreAll{*this, "RestoreAll", "Restore &all", &EarlierVersions::RestoreAll_Click};
  CommandButton Done{*this, "Done", "&Close", &EarlierVersions::Close};

  void NextDifference_Click() {
    texts.GoToNext();
    ShowWhatCanBeRestored();
  }
  void RestoreLines_Click() { Restore(texts.Picked()); }
  void RestoreAll_Click() { Restore(texts.Differences()); }

 private:
  void FillList();
  void ShowPicked();
  void ShowWhatCanBeRestored();
  [[nodiscard]] std::string Describe(const Version& version) const;
  /// Puts the version's lines into the document, in one step of undo.
  void Restore(const std::vector<Difference>& differences);

  std::vector<Version> versions_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
