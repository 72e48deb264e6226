// The joystick's own programs: the loader that sends the joystick file to the hardware, the Control Centre,
// and the utilities that lie beside it.
#pragma once

#include <string>

#include "workbench/Shell.h"

namespace tarvik {

/// `CandCCPath` without what follows its last "\"; empty where it has none.
[[nodiscard]] std::string FolderOfControlCentre(const Settings& settings);

/// Makes the drive of `path` the current one, and then the Control Centre's folder the current folder of its
/// drive. Nothing puts them back. A change that fails is recorded by the trap.
void ChangeToControlCentre(Workbench& bench, const std::string& path, const Trap& trap);

/// Makes the drive that `path` begins with the current one, and its root the current folder there.
void ChangeToRootOf(Workbench& bench, const std::string& path, const Trap& trap);

/// Sends the file from the current folder, and waits until the loader has ended. Its command line is the
/// loader's path, a blank, the file's path as it stands, and " Q" for quiet mode. What comes of it is not
/// asked.
void RunLoader(Workbench& bench, Shell& shell, const std::string& file);

// The editor's entries.
void SendToJoystick(Workbench& bench, Shell& shell);
void StartControlCentre(Workbench& bench);
void StartTMScope(Workbench& bench);
/// The F22 Pro's own utilities.
enum class F22Utility { Setup, Clear, Reset, Delay };
void StartF22Utility(Workbench& bench, F22Utility utility);

}  // namespace tarvik
