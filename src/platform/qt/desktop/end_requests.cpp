#include "platform/qt/desktop/end_requests.h"

#include <fcntl.h>
#include <unistd.h>

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace pelmar {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

// A signal handler may do very little, so it only writes the signal number to this pipe. The event loop does the rest.
std::array<int, 2> pipe_ends{-1, -1};

extern "C" void PassOn(int number) {
  const int error = errno;
  const auto byte = static_cast<unsigned char>(number);
  // If the pipe is full, the program is ending already.
  [[maybe_unused]] const ssize_t written = ::write(pipe_ends[1], &byte, 1);
  errno = error;
}

void Catch(int number) {
  struct sigaction action {};
  // A signal that was ignored at the start, for instance by nohup, stays ignored.
  if (::sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) return;
  action = {};
  action.sa_handler = PassOn;
  action.sa_flags = SA_RESTART;
  ::sigemptyset(&action.sa_mask);
  ::sigaction(number, &action, nullptr);
}

}  // namespace

EndRequests::EndRequests(std::function<void()> keep) : keep_(std::move(keep)) {
  qGuiApp->installEventFilter(this);
  // Qt's own restart command has arguments, which the program would take for a file path.
  const auto set_restart = [](QSessionManager& manager) {
    manager.setRestartCommand({QCoreApplication::applicationFilePath()});
  };
  connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this, set_restart](QSessionManager& manager) {
    set_restart(manager);
    keep_();
  });
  // This request also comes soon after each start. keep_ would then overwrite the files of the last close.
  connect(qGuiApp, &QGuiApplication::saveStateRequest, this, set_restart);
  if (::pipe2(pipe_ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_.setSocket(pipe_ends[0]);
  connect(&notifier_, &QSocketNotifier::activated, this, &EndRequests::EndBySignal);
  notifier_.setEnabled(true);
  for (const int number : kSignals) Catch(number);
}

void EndRequests::EndBySignal() {
  unsigned char number = 0;
  if (::read(pipe_ends[0], &number, 1) != 1) return;
  keep_();
  std::signal(number, SIG_DFL);
  std::raise(number);
}

// Qt sends Quit at the end of the session, after the requests to save. This filter then calls keep_ and ends the
// program without asking its windows.
bool EndRequests::eventFilter(QObject* watched, QEvent* event) {
  if (watched != qGuiApp || event->type() != QEvent::Quit) return QObject::eventFilter(watched, event);
  keep_();
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace pelmar
