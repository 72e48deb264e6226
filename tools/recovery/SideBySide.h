// Two texts beside each other, with the lines marked in which they differ.
#pragma once

#include "text/Differences.h"
#include "workbench/ToolForm.h"

namespace tarvik {

class SideBySide {
 public:
  /// Its panes are the form's, by these names.
  SideBySide(Form& form, Workbench& bench, std::string_view beforeName, std::string_view afterName);

  Pane before;
  Pane after;

  /// Both stand at the first place where they differ.
  void Show(const std::string& beforeText, const std::string& afterText);
  [[nodiscard]] bool Differ() const { return !differences_.empty(); }
  [[nodiscard]] const std::vector<Difference>& Differences() const { return differences_; }
  /// Those that the selection touches in the text where the user selected last, or in which the last one that
  /// was gone to has lines.
  [[nodiscard]] std::vector<Difference> Picked() const;
  [[nodiscard]] std::string TextBefore(Range range) const {
    return std::string(before.Characters().substr(range.start, range.length));
  }
  /// Goes to the next difference in both texts, and from the last one to the first.
  void GoToNext();

 private:
  std::vector<Difference> differences_;
  std::size_t next_ = 0;
  const Pane* selectedIn_ = &before;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
