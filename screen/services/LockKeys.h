// The state of the keyboard's lock keys, for the status bar and the key test.
#pragma once

#include <optional>

#include "platform/Keyboard.h"

namespace tarvik::screen {

struct LockKeys {
  bool caps = false;
  bool num = false;
};

/// Nothing where the window system does not tell.
[[nodiscard]] std::optional<LockKeys> ReadLockKeys();

class QtKeyboard : public Keyboard {
 public:
  [[nodiscard]] std::optional<int> GetKeyState(int code) override;
  /// Of the lock keys only Caps Lock.
  void TurnOff(int code) override;
};

}  // namespace tarvik::screen
