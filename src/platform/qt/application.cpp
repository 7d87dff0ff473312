#include "platform/qt/application.h"

#include <QKeyEvent>
#include <QWidget>
#include <cerrno>
#include <new>

namespace pelmar {

// Keys that the program itself hands on come from no keyboard, and always arrive.
bool Application::HoldsBack(const QObject& receiver, QEvent& event) {
  const bool key = event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease ||
                   event.type() == QEvent::ShortcutOverride;
  if (!key || !event.spontaneous() || !receiver.isWidgetType()) return false;
  if (!held_keys_.HoldsBack(static_cast<const QWidget&>(receiver), static_cast<QKeyEvent&>(event))) return false;
  event.accept();  // or the toolkit would look for a shortcut of this key
  return true;
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    if (HoldsBack(*receiver, *event)) return true;
    return QApplication::notify(receiver, event);
  } catch (const RuntimeError& error) {
    if (!on_runtime_error) throw;
    on_runtime_error(error);
  } catch (const std::bad_alloc&) {
    if (!on_runtime_error) throw;
    on_runtime_error(RuntimeError(ENOMEM, "Na tuto operaci nestačí paměť"));
  }
  return true;
}

void EndProgram(int status) {
  QMetaObject::invokeMethod(
      qApp, [status] { QCoreApplication::exit(status); }, Qt::QueuedConnection);
}

}  // namespace pelmar
