// Measures the ciphers and checksums, in the core and in their windows over the real main window. The names hold the
// limits. Runs offscreen on the real platform.
#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <cstdlib>

#include "ciphers/check_sums.h"
#include "ciphers/cht.h"
#include "ciphers/cronfeld.h"
#include "ciphers/shift.h"
#include "ciphers/windows/rnd_sifra.h"
#include "ciphers/windows/za_kod.h"
#include "ciphers/xor_cipher.h"
#include "files/files.h"
#include "platform/qt/qt_platform.h"
#include "shell/windows/main/main_window.h"

namespace pelmar {
namespace {

constexpr std::size_t kDocument = 64000;

std::string Page() {
  std::string text;
  while (text.size() < kDocument) text += "NEJAKY TEXT STRANKY A JESTE KUS\r\n";
  text.resize(kDocument);
  return text;
}

struct Desk {
  QtPlatform platform;
  Editor editor{platform};
  Files files{editor};
  MainWindow window{editor, files};

  Desk() {
    window.SetPlace({0, 0, 15000, 12000});
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window)) std::abort();
    editor.text.SetText(Page());
  }
  // Handles the pending events, which paints the windows.
  static void Show() { QCoreApplication::processEvents(); }
};

void Press(const QWidget& dialog, const char* name) { dialog.findChild<QPushButton*>(QLatin1String(name))->click(); }

void StreamInWindow(benchmark::State& state) {
  Desk desk;
  ZaKod dialog(
      desk.editor, [] { return false; }, &desk.window);
  dialog.Present();
  Desk::Show();
  for (auto _ : state) {
    // The text is set again, because code 8 in an enciphered text would raise a question.
    state.PauseTiming();
    desk.editor.text.SetText(Page());
    Desk::Show();
    state.ResumeTiming();
    Press(dialog, "Command1");
    Desk::Show();
  }
}
BENCHMARK(StreamInWindow)->Name("stream_64000_characters_in_the_window (limit 100 ms)")->Unit(benchmark::kMillisecond);

// The longest time without event handling, for a text as long as the output of the RND cipher.
void StreamGap(benchmark::State& state) {
  Desk desk;
  ZaKod dialog(
      desk.editor, [] { return false; }, &desk.window);
  dialog.Present();
  const std::string text(4096000, 'A');
  QElapsedTimer since;
  qint64 longest = 0;
  for (auto _ : state) {
    desk.editor.text.SetText(text);
    Desk::Show();
    std::string output;
    since.start();
    RewriteStream(desk.editor.text, 1, output, desk.platform, [&](std::size_t) {
      longest = std::max(longest, since.nsecsElapsed());
      Desk::Show();
      since.start();
      return true;
    });
  }
  state.counters["ms without events"] = static_cast<double>(longest) / 1e6;
}
BENCHMARK(StreamGap)->Name("stream_4096000_characters (limit 20 ms without events)")->Unit(benchmark::kMillisecond);

void Stream(benchmark::State& state) {
  const std::string text(1 << 20, 'A');
  std::string output;
  for (auto _ : state) {
    output.clear();
    StreamCipher(1).Append(text, output);
    benchmark::DoNotOptimize(output.data());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(Stream)->Name("stream_alone (limit 100 MB/s)")->Unit(benchmark::kMillisecond);

// A dialog with a table of depth 64 and the prepared text of Page().
struct RndDesk : Desk {
  RND_Sifra dialog{editor, &window};

  RndDesk() {
    dialog.Present();
    Press(dialog, "Command1");
    dialog.findChild<QScrollBar*>(QStringLiteral("HScroll1"))->setValue(64);
    Press(dialog, "Command2");
    Show();
  }
};

void RndEncipherInWindow(benchmark::State& state) {
  RndDesk desk;
  for (auto _ : state) {
    Press(desk.dialog, "Command5");
    Desk::Show();
  }
  if (desk.editor.text.Size() != kDocument * 64) std::abort();
}
BENCHMARK(RndEncipherInWindow)
    ->Name("rnd_encipher_64000_characters_at_depth_64_and_show (limit 200 ms)")
    ->Unit(benchmark::kMillisecond);

void RndDecipherInWindow(benchmark::State& state) {
  RndDesk desk;
  Press(desk.dialog, "Command5");
  Press(desk.dialog, "Command1");
  Desk::Show();
  for (auto _ : state) {
    Press(desk.dialog, "Command6");
    Desk::Show();
  }
  if (desk.editor.text.Text() != Page()) std::abort();
}
BENCHMARK(RndDecipherInWindow)
    ->Name("rnd_decipher_4096000_letters_and_show (limit 500 ms)")
    ->Unit(benchmark::kMillisecond);

void Sums(benchmark::State& state) {
  const std::string text = Page();
  for (auto _ : state) benchmark::DoNotOptimize(SumsOf(text));
}
BENCHMARK(Sums)->Name("four_sums_of_64000_characters (limit 1 ms)")->Unit(benchmark::kMillisecond);

void LetterCiphers(benchmark::State& state) {
  const std::string text = Page();
  const Draw draw = [] { return 0.5; };
  for (auto _ : state) {
    benchmark::DoNotOptimize(Shiftp(text, 5));
    benchmark::DoNotOptimize(CronfeldEncipher(text, "123456789012345"));
    benchmark::DoNotOptimize(HackerTranscription(text, draw));
  }
}
BENCHMARK(LetterCiphers)
    ->Name("shift_cronfeld_and_cht_of_64000_characters (limit 10 ms)")
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelmar
