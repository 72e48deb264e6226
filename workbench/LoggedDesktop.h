// What the desktop opens and starts for the program, with a line in the log for each.
#pragma once

#include "workbench/Log.h"

namespace tarvik {

class LoggedDesktop : public Desktop {
 public:
  LoggedDesktop(Desktop& desktop, Log& log) : desktop_(desktop), log_(log) {}

  Outcome<> Open(const std::string& path) override;
  Outcome<> ShowSystemInformation() override;
  [[nodiscard]] bool IsDark() const override { return desktop_.IsDark(); }

 private:
  Outcome<> Told(const std::string& what, Outcome<> outcome);

  Desktop& desktop_;
  Log& log_;
};

}  // namespace tarvik
