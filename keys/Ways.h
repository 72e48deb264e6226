// Which way keys go on this desktop, and why not a better one.
#pragma once

#include "platform/KeyOutput.h"

namespace tarvik::keys {

/// What was found.
struct Facts {
  int uinputError = 0;         ///< of the system, for making a keyboard; 0 where there is one
  bool hasRule = false;        ///< the rule that lets users open /dev/uinput is installed
  bool isWayland = false;      ///< the session's windows are not the X server's
  bool hasX = false;           ///< there is an X server
  bool takesTestKeys = false;  ///< it takes keys from programs
};

/// Everything but the hot key.
[[nodiscard]] KeyOutputState WayBy(const Facts& facts);

}  // namespace tarvik::keys
