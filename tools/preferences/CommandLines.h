// What the user's own programs need to be started.
#pragma once

#include <string>

#include "platform/Platform.h"

namespace tarvik {

/// The command line for a path that the user wants to start: a control panel applet or a help file needs a
/// program in front of it, which is put there when the user agrees.
[[nodiscard]] std::string CustomAppPathUse(Dialogs& dialogs, const std::string& path);

}  // namespace tarvik
