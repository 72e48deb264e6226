// Programs on the host: native ones as they are, DOS programs in DOSBox, Windows programs in Wine.
#pragma once

#include "platform/Drives.h"
#include "platform/Process.h"
#include "platform/Programs.h"

namespace tarvik {

/// Failures carry error 53 for what is not there, an emulator included, 75 for what may not be run, and 5 for
/// what is no program or cannot be said to it.
class HostPrograms : public Programs {
 public:
  explicit HostPrograms(const Drives& drives) : drives_(drives) {}

  Outcome<> Start(const std::string& commandLine, WindowStyle style) override;
  Outcome<std::unique_ptr<RunningProgram>> StartToWait(const std::string& commandLine,
                                                       WindowStyle style) override;

 private:
  const Drives& drives_;
};

}  // namespace tarvik
