#include "screen/windows/X11.h"

#include <QGuiApplication>

namespace tarvik::screen {

Display* X11() {
#ifdef TARVIK_X11
  const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->display() : nullptr;
#else
  return nullptr;
#endif
}

}  // namespace tarvik::screen
