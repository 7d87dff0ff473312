#include "platform/qt/application.h"

#include <QKeyEvent>
#include <cerrno>
#include <new>

#include "platform/qt/key_router.h"

namespace pelmar {
namespace {

bool IsTaken(QObject& receiver, QEvent& event) {
  const bool key = event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease ||
                   event.type() == QEvent::ShortcutOverride;
  return key && receiver.isWidgetType() &&
         KeyRouter::Get().Takes(static_cast<QWidget&>(receiver), static_cast<QKeyEvent&>(event));
}

}  // namespace

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return IsTaken(*receiver, *event) || QApplication::notify(receiver, event);
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
