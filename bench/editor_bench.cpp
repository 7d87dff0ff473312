// Measures the editor without its text box, for a document of the largest size in a file (64,000 bytes) and a pasted
// one (10 MB): a key, a tick of the status timer, a switch of tabs, an open, and the work of the interface thread for
// the rescue file. Line counting is on. Limits with 64,000 bytes: tick 0.5 ms, switch 1 ms. Runs offscreen on the real
// platform.
#include <benchmark/benchmark.h>

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTest>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <functional>

#include "files/files.h"
#include "platform/qt/convert.h"
#include "platform/qt/qt_platform.h"
#include "shell/rescued_documents.h"
#include "shell/services/rescue_keeper.h"
#include "shell/services/status_timer.h"
#include "shell/windows/main/main_window.h"

namespace pelmar {
namespace {

constexpr std::int64_t kFile = 64'000;
constexpr std::int64_t kPasted = 10'000'000;
constexpr std::size_t kLargeClipboard = 20'000'000;

std::string Page(char letter, std::size_t size) {
  std::string text;
  while (text.size() < size) text += std::string("<P>") + letter + " nejaky text stranky a jeste kus</P>\r\n";
  text.resize(size);
  return text;
}

// Leaves out the time of the disk: the program's own files aren't written, but documents are read.
class BenchPlatform : public QtPlatform {
 public:
  std::function<void()> on_write;

  [[nodiscard]] std::string File(const char* name) const {
    return Utf8FromQString(folder_.filePath(QLatin1String(name)));
  }
  std::string InstallFolder() override { return Utf8FromQString(folder_.path()) + "/"; }
  int WritePrivateFile(const std::string&, std::string_view) override {
    if (on_write) on_write();
    return 0;
  }
  void AddToRecentDocuments(const std::string&) override {}

 private:
  QTemporaryDir folder_;
};

struct Desk {
  BenchPlatform platform;
  Editor editor{platform};
  Files files{editor};
  MainWindow window{editor, files};
  StatusTimer timer{window, editor};

  explicit Desk(const benchmark::State& state) {
    const auto size = static_cast<std::size_t>(state.range(0));
    editor.settings.LineCounting = true;
    window.SetPlace({0, 0, 15000, 12000});
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) std::abort();
    editor.text.SetText(Page('a', size));
    editor.documents.SwitchTo(2);
    editor.text.SetText(Page('b', size));
    editor.text.SetSelStart(size / 2);
  }

  // Types a letter and removes it at the next call, so that the text keeps its size.
  void Key() {
    typed_ = !typed_;
    typed_ ? editor.text.Type("x") : editor.text.EraseBefore(1);
  }

 private:
  bool typed_ = false;
};

double Seconds(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

// A key in the buffer and the documents, without the text box.
void KeyInDocuments(benchmark::State& state) {
  BenchPlatform platform;
  Editor editor(platform);
  const auto size = static_cast<std::size_t>(state.range(0));
  editor.text.SetText(Page('a', size));
  editor.text.SetSelStart(size / 2);
  bool typed = false;
  for (auto _ : state) {
    typed = !typed;
    typed ? editor.text.Type("x") : editor.text.EraseBefore(1);
  }
}

void KeyInWindow(benchmark::State& state) {
  Desk desk(state);
  for (auto _ : state) {
    desk.Key();
    QCoreApplication::sendPostedEvents();
  }
}

template <typename Act>
void Ticks(benchmark::State& state, std::size_t clipboard, Act before) {
  Desk desk(state);
  desk.platform.SetClipboardText(Page('c', clipboard));
  desk.timer.Tick();
  for (auto _ : state) {
    before(desk);
    const double start = Seconds(CLOCK_MONOTONIC);
    desk.timer.Tick();
    state.SetIterationTime(Seconds(CLOCK_MONOTONIC) - start);
  }
}

void Nothing(Desk&) {}
void Type(Desk& desk) { desk.Key(); }
// Moves the caret, so that each panel must show a new text.
void MoveCaret(Desk& desk) {
  desk.editor.text.SetSelStart((desk.editor.text.SelStart() + 777) % desk.editor.text.Size());
}

void SwitchTab(benchmark::State& state) {
  Desk desk(state);
  for (auto _ : state) {
    desk.editor.documents.SwitchTo(3 - desk.editor.documents.SelectedTab());
    QCoreApplication::sendPostedEvents();
  }
}

void Open(benchmark::State& state) {
  Desk desk(state);
  const std::string paths[] = {desk.platform.File("a.txt"), desk.platform.File("b.txt")};
  for (const std::string& path : paths)
    std::ofstream(path, std::ios::binary) << Page(path.end()[-5], static_cast<std::size_t>(state.range(0)));
  int which = 0;
  for (auto _ : state) {
    which = 1 - which;
    desk.files.opener.OpenPath(paths[which]);
    QCoreApplication::sendPostedEvents();
  }
}

// Processor time of the interface thread from a key to the finished rescue file, just over a second later.
void Rescue(benchmark::State& state) {
  BenchPlatform platform;
  Editor editor(platform);
  const auto size = static_cast<std::size_t>(state.range(0));
  editor.text.SetText(Page('a', size));
  editor.documents.SwitchTo(2);
  editor.text.SetText(Page('b', size));
  DocumentsRescue unsaved(editor.documents);
  RescueKeeper keeper(unsaved, platform);
  QEventLoop loop;
  platform.on_write = [&] { QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection); };
  for (auto _ : state) {
    editor.text.Type("x");
    const double start = Seconds(CLOCK_THREAD_CPUTIME_ID);
    keeper.KeepSoon();
    loop.exec();
    state.SetIterationTime(Seconds(CLOCK_THREAD_CPUTIME_ID) - start);
  }
  platform.on_write = nullptr;
  keeper.End();
}

void RegisterAll() {
  using benchmark::RegisterBenchmark;
  const auto add = [](const char* name, auto run) {
    return RegisterBenchmark(name, run)->Unit(benchmark::kMicrosecond)->Arg(kFile);
  };
  add("key_in_documents", KeyInDocuments)->Arg(kPasted);
  add("key_in_window", KeyInWindow)->Arg(kPasted);
  add("tick_idle", [](auto& s) { Ticks(s, 100, Nothing); })->Arg(kPasted)->UseManualTime();
  add("tick_typing", [](auto& s) { Ticks(s, 100, Type); })->Arg(kPasted)->UseManualTime();
  add("tick_caret_moves (limit 500)", [](auto& s) { Ticks(s, kFile, MoveCaret); })->Arg(kPasted)->UseManualTime();
  add("tick_idle_20_MB_clipboard", [](auto& s) { Ticks(s, kLargeClipboard, Nothing); })->Arg(kPasted)->UseManualTime();
  add("tick_typing_20_MB_clipboard", [](auto& s) { Ticks(s, kLargeClipboard, Type); })->Arg(kPasted)->UseManualTime();
  add("tab_switch (limit 1000)", SwitchTab)->Arg(kPasted);
  add("open", Open);
  add("rescue_of_two_documents", Rescue)->Arg(kPasted)->UseManualTime()->Iterations(5);
}

[[maybe_unused]] const bool kRegistered = (RegisterAll(), true);

}  // namespace
}  // namespace pelmar
