// Starts a program and measures it from outside: wait_mapped SETTLE_MS IDLE_MS PROGRAM [ARGUMENT ...]
// Prints one line, "start_ms pss_kib rss_kib idle_ms": milliseconds from the fork to the program's first mapped window,
// the memory after SETTLE_MS, and the processor time of all threads during the following IDLE_MS. The frame of a window
// manager counts as a window; a pop-up or a helper window of 1x1 doesn't. Ends the program. Exit status 1: no window
// within 20 s, or the program ended first.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kLongestStart(20000);

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

bool HasEnded(pid_t pid) { return waitpid(pid, nullptr, WNOHANG) == pid; }

bool BelongsTo(Display* display, Window window, pid_t pid) {
  Atom type = 0;
  int format = 0;
  unsigned long count = 0;
  unsigned long left = 0;
  unsigned char* data = nullptr;
  XGetWindowProperty(display, window, XInternAtom(display, "_NET_WM_PID", False), 0, 1, False, XA_CARDINAL, &type,
                     &format, &count, &left, &data);
  const bool found = data && format == 32 && count == 1 && *reinterpret_cast<long*>(data) == pid;
  if (data) XFree(data);
  return found;
}

// True for a window of the program except a pop-up, and for a window manager's frame around such a window.
bool IsMainWindow(Display* display, const XMapEvent& event, pid_t pid) {
  XWindowAttributes attributes{};
  if (!XGetWindowAttributes(display, event.window, &attributes)) return false;
  if (attributes.width <= 1 || attributes.height <= 1) return false;
  if (!event.override_redirect && BelongsTo(display, event.window, pid)) return true;

  Window root = 0;
  Window parent = 0;
  Window* children = nullptr;
  unsigned int count = 0;
  if (!XQueryTree(display, event.window, &root, &parent, &children, &count)) return false;
  const bool frames_one =
      std::any_of(children, children + count, [&](Window child) { return BelongsTo(display, child, pid); });
  if (children) XFree(children);
  return frames_one;
}

// Waits until the server and the window manager have removed the previous program.
void WaitForQuiet(Display* display) {
  constexpr int quiet_ms = 60;
  pollfd connection{ConnectionNumber(display), POLLIN, 0};
  while (XPending(display) || poll(&connection, 1, quiet_ms) > 0) {
    XEvent event{};
    XNextEvent(display, &event);
  }
}

bool WaitForWindow(Display* display, pid_t pid, Clock::time_point start) {
  while (Clock::now() - start < kLongestStart) {
    while (XPending(display)) {
      XEvent event{};
      XNextEvent(display, &event);
      if (event.type == MapNotify && IsMainWindow(display, event.xmap, pid)) return true;
    }
    if (HasEnded(pid)) return false;
    pollfd connection{ConnectionNumber(display), POLLIN, 0};
    poll(&connection, 1, 100);
  }
  return false;
}

long MemoryKib(pid_t pid, const std::string& field) {
  std::ifstream file("/proc/" + std::to_string(pid) + "/smaps_rollup");
  for (std::string word; file >> word;) {
    long kib = 0;
    if (word == field && file >> kib) return kib;
  }
  return -1;
}

// The processor time of all threads in nanoseconds.
std::optional<long long> ProcessorTime(pid_t pid) {
  long long sum = 0;
  std::error_code error;
  for (const auto& thread : std::filesystem::directory_iterator("/proc/" + std::to_string(pid) + "/task", error)) {
    long long nanoseconds = 0;
    std::ifstream file(thread.path() / "schedstat");
    if (!(file >> nanoseconds)) return std::nullopt;
    sum += nanoseconds;
  }
  if (error) return std::nullopt;
  return sum;
}

int IgnoreError(Display*, XErrorEvent*) { return 0; }

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) {
    std::fprintf(stderr, "wait_mapped SETTLE_MS IDLE_MS PROGRAM [ARGUMENT ...]\n");
    return 2;
  }
  const milliseconds settle(std::atoi(argv[1]));
  const milliseconds idle(std::atoi(argv[2]));
  Display* display = XOpenDisplay(nullptr);
  if (!display) {
    std::fprintf(stderr, "wait_mapped: no display\n");
    return 2;
  }
  XSetErrorHandler(IgnoreError);  // a window may be destroyed before its event is handled
  XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
  XSync(display, False);
  WaitForQuiet(display);

  const auto start = Clock::now();
  const pid_t pid = fork();
  if (pid == 0) {
    execv(argv[3], argv + 3);
    std::perror(argv[3]);
    _exit(127);
  }
  const bool shown = WaitForWindow(display, pid, start);
  const double start_ms = MillisecondsSince(start);
  if (!shown) {
    std::fprintf(stderr, "wait_mapped: no window of %s\n", argv[3]);
    kill(pid, SIGKILL);
    waitpid(pid, nullptr, 0);
    return 1;
  }

  std::this_thread::sleep_for(settle);
  const long pss = MemoryKib(pid, "Pss:");
  const long rss = MemoryKib(pid, "Rss:");
  const auto before = ProcessorTime(pid);
  std::this_thread::sleep_for(idle);
  const auto after = ProcessorTime(pid);
  const bool ended = HasEnded(pid);
  if (!ended) {
    kill(pid, SIGKILL);
    waitpid(pid, nullptr, 0);
  }
  if (ended || !before || !after) {
    std::fprintf(stderr, "wait_mapped: %s ended by itself\n", argv[3]);
    return 1;
  }
  std::printf("%.2f %ld %ld %.3f\n", start_ms, pss, rss, static_cast<double>(*after - *before) / 1e6);
  XCloseDisplay(display);
  return 0;
}
