// The system's wishes to end the program: SIGTERM, SIGHUP, SIGINT and the end of the desktop session. What isn't saved
// is kept first, then the program ends without a question, by the signal that it got. Make one, after the application.
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
