// Other programs, started by a command line such as "c:\tm\b50load.exe c:\tm\b50progs\a.b50 Q".
#pragma once

#include <memory>
#include <string>

#include "platform/Outcome.h"

namespace tarvik {

/// How the window of a started program appears.
enum class WindowStyle { Normal = 1, Maximised = 3 };

enum class ProgramState {
  Running,
  Ended,
  Abandoned,  ///< stopped, killed, or its emulator was closed before the program was through
};

/// A program that is waited for. It ends with this object.
class RunningProgram {
 public:
  virtual ~RunningProgram() = default;
  [[nodiscard]] virtual ProgramState State() = 0;
  virtual void Stop() = 0;
};

/// Programs start in the current folder of the drives. The program is the first word of the command line, or,
/// where there is no such file, the longest part up to a blank that names one; what follows it is handed over
/// as it stands.
class Programs {
 public:
  virtual ~Programs() = default;
  /// Starts a program that lives on by itself.
  virtual Outcome<> Start(const std::string& commandLine, WindowStyle style) = 0;
  virtual Outcome<std::unique_ptr<RunningProgram>> StartToWait(const std::string& commandLine,
                                                               WindowStyle style) = 0;
};

}  // namespace tarvik
