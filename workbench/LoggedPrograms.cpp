#include "workbench/LoggedPrograms.h"

#include <algorithm>
#include <iterator>
#include <sstream>

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

/// What a program is told names the user's files: only how many words it is told is told.
std::string Arguments(const std::string& words) {
  std::istringstream in(words);
  const auto count = std::distance(std::istream_iterator<std::string>(in), {});
  return " (arguments: " + std::to_string(count) + ")";
}

}  // namespace

/// What stands in quotation marks, or else the shortest part up to a blank that is a file; where none is, the
/// first word.
std::string LoggedPrograms::ProgramOf(const std::string& line) const {
  const std::size_t quote = line.find('"', 1);
  if (line.starts_with('"') && quote != std::string::npos) return line.substr(0, quote + 1);
  const std::size_t first = std::min(line.find(' '), line.size());
  for (std::size_t end = first; end != 0; end = std::min(line.find(' ', end + 1), line.size())) {
    if (files_.FileExists(line.substr(0, end))) return line.substr(0, end);
    if (end == line.size()) break;
  }
  return line.substr(0, first);
}

void LoggedPrograms::Tell(const std::string& commandLine, const Failure* failure) {
  const std::string program = ProgramOf(commandLine);
  const std::string what = program + Arguments(commandLine.substr(program.size()));
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
      std::make_unique<LoggedProgram>(*std::move(started), ProgramOf(commandLine), log_));
}

}  // namespace tarvik
