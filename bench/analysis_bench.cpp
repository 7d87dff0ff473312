// Measures counting, ranking, listing and drawing 64,000 characters, offscreen. Limit: 5 ms in total.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <cstdlib>
#include <random>

#include "accessories/analysis.h"
#include "accessories/windows/analytic.h"

namespace pelmar {
namespace {

constexpr std::size_t kDocument = 64000;

// Some codes occur often, most rarely or never. Each seed gives another ranking of the codes.
std::string Text(unsigned seed) {
  std::mt19937 random(seed);
  std::binomial_distribution<int> code(255, 0.2 + 0.1 * (seed % 7));
  std::string text(kDocument, '\0');
  for (char& ch : text) ch = static_cast<char>(code(random));
  return text;
}

void Analyse(benchmark::State& state) {
  const std::string text = Text(1);
  for (auto _ : state) benchmark::DoNotOptimize(AnalysisRows(AnalyseText(text)));
}
BENCHMARK(Analyse)->Name("analyse_64000_characters")->Unit(benchmark::kMillisecond);

void AnalyseAndDraw(benchmark::State& state) {
  TextBuffer document;
  document.SetText(Text(0));
  Analytic dialog(document, nullptr);
  dialog.Present();
  if (!QTest::qWaitForWindowExposed(&dialog)) std::abort();
  auto* start = dialog.findChild<QPushButton*>(QStringLiteral("Command1"));
  auto* graph = dialog.findChild<QWidget*>(QStringLiteral("Pic"));
  auto* list = dialog.findChild<QListWidget*>(QStringLiteral("List1"));
  const std::string texts[] = {Text(1), Text(2)};
  std::size_t turn = 0;
  for (auto _ : state) {
    state.PauseTiming();
    document.SetText(texts[++turn % 2]);
    state.ResumeTiming();
    start->click();
    graph->repaint();
    list->viewport()->repaint();
  }
}
BENCHMARK(AnalyseAndDraw)->Name("analyse_and_draw_64000_characters (limit 5 ms)")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelmar
