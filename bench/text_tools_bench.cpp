// Measures the text tools on documents of 64,000 bytes, each by its menu command. The names hold the limits. Shuffling
// removes words from a list in quadratic time: the worst document has 32,000 words of one letter; 10,000 real words
// take a tenth of that time. Runs offscreen on the real platform.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdlib>
#include <random>

#include "platform/qt/qt_platform.h"
#include "shell/editor.h"
#include "texttools/commands.h"
#include "texttools/replace.h"

namespace pelmar {
namespace {

constexpr std::size_t kDocument = 64000;

std::string Repeated(std::string_view text) {
  std::string result;
  while (result.size() + text.size() <= kDocument) result += text;
  return result;
}

std::string ShortLines() {
  constexpr std::string_view kLetters = "abcčdeřzžABCČ";
  std::mt19937 random(1);
  std::string text;
  for (int line = 0; line < 16000; ++line) {
    for (int letter = 0; letter < 2; ++letter) text += kLetters[random() % kLetters.size()];
    text += "\r\n";
  }
  return text;
}

struct Desk {
  QtPlatform platform;
  Editor editor{platform};

  Desk() { AddTextToolCommands(editor); }
  void Select(const std::string& text) {
    editor.text.SetText(text);
    editor.text.Select(0, text.size());
  }
};

void RunCommand(benchmark::State& state, const char* command, const std::string& text) {
  Desk desk;
  for (auto _ : state) {
    state.PauseTiming();
    desk.Select(text);
    state.ResumeTiming();
    desk.editor.commands.Run(command);
  }
}

void ReplaceAll(benchmark::State& state, const char* find, const char* change) {
  Desk desk;
  Replacer replacer(desk.editor.text, desk.platform);
  for (auto _ : state) {
    state.PauseTiming();
    desk.Select(Repeated("ab"));
    replacer.find = find;
    replacer.change = change;
    state.ResumeTiming();
    replacer.ReplaceAll();
  }
}

#define COMMAND(name, limit, command, text)              \
  BENCHMARK_CAPTURE(RunCommand, command, #command, text) \
      ->Name(name " (limit " limit " ms)")               \
      ->Unit(benchmark::kMillisecond)

BENCHMARK_CAPTURE(ReplaceAll, longer, "a", "xyz")
    ->Name("replace_32000_matches_by_three (limit 20 ms)")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReplaceAll, nothing, "a", "")
    ->Name("replace_32000_matches_by_nothing (limit 20 ms)")
    ->Unit(benchmark::kMillisecond);
COMMAND("sort_16000_lines", "50", Mnu_Sort_Lines, ShortLines());
COMMAND("number_32000_lines", "2", mnuEnterLineNumbers, Repeated("\r\n"));
COMMAND("words_to_lines_32000", "5", MnuSelTextDivideWordsToLines, Repeated("a "));
COMMAND("shuffle_32000_words", "500", MnuSelTextDada, Repeated("a "));
COMMAND("lower_case", "2", mnusmall, Repeated("Příliš Žluťoučký KŮŇ "));
COMMAND("upper_case", "2", mnubig, Repeated("Příliš Žluťoučký KŮŇ "));
COMMAND("proper_case", "2", mnupropercase, Repeated("Příliš Žluťoučký KŮŇ "));
COMMAND("random_case", "2", mnu_untext, Repeated("Příliš Žluťoučký KŮŇ "));
COMMAND("reverse", "2", mnuprevrat, Repeated("Příliš Žluťoučký KŮŇ "));
COMMAND("strip_diacritics", "2", mnuHackyCarky, Repeated("Příliš Žluťoučký KŮŇ "));

}  // namespace
}  // namespace pelmar
