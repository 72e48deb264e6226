// Everything from outside, answered by a script: a disk in memory, queues of answers for boxes and dialogs,
// and a record of what was asked.
#pragma once

#include <deque>

#include "platform/Platform.h"
#include "support/MemoryFiles.h"
#include "support/ScriptedPrinter.h"

namespace tarvik::session {

class ScriptedDialogs : public Dialogs {
 public:
  Answer Show(const MessageBox& box) override;
  Outcome<std::string> AskForFile(const FileRequest& request) override;

  std::deque<Answer> answers;       ///< for the next boxes; OK where there is none, or No, or Cancel
  std::deque<std::string> choices;  ///< for the next dialogs; "cancel" cancels, and so does none at all
  std::deque<MessageBox> boxes;     ///< shown and not yet expected
  std::deque<FileRequest> requests;
};

class ScriptedInstance : public SingleInstance {
 public:
  bool Acquire() override { return !std::exchange(held, true); }
  bool held = false;
};

}  // namespace tarvik::session
