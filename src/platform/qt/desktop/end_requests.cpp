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

// What a handler may reach: the signal's number goes through the pipe, all else happens in the event loop.
std::array<int, 2> pipe_ends{-1, -1};

extern "C" void PassOn(int number) {
  const int error = errno;
  const auto byte = static_cast<unsigned char>(number);
  // A full pipe has enough to tell already.
  [[maybe_unused]] const ssize_t written = ::write(pipe_ends[1], &byte, 1);
  errno = error;
}

void Catch(int number) {
  struct sigaction action {};
  // Whoever started the program with a signal ignored, as nohup does, wants it to go on.
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
  const auto save = [this](QSessionManager& manager) {
    // The toolkit's own command would come back with arguments that the program takes for a file.
    manager.setRestartCommand({QCoreApplication::applicationFilePath()});
    keep_();
  };
  connect(qGuiApp, &QGuiApplication::commitDataRequest, this, save);
  connect(qGuiApp, &QGuiApplication::saveStateRequest, this, save);
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

// The end of the session, after the request to commit. The windows can't be asked any more.
bool EndRequests::eventFilter(QObject* watched, QEvent* event) {
  if (watched != qGuiApp || event->type() != QEvent::Quit) return QObject::eventFilter(watched, event);
  keep_();
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace pelmar
