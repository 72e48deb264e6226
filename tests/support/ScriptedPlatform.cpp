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

namespace {

class ScriptedProgram : public RunningProgram {
 public:
  explicit ScriptedProgram(ScriptedPrograms& programs) : programs_(programs) { ++programs_.alive; }
  ~ScriptedProgram() override {
    --programs_.alive;
    programs_.state = ProgramState::Ended;  // and so does the next one
  }
  ProgramState State() override { return programs_.state; }
  void Stop() override { programs_.state = ProgramState::Abandoned; }

 private:
  ScriptedPrograms& programs_;
};

}  // namespace

Outcome<> ScriptedPrograms::Record(const ProgramStart& start) {
  started.push_back(start);
  if (const int number = std::exchange(fails, 0)) return Failure{number, "The program did not start", 0};
  return Done{};
}

Outcome<> ScriptedPrograms::Start(const std::string& commandLine, WindowStyle style) {
  return Record({commandLine, files ? files->CurrentFolder() : "", style, false});
}

Outcome<std::unique_ptr<RunningProgram>> ScriptedPrograms::StartToWait(const std::string& commandLine,
                                                                       WindowStyle style) {
  const auto recorded = Record({commandLine, files ? files->CurrentFolder() : "", style, true});
  if (!recorded) return recorded.failure();
  return std::unique_ptr<RunningProgram>(std::make_unique<ScriptedProgram>(*this));
}

}  // namespace tarvik::session
