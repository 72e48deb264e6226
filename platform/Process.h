// Processes of the host: started by a file and its arguments as they stand, never through a shell.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/Outcome.h"
#include "platform/Programs.h"

namespace tarvik {

/// From now on writing beyond the limit for the size of a file is a failure, and does not end this process.
void IgnoreFileSizeSignal();

/// What to run: the file, its arguments (without the file itself), where, what its environment has beside
/// ours where that says nothing of it, and what it reads from and writes to; nothing where that is -1.
struct ProcessStart {
  std::filesystem::path file;
  std::vector<std::string> arguments{};
  std::filesystem::path folder{};
  std::vector<std::string> environment{};  ///< "NAME=value"
  int input = -1;
  int output = -1;
};

/// Starts a process that lives on by itself and that nobody has to wait for.
Outcome<> StartDetached(const ProcessStart& start);

/// A child of ours, which ends with this object and, however that ends, with this process; with it those that
/// it started itself, as far as they stayed with it.
class ChildProcess : public RunningProgram {
 public:
  static Outcome<ChildProcess> Start(const ProcessStart& start);
  ChildProcess(ChildProcess&& other) noexcept;
  ChildProcess& operator=(ChildProcess&&) = delete;
  ~ChildProcess() override;

  ProgramState State() override;
  void Stop() override;
  /// Sends it a signal.
  void Tell(int number) const;

 private:
  explicit ChildProcess(int id) : id_(id) {}

  int id_ = 0;  ///< 0: it has ended
  ProgramState ended_ = ProgramState::Ended;
};

/// The program of that name in the folders of PATH.
[[nodiscard]] std::optional<std::filesystem::path> FindInPath(const std::string& name);

}  // namespace tarvik
