// Measures the tag editor's analysis of a tag of 64,000 bytes and of a tag of half that length. The time is linear, so
// the second takes about half as long. Limit: 50 ms.
#include <benchmark/benchmark.h>

#include <string>

#include "html/tag_editor.h"

namespace pelmar {
namespace {

void Analyse(benchmark::State& state, const char* piece) {
  std::string tag = "<A ";
  while (tag.size() < static_cast<std::size_t>(state.range(0))) tag += piece;
  tag += '>';
  for (auto _ : state) benchmark::DoNotOptimize(AnalyseTag(tag, tag.size()));
}

#define TAG_OF(name, piece)                    \
  BENCHMARK_CAPTURE(Analyse, name, piece)      \
      ->Name("tag_of_" #name " (limit 50 ms)") \
      ->Arg(32000)                             \
      ->Arg(64000)                             \
      ->Unit(benchmark::kMillisecond)

TAG_OF(attributes, " ID=x");
TAG_OF(words_of_one_value, " x");
TAG_OF(blanks, " ");
TAG_OF(equals, "=");
TAG_OF(quotes, " \"");
TAG_OF(markers, " \xFF");

}  // namespace
}  // namespace pelmar
