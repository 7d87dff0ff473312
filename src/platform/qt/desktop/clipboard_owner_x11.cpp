// A separate file, because macros of Xlib (None, Bool, Status) break Qt headers that are included after Xlib.
#include <QGuiApplication>

#include "platform/qt/desktop/clipboard_owner.h"

#if PELMAR_HAS_X11
#include <X11/Xlib.h>
#endif

namespace pelmar {

bool ClipboardHasOwner() {
#if PELMAR_HAS_X11
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  // Qt's offscreen platform has this interface too, but no display.
  Display* display = x11 != nullptr ? x11->display() : nullptr;
  if (display == nullptr) return true;
  return XGetSelectionOwner(display, XInternAtom(display, "CLIPBOARD", 0)) != None;
#else
  return true;
#endif
}

}  // namespace pelmar
