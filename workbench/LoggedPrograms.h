// Other programs, with a line in the log for each start and for each end that is waited for.
#pragma once

#include "workbench/Log.h"

namespace tarvik {

class LoggedPrograms : public Programs {
 public:
  LoggedPrograms(const Platform& services, Log& log)
      : programs_(services.programs), files_(services.files), log_(log) {}

  Outcome<> Start(const std::string& commandLine, WindowStyle style) override;
  Outcome<std::unique_ptr<RunningProgram>> StartToWait(const std::string& commandLine,
                                                       WindowStyle style) override;

 private:
  void Tell(const std::string& commandLine, const Failure* failure);
  [[nodiscard]] std::string ProgramIn(const std::string& commandLine) const;
  [[nodiscard]] std::string NameOf(const std::string& program) const;

  Programs& programs_;
  Files& files_;
  Log& log_;
};

}  // namespace tarvik
