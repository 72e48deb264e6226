#include "workbench/LoggedPrograms.h"

#include <algorithm>
#include <iterator>
#include <sstream>

#include "text/CodePage.h"

namespace tarvik {
namespace {

/// In the order of ProgramState.
constexpr const char* kEnds[] = {" is ended, since nobody waits for it any more", " has ended",
                                 " was stopped before it was through"};

class LoggedProgram : public RunningProgram {
 public:
  LoggedProgram(std::unique_ptr<RunningProgram> program, std::string name, Log& log)
      : program_(std::move(program)), name_(std::move(name)), log_(log) {}
  ~LoggedProgram() override { log_.Write(name_ + kEnds[static_cast<int>(program_->State())]); }
  LoggedProgram(const LoggedProgram&) = delete;
  LoggedProgram& operator=(const LoggedProgram&) = delete;

  ProgramState State() override { return program_->State(); }
  void Stop() override { program_->Stop(); }

 private:
  std::unique_ptr<RunningProgram> program_;
  std::string name_;
  Log& log_;
};

/// Arguments may name the user's files, so only their number is told.
std::string Arguments(const std::string& words) {
  std::istringstream in(words);
  const auto count = std::distance(std::istream_iterator<std::string>(in), {});
  return " (arguments: " + std::to_string(count) + ")";
}

bool EndsLikeAProgram(const std::string& path) {
  constexpr std::string_view kEndings[] = {".exe", ".com", ".bat", ".cmd", ".pif"};
  const auto endsSo = [name = LowerCase(path)](std::string_view ending) { return name.ends_with(ending); };
  return std::any_of(std::begin(kEndings), std::end(kEndings), endsSo);
}

/// As the programs of the host are.
bool HasNoEnding(const std::string& path) {
  return path.find('.', path.find_last_of("\\/") + 1) == std::string::npos;
}

}  // namespace

/// What stands in quotation marks, or else the first word if it is a file, or the longest part up to a blank
/// that is one, as whoever starts it looks for it; where none is, the first word.
std::string LoggedPrograms::ProgramIn(const std::string& line) const {
  const std::size_t quote = line.find('"', 1);
  if (line.starts_with('"') && quote != std::string::npos) return line.substr(1, quote - 1);
  const std::size_t first = std::min(line.find(' '), line.size());
  if (files_.FileExists(line.substr(0, first))) return line.substr(0, first);
  for (std::size_t end = line.size(); end != std::string::npos && end > first;
       end = line.rfind(' ', end - 1)) {
    if (files_.FileExists(line.substr(0, end))) return line.substr(0, end);
  }
  return line.substr(0, first);
}

/// What is no program for sure may have a file of the user's in it, and is not told.
std::string LoggedPrograms::NameOf(const std::string& program) const {
  const bool isThere = files_.FileExists(program);
  const bool isOneWord = program.find(' ') == std::string::npos;
  const bool isProgram = EndsLikeAProgram(program) ? isThere || isOneWord : isThere && HasNoEnding(program);
  return isProgram ? program : "something that is no program";
}

void LoggedPrograms::Tell(const std::string& commandLine, const Failure* failure) {
  const std::string program = ProgramIn(commandLine);
  const std::size_t marks = commandLine.starts_with('"' + program + '"') ? 2 : 0;
  const std::string what = NameOf(program) + Arguments(commandLine.substr(program.size() + marks));
  log_.Write(failure ? "could not start " + what + ": " + InWords(*failure) : "started " + what);
}

Outcome<> LoggedPrograms::Start(const std::string& commandLine, WindowStyle style) {
  Outcome<> started = programs_.Start(commandLine, style);
  Tell(commandLine, started ? nullptr : &started.failure());
  return started;
}

Outcome<std::unique_ptr<RunningProgram>> LoggedPrograms::StartToWait(const std::string& commandLine,
                                                                     WindowStyle style) {
  auto started = programs_.StartToWait(commandLine, style);
  Tell(commandLine, started ? nullptr : &started.failure());
  if (!started) return started;
  return std::unique_ptr<RunningProgram>(
      std::make_unique<LoggedProgram>(*std::move(started), NameOf(ProgramIn(commandLine)), log_));
}

}  // namespace tarvik
