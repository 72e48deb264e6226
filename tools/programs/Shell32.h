// Starting other programs: fire and forget, or waiting for the end. The download and the lists of games and
// custom apps use it.
#pragma once

#include <optional>
#include <string>

#include "workbench/Shell.h"

namespace tarvik {

/// How a wait ends, by the numbers of the system call.
enum class WaitEnd {
  Ended = 0,
  Abandoned = 0x80,  ///< stopped before it was through
  TimedOut = 0x102,
};

/// The time-out of a wait that ends with the program alone.
inline constexpr int kNoLimit = -1;

/// Starts a program and waits until it has ended, or for `timeout` milliseconds. Meanwhile the windows are
/// painted and take no input, no timer of another form runs, and the user can stop the program. One that
/// could not be started is a failure whose number is the error's plus 0x80040000, and so is one while another
/// is waited for. The window style has no effect: a program always appears normally.
Outcome<WaitEnd> ShellAndWait(Workbench& bench, Shell& shell, const std::string& commandLine,
                              std::optional<int> windowStyle = {}, int timeout = kNoLimit);

}  // namespace tarvik
