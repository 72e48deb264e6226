// What the tools that read the joystick have in common: its units, and what they say when there is none.
#pragma once

#include "platform/Platform.h"

namespace tarvik {

inline constexpr int kJoystickRange = 65535;

[[nodiscard]] inline MessageBox NoJoystickBox() {
  return {"No joystick detected",
          "I couldn't detect the joystick. Check the Windows Control Panel's Game controllers or "
          "Thrustmaster's ProPanel to see what the problem is.",
          BoxIcon::Exclamation, BoxButtons::Ok};
}

}  // namespace tarvik
