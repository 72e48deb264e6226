// The question before unsaved work goes.
#pragma once

#include <functional>
#include <string>

#include "platform/Platform.h"

namespace tarvik {

struct SaveQuestion {
  std::string text;          ///< behind the file's name
  std::string refusedTitle;  ///< of the box that tells of a failed save
  std::string refused;       ///< its text, behind the file's name
};

/// Asks whether the file is to be saved, and has `save` save it: false when it could not. The result: whether
/// what is in hand may be given up now.
inline bool MayDiscard(Dialogs& dialogs, const std::string& name, const SaveQuestion& question,
                       const std::function<bool()>& save) {
  const Answer answer = dialogs.Show(
      {" Save " + name + " now?", name + question.text, BoxIcon::Question, BoxButtons::YesNoCancel});
  if (answer != Answer::Yes) return answer == Answer::No;
  if (save()) return true;
  dialogs.Show({question.refusedTitle, name + question.refused, BoxIcon::Exclamation, BoxButtons::Ok});
  return false;
}

}  // namespace tarvik
