// Handles requests of the system to end the program: SIGTERM, SIGHUP, SIGINT and the end of the desktop session. First
// calls `keep`, which stores the unsaved documents and notes. Then the program ends without a question. After a signal
// the exit status names the signal. Create one object, after the application object.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>

namespace pelmar {

class EndRequests : public QObject {
  Q_OBJECT

 public:
  explicit EndRequests(std::function<void()> keep);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void EndBySignal();

  std::function<void()> keep_;
  QSocketNotifier notifier_{QSocketNotifier::Read};
};

}  // namespace pelmar
