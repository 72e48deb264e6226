#include "check/Arguments.h"

#include <CLI/CLI.hpp>

#include "check/CheckFiles.h"
#include "check/PlayTrace.h"

namespace tarvik::check {
namespace {

constexpr Job kJobs[] = {
    {"--check", "Tell what is wrong in the files; done where nothing else is asked for", CheckFiles},
    {"--play", "Play a joystick file by a trace, which is the second FILE", PlayTrace},
};

}  // namespace

std::span<const Job> Jobs() { return kJobs; }

std::variant<Arguments, Status> ReadArguments(int count, const char* const* words, const Streams& streams) {
  Arguments arguments;
  CLI::App app("Tells what is wrong in joystick files and macro files for Thrustmaster flight controllers.",
               "tarvik-check");
  app.set_version_flag("--version", "tarvik-check " TARVIK_VERSION, "Print the version and exit");
  app.add_flag("--json", arguments.json, "Write the problems as JSON");
  app.add_flag("--quiet", arguments.quiet, "Write no problems: the exit status alone tells");
  app.add_option("FILE", arguments.paths, "Joystick files, macro files, and folders with pairs of them");
  std::vector<CLI::Option*> jobs;
  for (const Job& job : kJobs) {
    CLI::Option* option = app.add_flag(job.option, job.description);
    for (CLI::Option* other : jobs) option->excludes(other);
    jobs.push_back(option);
  }
  try {
    app.parse(count, words);
    // Not by the library, which would miss the file before it finds a word that it does not know.
    if (arguments.paths.empty()) throw CLI::RequiredError("FILE");
  } catch (const CLI::ParseError& stopped) {
    return app.exit(stopped, streams.out, streams.error) == 0 ? kFine : kUnreadable;
  }
  arguments.job = &kJobs[0];
  for (std::size_t i = 0; i < jobs.size(); ++i) {
    if (jobs[i]->count() > 0) arguments.job = &kJobs[i];
  }
  return arguments;
}

Status Run(int count, const char* const* words, const Streams& streams) {
  const auto read = ReadArguments(count, words, streams);
  if (const auto* status = std::get_if<Status>(&read)) return *status;
  const auto& arguments = std::get<Arguments>(read);
  const Status status = arguments.job->run(arguments, streams);
  if (streams.out.flush()) return status;
  streams.error << "tarvik-check: The report can't be written\n";
  return kUnreadable;
}

}  // namespace tarvik::check
