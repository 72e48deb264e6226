// The state of the keyboard's lock keys, for the status bar.
#pragma once

#include <optional>

namespace tarvik::screen {

struct LockKeys {
  bool caps = false;
  bool num = false;
};

/// Nothing where the window system does not tell.
[[nodiscard]] std::optional<LockKeys> ReadLockKeys();

}  // namespace tarvik::screen
