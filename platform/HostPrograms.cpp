#include "platform/HostPrograms.h"

#include "platform/CodePage.h"
#include "platform/CommandLine.h"

namespace tarvik {
namespace {

/// What to run for a program that is the host's own: the rest of the command line is one argument.
Outcome<ProcessStart> NativeStart(const std::string& commandLine, const Drives& drives) {
  const auto command = ParseCommandLine(commandLine, drives);
  const auto folder = drives.ToHost(drives.CurrentFolder());
  if (!command || !folder) return Failure{error::kFileNotFound, "File not found", 0};
  ProcessStart start{.file = command->file, .folder = *folder};
  if (!command->rest.empty()) start.arguments.push_back(ToUtf8(command->rest));
  return start;
}

}  // namespace

Outcome<> HostPrograms::Start(const std::string& commandLine, WindowStyle /*style*/) {
  const auto start = NativeStart(commandLine, drives_);
  if (!start) return start.failure();
  return StartDetached(*start);
}

Outcome<std::unique_ptr<RunningProgram>> HostPrograms::StartToWait(const std::string& commandLine,
                                                                   WindowStyle /*style*/) {
  const auto start = NativeStart(commandLine, drives_);
  if (!start) return start.failure();
  auto child = ChildProcess::Start(*start);
  if (!child) return child.failure();
  return std::unique_ptr<RunningProgram>(std::make_unique<ChildProcess>(*std::move(child)));
}

}  // namespace tarvik
