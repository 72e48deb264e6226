#include "screen/LockKeys.h"

#include <QGuiApplication>

#ifdef TARVIK_X11
#include <X11/XKBlib.h>
#endif

namespace tarvik::screen {

std::optional<LockKeys> ReadLockKeys() {
#ifdef TARVIK_X11
  constexpr unsigned kCaps = 1;
  constexpr unsigned kNum = 2;
  const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  unsigned lights = 0;
  if (x11 && XkbGetIndicatorState(x11->display(), XkbUseCoreKbd, &lights) == Success) {
    return LockKeys{(lights & kCaps) != 0, (lights & kNum) != 0};
  }
#endif
  return {};
}

}  // namespace tarvik::screen
