// What the user's own programs need to be started.
#pragma once

#include <string>

#include "platform/Platform.h"

namespace tarvik {

/// What becomes of a path that is taken into use: a control panel applet or a help file needs a program in
/// front of it, which is put there when the user says so.
[[nodiscard]] std::string CustomAppPathUse(Dialogs& dialogs, const std::string& path);

}  // namespace tarvik
