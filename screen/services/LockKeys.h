// The state of the keyboard's lock keys, for the status bar and the key test.
#pragma once

#include <optional>

#include "platform/Keyboard.h"

namespace tarvik::screen {

struct LockKeys {
  bool caps = false;
  bool num = false;
};

/// Gives nothing where the window system does not tell.
[[nodiscard]] std::optional<LockKeys> ReadLockKeys();

class QtKeyboard : public Keyboard {
 public:
  [[nodiscard]] std::optional<int> GetKeyState(int code) override;
  /// Turns off Caps Lock, and none of the other lock keys.
  void TurnOff(int code) override;
};

}  // namespace tarvik::screen
