// A separate file, because macros of Xlib (None, Bool, Status) break Qt headers that are included after Xlib.
#include <QGuiApplication>

#include "platform/qt/lock_keys.h"

#if PELMAR_HAS_X11
#include <X11/XKBlib.h>
#endif

namespace pelmar {

LockKeys ReadLockKeys() {
#if PELMAR_HAS_X11
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  // Qt's offscreen platform has this interface too, but no display.
  Display* display = x11 != nullptr ? x11->display() : nullptr;
  unsigned lamps = 0;
  if (display == nullptr || XkbGetIndicatorState(display, XkbUseCoreKbd, &lamps) != 0) return {};
  return {.caps = (lamps & 1U) != 0, .num = (lamps & 2U) != 0};
#else
  return {};
#endif
}

}  // namespace pelmar
