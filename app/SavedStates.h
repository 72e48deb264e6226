// Tells the user which file is on show and which ones hold unsaved work, in the frame's title and on the
// tabs.
#pragma once

#include "app/Mum.h"
#include "workbench/Desk.h"

namespace tarvik {

class SavedStates {
 public:
  SavedStates(const Desk& desk, Mum& mum) : desk_(desk), mum_(mum) {}

  /// From now on; the editor is loaded.
  void Follow();
  /// The frame shows no file any more.
  void Stop();

 private:
  void Show();

  const Desk& desk_;
  Mum& mum_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
