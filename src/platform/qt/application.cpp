#include "platform/qt/application.h"

#include <cerrno>
#include <new>

namespace pelmar {

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
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
