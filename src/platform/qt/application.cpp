#include "platform/qt/application.h"

namespace pelmar {

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const RuntimeError& error) {
    if (!on_runtime_error) throw;
    on_runtime_error(error);
    return true;
  }
}

void EndProgram(int status) {
  QMetaObject::invokeMethod(
      qApp, [status] { QCoreApplication::exit(status); }, Qt::QueuedConnection);
}

}  // namespace pelmar
