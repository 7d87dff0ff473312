#include "platform/qt/application.h"

#include <QKeyEvent>
#include <cerrno>
#include <new>

namespace pelmar {

// The Enter that has opened or closed a window is none for what has the keyboard now, however long it is held.
bool Application::IsEnterFromElsewhere(const QObject& receiver, const QEvent& event) {
  if (event.type() != QEvent::KeyPress || !receiver.isWidgetType()) return false;
  const auto& key = static_cast<const QKeyEvent&>(event);
  if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) return false;
  if (!key.isAutoRepeat()) enter_went_to_ = &receiver;
  return enter_went_to_ != &receiver;
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    if (IsEnterFromElsewhere(*receiver, *event)) return true;
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
