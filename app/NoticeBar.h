// The bar above the text: what the user should know of the file on top, and what can be done about it.
#pragma once

#include "workbench/Workbench.h"

namespace tarvik {

class NoticeBar {
 public:
  static constexpr int kMostActions = 4;

  /// Its controls are the form's.
  NoticeBar(Form& form, Workbench& bench);

  Frame frame;
  Label text;
  ControlArray<CommandButton> commands;
  /// It has come or gone, and whoever shows it knows; or it wants another height.
  Signal<> Resized;

  /// Shows the bar while there is a notice for the file on top, and hides it otherwise.
  void Show();
  /// The view tells here how high the bar must be for its words.
  void Need(Pixels height);
  [[nodiscard]] Pixels Height() const { return height_; }

 private:
  void Run(int command) const;

  Workbench& bench_;
  Pixels height_{44};
  std::vector<Connection> connections_;
};

}  // namespace tarvik
