// Measures the time of a key and of the first display of a text in a text box.
// Limits: a key in 64,000 bytes 0.1 ms, with its paint 2 ms; one line of 4,096,000 characters is displayed in 50 ms, a
// key in this line takes 10 ms. Runs offscreen.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <cstdlib>
#include <string>

#include "platform/qt/textbox/text_box.h"

namespace pelmar {
namespace {

constexpr std::size_t kDocument = 64000;
constexpr std::size_t kCiphertext = 4096000;
constexpr QSize kWindow(800, 600);

// Lines of words, like the source of a web page.
std::string Page() {
  std::string text;
  while (text.size() < kDocument)
    text += "<TR><TD ALIGN=\"center\">nejaky text bunky</TD></TR> a slovo k tomu navic\r\n";
  text.resize(kDocument);
  return text;
}

// One line with a few blanks and all codes that a cipher writes, except line breaks.
std::string Ciphertext() {
  std::string text(kCiphertext, '\0');
  unsigned state = 1;
  for (char& ch : text) {
    state = state * 1664525U + 1013904223U;
    ch = static_cast<char>(state >> 24U);
    if (ch == '\n') ch = 'n';
  }
  return text;
}

// One line without blanks, so a letter typed at its beginning moves all row breaks.
std::string Digits() {
  std::string text(kCiphertext, '0');
  for (std::size_t i = 0; i < text.size(); ++i) text[i] = static_cast<char>('0' + i % 10);
  return text;
}

void Press(TextBox& box, int key, const QString& text) {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&box, &event);
}

// Types a letter and removes it at the next call, so that the text keeps its size.
void Key(TextBox& box, bool& typed) {
  typed = !typed;
  typed ? Press(box, Qt::Key_A, QStringLiteral("a")) : Press(box, Qt::Key_Backspace, QString());
}

void Show(TextBox& box, const std::string& text, std::size_t caret) {
  box.resize(kWindow);
  box.Buffer().SetText(text);
  box.show();
  box.setFocus();
  QApplication::processEvents();
  box.Buffer().SetSelStart(caret);
  QApplication::processEvents();
}

void KeyAlone(benchmark::State& state, const std::string& text, std::size_t caret) {
  TextBox box;
  Show(box, text, caret);
  bool typed = false;
  for (auto _ : state) Key(box, typed);
}

void KeyAndPaint(benchmark::State& state, const std::string& text, std::size_t caret) {
  TextBox box;
  Show(box, text, caret);
  bool typed = false;
  for (auto _ : state) {
    Key(box, typed);
    QApplication::processEvents();
  }
}

void KeyAndWholePaint(benchmark::State& state, const std::string& text, std::size_t caret) {
  TextBox box;
  Show(box, text, caret);
  QImage image(box.viewport()->size(), QImage::Format_RGB32);
  bool typed = false;
  for (auto _ : state) {
    Key(box, typed);
    box.viewport()->render(&image);
  }
}

void FirstSight(benchmark::State& state, const std::string& text) {
  TextBox box;
  Show(box, {}, 0);
  QImage image(box.viewport()->size(), QImage::Format_RGB32);
  for (auto _ : state) {
    box.Buffer().SetText(text);
    box.viewport()->render(&image);
    state.PauseTiming();
    box.Buffer().SetText({});
    QApplication::processEvents();
    state.ResumeTiming();
  }
}

void AnotherWidth(benchmark::State& state, const std::string& text) {
  TextBox box;
  Show(box, text, 0);
  int wider = 0;
  for (auto _ : state) {
    wider = 1 - wider;
    box.resize(kWindow.width() + wider, kWindow.height());
    QApplication::processEvents();
  }
}

void MouseWay(benchmark::State& state, const std::string& text) {
  TextBox box;
  Show(box, text, text.size() / 2);
  int x = 0;
  for (auto _ : state) {
    x = (x + 37) % kWindow.width();
    benchmark::DoNotOptimize(box.PlaceAt({x, 200}));
  }
}

void RegisterAll() {
  using benchmark::RegisterBenchmark;
  const auto ms = benchmark::kMillisecond;
  static const std::string page = Page();
  static const std::string cipher = Ciphertext();
  static const std::string digits = Digits();
  RegisterBenchmark("key_in_64000_bytes (limit 0.1 ms)", [](auto& s) { KeyAlone(s, page, 30000); })->Unit(ms);
  RegisterBenchmark("key_in_64000_bytes_with_its_paint (limit 2 ms)", [](auto& s) {
    KeyAndPaint(s, page, 30000);
  })->Unit(ms);
  RegisterBenchmark("key_in_64000_bytes_with_whole_window_painted (limit 2 ms)", [](auto& s) {
    KeyAndWholePaint(s, page, 30000);
  })->Unit(ms);
  RegisterBenchmark("show_line_of_4096000 (limit 50 ms)", [](auto& s) { FirstSight(s, cipher); })->Unit(ms);
  RegisterBenchmark("key_in_line_of_4096000_at_start (limit 10 ms)", [](auto& s) {
    KeyAndPaint(s, cipher, 0);
  })->Unit(ms);
  RegisterBenchmark("key_in_line_of_4096000_at_middle (limit 10 ms)", [](auto& s) {
    KeyAndPaint(s, cipher, kCiphertext / 2);
  })->Unit(ms);
  RegisterBenchmark("hit_in_line_of_4096000", [](auto& s) { MouseWay(s, cipher); })->Unit(ms);
  RegisterBenchmark("key_in_4096000_digits_at_start (limit 10 ms)", [](auto& s) {
    KeyAndPaint(s, digits, 0);
  })->Unit(ms);
  RegisterBenchmark("another_width_of_line_of_4096000", [](auto& s) { AnotherWidth(s, cipher); })->Unit(ms);
}

}  // namespace
}  // namespace pelmar

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  pelmar::RegisterAll();
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
