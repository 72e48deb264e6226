#include "platform/HostPrograms.h"

#include <sstream>

#include "platform/CommandLine.h"
#include "platform/DosBox.h"
#include "text/CodePage.h"

namespace tarvik {
namespace {

Failure NotFound(const char* text) { return {error::kFileNotFound, text, 0}; }

/// The command line as words, for a program that is given it whole again: what stands in quotation marks
/// stays together.
std::vector<std::string> Words(const std::string& line) {
  std::vector<std::string> words;
  std::istringstream in(line);
  while (in >> std::ws && in.peek() != EOF) {
    std::string& word = words.emplace_back();
    bool quoted = false;
    for (int c = in.get(); c != EOF && (quoted || c != ' '); c = in.get()) {
      if (c == '"') {
        quoted = !quoted;
      } else {
        word += static_cast<char>(c);
      }
    }
  }
  return words;
}

/// What the host runs. A native program is given the rest of the command line as one argument.
Outcome<ProcessStart> HostStart(const ParsedCommand& command, ProgramKind kind, const Drives& drives) {
  const auto folder = drives.ToHost(drives.CurrentFolder());
  if (!folder) return NotFound("The current folder is gone");
  const std::string rest = ToUtf8(command.rest);
  ProcessStart start{.file = command.file, .folder = *folder};
  if (kind == ProgramKind::Native) {
    if (!rest.empty()) start.arguments.push_back(rest);
    return start;
  }
  const auto wine = FindInPath("wine");
  if (!wine) return NotFound("Wine is not installed");
  start.file = *wine;
  start.arguments = Words(rest);
  start.arguments.insert(start.arguments.begin(), command.file.native());
  return start;
}

/// Finds out what the command line starts, and hands it to the one of the two that can.
template <class Host, class Dos>
auto Run(const std::string& commandLine, WindowStyle style, const Drives& drives, Host host, Dos dos)
    -> decltype(host(ProcessStart())) {
  const auto command = ParseCommandLine(commandLine, drives);
  if (!command) return NotFound("File not found");
  const ProgramKind kind = KindOf(command->file);
  if (kind == ProgramKind::None) return Failure{error::kInvalidCall, "This is no program", 0};
  if (kind == ProgramKind::Dos) {
    auto run = PrepareDosBox(*command, drives, style);
    if (!run) return run.failure();
    return dos(*std::move(run));
  }
  const auto start = HostStart(*command, kind, drives);
  if (!start) return start.failure();
  return host(*start);
}

Outcome<std::unique_ptr<RunningProgram>> StartChild(const ProcessStart& start) {
  auto child = ChildProcess::Start(start);
  if (!child) return child.failure();
  return std::unique_ptr<RunningProgram>(std::make_unique<ChildProcess>(*std::move(child)));
}

}  // namespace

Outcome<> HostPrograms::Start(const std::string& commandLine, WindowStyle style) {
  return Run(commandLine, style, drives_, StartDetached, StartDosBox);
}

Outcome<std::unique_ptr<RunningProgram>> HostPrograms::StartToWait(const std::string& commandLine,
                                                                   WindowStyle style) {
  return Run(commandLine, style, drives_, StartChild, StartDosBoxToWait);
}

}  // namespace tarvik
