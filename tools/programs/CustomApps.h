// The user's own programs in the Apps menu.
#pragma once

#include "app/Application.h"

namespace tarvik {

/// Starts one of them; 1-based.
void RunCustomApp(Application& application, int index);

/// What becomes of a path that is taken into use: a control panel applet or a help file needs a program in
/// front of it, which is put there when the user says so.
[[nodiscard]] std::string CustomAppPathUse(Dialogs& dialogs, const std::string& path);

}  // namespace tarvik
