#include "support/ScriptedPlatform.h"

namespace tarvik::session {

Answer ScriptedDialogs::Show(const MessageBox& box) {
  boxes.push_back(box);
  if (std::exchange(holdBox, false)) WaitWhile([this] { return answers.empty(); });
  Answer answer = box.buttons == BoxButtons::Ok ? Answer::Ok : Answer::Cancel;
  if (box.buttons == BoxButtons::YesNo) answer = Answer::No;
  if (!answers.empty()) {
    answer = answers.front();
    answers.pop_front();
  }
  return answer;
}

Outcome<std::string> ScriptedDialogs::AskForFile(const FileRequest& request) {
  requests.push_back(request);
  if (std::exchange(holdDialog, false)) WaitWhile([this] { return choices.empty(); });
  const std::string choice = choices.empty() ? "cancel" : choices.front();
  if (!choices.empty()) choices.pop_front();
  if (choice == "cancel") return Failure{error::kDialogCancelled, "Cancel was selected.", 0};
  const bool hasExtension = choice.find('.', choice.rfind('\\') + 1) != std::string::npos;
  return hasExtension || request.defaultExtension.empty() ? choice : choice + "." + request.defaultExtension;
}

void ScriptedDialogs::WaitWhile(const std::function<bool()>& open) {
  while (open() && next && next()) {
  }
}

}  // namespace tarvik::session
