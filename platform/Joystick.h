// The joystick of the machine: device 0, as the hardware tools read it.
#pragma once

#include "platform/Outcome.h"

namespace tarvik {

/// The numbers of the failures below.
namespace joystick {
inline constexpr int kNoDevice = 165;
inline constexpr int kUnplugged = 167;
}  // namespace joystick

/// Which axes the stick has beside X and Y.
struct JoyCaps {
  bool hasZ = false;  ///< throttle
  bool hasR = false;  ///< rudder
};

/// A position: axes from 0 to 65535, and a bit for each of the first 32 buttons that is down.
struct JoyInfo {
  int x = 0;
  int y = 0;
  int z = 0;
  int r = 0;
  unsigned buttons = 0;
};

class Joystick {
 public:
  virtual ~Joystick() = default;
  /// Looks for the stick.
  virtual Outcome<JoyCaps> GetDevCaps() = 0;
  /// Where the stick is that was found; failure 167 while it is unplugged.
  virtual Outcome<JoyInfo> GetPosEx() = 0;
};

}  // namespace tarvik
