// What the editor itself costs beside its text box: a tick of the status timer and a switch of tabs, both with
// documents of 64,000 characters and line counting on. Limits: 0.5 ms and 1 ms. Runs offscreen on the real platform.
#include <benchmark/benchmark.h>

#include <QTest>
#include <cstdlib>

#include "files/files.h"
#include "platform/qt/qt_platform.h"
#include "shell/windows/main_window.h"
#include "shell/windows/status_timer.h"

namespace pelmar {
namespace {

constexpr std::size_t kDocument = 64000;

std::string Page(char letter) {
  std::string text;
  while (text.size() < kDocument) text += std::string("<P>") + letter + " nejaky text stranky a jeste kus</P>\r\n";
  text.resize(kDocument);
  return text;
}

struct Desk {
  QtPlatform platform;
  Editor editor{platform};
  Files files{editor};
  MainWindow window{editor, files.opener};
  StatusTimer timer{window, editor};

  Desk() {
    editor.settings.LineCounting = true;
    window.RefreshCommands();
    window.SetPlace({0, 0, 15000, 12000});
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) std::abort();
    editor.text.SetText(Page('a'));
    editor.documents.SwitchTo(2);
    editor.text.SetText(Page('b'));
  }
};

void Tick(benchmark::State& state) {
  Desk desk;
  desk.platform.SetClipboardText(Page('c'));
  for (auto _ : state) {
    // The caret moves, so that no panel shows what it showed before.
    desk.editor.text.SetSelStart((desk.editor.text.SelStart() + 777) % kDocument);
    desk.timer.Tick();
  }
}
BENCHMARK(Tick)->Name("tick_with_64000_characters (limit 0.5 ms)")->Unit(benchmark::kMillisecond);

void SwitchTab(benchmark::State& state) {
  Desk desk;
  for (auto _ : state) {
    desk.editor.documents.SwitchTo(3 - desk.editor.documents.SelectedTab());
    QCoreApplication::sendPostedEvents();
  }
}
BENCHMARK(SwitchTab)->Name("tab_switch_with_64000_characters (limit 1 ms)")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelmar
