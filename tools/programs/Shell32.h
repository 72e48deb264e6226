// Starting other programs: fire and forget, or waiting for the end. The download and the lists of games and
// custom apps use it.
#pragma once

#include <optional>
#include <string>

#include "workbench/Shell.h"

namespace tarvik {

/// What a wait gives, in the words of the system call.
namespace wait {
inline constexpr int kEnded = 0;
inline constexpr int kAbandoned = 0x80;  ///< stopped before it was through
inline constexpr int kTimedOut = 0x102;
}  // namespace wait

/// Starts a program and waits until it has ended, or for `timeout` milliseconds; -1 is no limit. Meanwhile
/// the windows are painted and take no input, no timer of another form runs, and the user can stop the
/// program. A wait value, or the error number plus 0x80040000 when it could not be started, which is also so
/// while another one is waited for. The window style has no effect: a program always appears normally.
int ShellAndWait(Workbench& bench, Shell& shell, const std::string& commandLine,
                 std::optional<int> windowStyle = {}, std::optional<int> timeout = {});

}  // namespace tarvik
