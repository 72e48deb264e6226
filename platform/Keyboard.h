// The keyboard's lock keys, which the key test reads and one of which it turns off.
#pragma once

#include <optional>

namespace tarvik {

/// Codes of the lock keys.
inline constexpr int kCapsLock = 20;
inline constexpr int kNumLock = 144;

class Keyboard {
 public:
  virtual ~Keyboard() = default;
  /// 1 while the lock of the key is on and 0 while it is off; nothing where the window system does not tell.
  [[nodiscard]] virtual std::optional<int> GetKeyState(int code) = 0;
  /// Turns the lock of the key off, where the window system allows it.
  virtual void TurnOff(int code) = 0;
};

}  // namespace tarvik
