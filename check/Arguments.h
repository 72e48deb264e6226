// The command line of tarvik-check, and the jobs that it can do.
#pragma once

#include <ostream>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace tarvik::check {

/// What the program's exit status says.
enum Status : int {
  kFine = 0,
  kErrors = 1,      ///< a file has errors
  kUnreadable = 2,  ///< a file cannot be read, or the command line not be understood
};

struct Arguments;

/// Where a job writes: what it was asked for, and what went wrong.
struct Streams {
  std::ostream& out;
  std::ostream& error;
};

/// A job, with the option that asks for it. A row added is a job added.
struct Job {
  const char* option;
  const char* description;
  Status (*run)(const Arguments&, const Streams&);
};

/// The first is done where nothing else is asked for.
[[nodiscard]] std::span<const Job> Jobs();

struct Arguments {
  const Job* job = nullptr;  ///< one of Jobs()
  bool json = false;
  bool quiet = false;
  std::vector<std::string> paths;  ///< of files and folders, at least one
};

/// The status is that of a command line that asks for no job: for help, or for what there is not. It has been
/// written then.
[[nodiscard]] std::variant<Arguments, Status> ReadArguments(int count, const char* const* words,
                                                            const Streams& streams);

/// Reads the command line and does the job.
[[nodiscard]] Status Run(int count, const char* const* words, const Streams& streams);

}  // namespace tarvik::check
