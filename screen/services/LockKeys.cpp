#include "screen/services/LockKeys.h"

#include "screen/windows/X11.h"

#ifdef TARVIK_X11
#include <X11/XKBlib.h>
#endif

namespace tarvik::screen {

std::optional<LockKeys> ReadLockKeys() {
#ifdef TARVIK_X11
  constexpr unsigned kCaps = 1;
  constexpr unsigned kNum = 2;
  Display* const display = X11();
  unsigned lights = 0;
  if (display && XkbGetIndicatorState(display, XkbUseCoreKbd, &lights) == Success) {
    return LockKeys{(lights & kCaps) != 0, (lights & kNum) != 0};
  }
#endif
  return {};
}

std::optional<int> QtKeyboard::GetKeyState(int code) {
  const std::optional<LockKeys> locks = ReadLockKeys();
  if (!locks) return {};
  return code == kCapsLock ? locks->caps : locks->num;
}

void QtKeyboard::TurnOff([[maybe_unused]] int code) {
#ifdef TARVIK_X11
  Display* const display = X11();
  if (!display || code != kCapsLock) return;
  XkbLockModifiers(display, XkbUseCoreKbd, LockMask, 0);
  XFlush(display);
#endif
}

}  // namespace tarvik::screen
