// The application object: the program's own rather than the toolkit's answer to an error that no command caught.
#pragma once

#include <QApplication>
#include <functional>

#include "platform/runtime_error.h"

namespace pelmar {

class Application : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override;

  // Called with a RuntimeError that no handler of the program caught, or with ENOMEM where memory has run out; doesn't
  // return.
  std::function<void(const RuntimeError&)> on_runtime_error;
};

// Ends the program with this status when the event at hand is over, also where its loop hasn't begun yet.
void EndProgram(int status);

}  // namespace pelmar
