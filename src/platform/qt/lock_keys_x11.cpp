// Apart from the rest, because Xlib's macros (None, Bool, Status) break Qt's headers when they come first.
#include <QGuiApplication>

#include "platform/qt/lock_keys.h"

#if PELMAR_HAS_X11
#include <X11/XKBlib.h>
#endif

namespace pelmar {

LockKeys ReadLockKeys() {
#if PELMAR_HAS_X11
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  // The windowless platform has the interface as well, and no display behind it.
  Display* display = x11 != nullptr ? x11->display() : nullptr;
  unsigned lamps = 0;
  if (display == nullptr || XkbGetIndicatorState(display, XkbUseCoreKbd, &lamps) != 0) return {};
  return {.caps = (lamps & 1U) != 0, .num = (lamps & 2U) != 0};
#else
  return {};
#endif
}

}  // namespace pelmar
