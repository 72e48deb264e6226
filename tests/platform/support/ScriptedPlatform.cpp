#include "support/ScriptedPlatform.h"

#include <algorithm>

#include "text/CodePage.h"

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
  Outcome<std::string> chosen = NextChoice();
  if (!chosen) return chosen;
  const std::string& choice = *chosen;
  const bool hasExtension = choice.find('.', choice.rfind('\\') + 1) != std::string::npos;
  return hasExtension || request.defaultExtension.empty() ? choice : choice + "." + request.defaultExtension;
}

Outcome<std::string> ScriptedDialogs::AskForHostFolder(const std::string& title, const std::string& folder) {
  requests.push_back({FileDialogKind::Open, title, {}, folder, {}, {}});
  const Outcome<std::string> chosen = NextChoice();
  return chosen ? ToUtf8(*chosen) : chosen;
}

Outcome<std::string> ScriptedDialogs::NextChoice() {
  if (std::exchange(holdDialog, false)) WaitWhile([this] { return choices.empty(); });
  std::string choice = choices.empty() ? "cancel" : choices.front();
  if (!choices.empty()) choices.pop_front();
  if (choice == "cancel") return Failure{error::kDialogCancelled, "Cancel was selected.", 0};
  return choice;
}

Outcome<Colour> ScriptedDialogs::AskForColour(Colour /*before*/) {
  const Outcome<std::string> choice = NextChoice();
  if (!choice) return choice.failure();
  return Colour{static_cast<std::uint32_t>(std::stoul(*choice))};
}

Outcome<FontChoice> ScriptedDialogs::AskForFont(const FontChoice& /*before*/, bool fixedPitch) {
  fixedPitchOnly = fixedPitch;
  const Outcome<std::string> choice = NextChoice();
  if (!choice) return choice.failure();
  const std::size_t size = choice->find('|');
  const std::size_t bold = choice->find('|', size + 1);
  return FontChoice{choice->substr(0, size), std::stoi(choice->substr(size + 1)),
                    choice->substr(bold + 1) == "1"};
}

void ScriptedDialogs::WaitWhile(const std::function<bool()>& open) {
  while (open()) {
    const auto act = next;  // which may put another one in its own place
    if (!act || !act()) return;
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

std::vector<Drive> ScriptedDrives::All() const {
  std::vector<Drive> drives;
  for (const auto& [letter, folder] : folders_) drives.push_back({letter, folder, there.contains(folder)});
  return drives;
}

Outcome<> ScriptedDrives::Set(char letter, const std::string& folder) {
  if (letter == 'z' || !there.contains(folder)) return Failure{error::kPathNotFound, "Path not found", 0};
  Give(letter, folder);
  return Done{};
}

void ScriptedDrives::Remove(char letter) { Give(letter, letter == 'c' ? kOwnFolder : ""); }

std::string ScriptedDrives::FromHost(const std::string& path) {
  auto closest = folders_.find('z');
  for (auto drive = folders_.begin(); drive != folders_.end(); ++drive) {
    const bool holds = path == drive->second || path.starts_with(drive->second + "/");
    if (holds && drive->second.size() > closest->second.size()) closest = drive;
  }
  const std::string root = closest->second == "/" ? "" : closest->second;
  std::string rest = path.substr(root.size());
  std::replace(rest.begin(), rest.end(), '/', '\\');
  return std::string{closest->first, ':'} + (rest.empty() ? "\\" : rest);
}

std::string ScriptedDrives::ToHost(const std::string& path) const {
  const auto whole = CurrentFolders().Complete(path);
  const auto root = whole ? folders_.find(whole->drive) : folders_.end();
  if (root == folders_.end()) return {};
  std::string host = (root->second == "/" ? "" : root->second) + whole->Text().substr(2);
  std::replace(host.begin(), host.end(), '\\', '/');
  return host;
}

void ScriptedDrives::Give(char letter, const std::string& folder) {
  const std::string root{letter, ':', '\\'};
  files->Remove(root);
  folders_.erase(letter);
  if (folder.empty()) return;
  folders_[letter] = folder;
  files->PutFolder(root);
}

bool ScriptedSticks::Start() {
  listens_ = true;
  const std::vector<Stick> there = there_;
  for (const Stick& each : there) Tell(each);
  return true;
}

void ScriptedSticks::Tell(const Stick& stick) {
  if (!listens_) return;
  plugged(stick.info);
  for (const auto& [part, value] : stick.values) {
    if (listens_) changed({stick.info.number, part.first, part.second, value, true});
  }
}

int ScriptedSticks::Plug(StickInfo info) {
  info.number = ++last_;
  Stick stick{std::move(info), {}};
  const auto add = [&stick](StickChangeKind kind, int count) {
    for (int i = 0; i < count; ++i) stick.values[{kind, i}] = 0;
  };
  add(StickChangeKind::Button, stick.info.buttons);
  add(StickChangeKind::Hat, stick.info.hats);
  add(StickChangeKind::Axis, stick.info.axes);
  there_.push_back(stick);
  Tell(stick);
  return last_;
}

void ScriptedSticks::Unplug(int stick) {
  std::erase_if(there_, [stick](const Stick& each) { return each.info.number == stick; });
  if (listens_) unplugged(stick);
}

void ScriptedSticks::Move(int stick, StickChangeKind kind, int number, int value) {
  for (Stick& each : there_) {
    if (each.info.number == stick) each.values[{kind, number}] = value;
  }
  if (listens_) changed({stick, kind, number, value, false});
}

int ScriptedSticks::Named(const std::string& name) const {
  const auto found = std::ranges::find_if(there_, [&](const Stick& each) { return each.info.name == name; });
  return found == there_.end() ? -1 : found->info.number;
}

// Keys that are sent.

void ScriptedKeys::Send(std::uint16_t position, bool goesDown) {
  if (!isOn_) return;
  sent.emplace_back(position, goesDown);
  if (goesDown) {
    down.insert(position);
  } else {
    down.erase(position);
  }
}

void ScriptedKeys::PressHotKey() {
  if (isOn_ && hotKeyPressed) hotKeyPressed();
}

void ScriptedKeys::Break(const std::string& why) {
  if (isOn_ && lost) lost(why);
}

void ScriptedAlarm::Pass(Time time) {
  const Time until = now_ + time;
  while (due && *due <= until) {
    now_ = std::max(now_, *due);
    due.reset();
    if (rung) rung();
  }
  now_ = until;
}

void ScriptedSeat::Turn(bool inProgram) {
  if (inProgram == isInProgram_) return;
  isInProgram_ = inProgram;
  if (isWatched && turned) turned();
}

void ScriptedSeat::LeaveMachine(const std::string& why) {
  if (isWatched && left) left(why);
}

}  // namespace tarvik::session
