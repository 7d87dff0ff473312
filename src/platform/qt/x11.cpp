// A separate file, because macros of Xlib (None, Bool, Status) break Qt headers that are included after Xlib.
#include "platform/qt/x11.h"

#include <QGuiApplication>

#include <X11/XKBlib.h>

namespace pelmar {
namespace {

// The connection to the X server, or null. Qt's offscreen platform has the interface too, but no display.
Display* Connection() {
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 != nullptr ? x11->display() : nullptr;
}

}  // namespace

bool IsWayland() { return QGuiApplication::platformName().startsWith(QLatin1String("wayland")); }

LockKeys ReadLockKeys() {
  Display* display = Connection();
  unsigned lamps = 0;
  if (display == nullptr || XkbGetIndicatorState(display, XkbUseCoreKbd, &lamps) != 0) return {};
  return {.caps = (lamps & 1U) != 0, .num = (lamps & 2U) != 0};
}

bool ClipboardHasOwner() {
  Display* display = Connection();
  return display == nullptr || XGetSelectionOwner(display, XInternAtom(display, "CLIPBOARD", 0)) != None;
}

}  // namespace pelmar
