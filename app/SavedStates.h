// Tells the user which file is on show and which ones hold unsaved work, in the frame's title and on the
// tabs.
#pragma once

#include "app/Mum.h"
#include "workbench/Documents.h"

namespace tarvik {

class SavedStates {
 public:
  SavedStates(Documents& documents, Mum& mum) : documents_(documents), mum_(mum) {}

  /// Begins to follow the files of the editor, which has been loaded.
  void Follow();
  /// Follows no file any more, and the frame shows none.
  void Stop();

 private:
  void Show();

  Documents& documents_;
  Mum& mum_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
