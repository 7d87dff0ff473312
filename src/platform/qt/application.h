// The application object. It asks KeyRouter before a widget gets a key. It reports errors (RuntimeError, lack of
// memory) that no event handler caught.
#pragma once

#include <QApplication>
#include <functional>

#include "platform/runtime_error.h"

namespace pelmar {

class Application : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override;

  // Called with an uncaught RuntimeError, or with ENOMEM if memory has run out. Must not return.
  std::function<void(const RuntimeError&)> on_runtime_error;
};

// Ends the program with this status, after the events that are already in the queue. May be called before the event
// loop starts.
void EndProgram(int status);

}  // namespace pelmar
