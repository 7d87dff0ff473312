// Measures the first opening of `Otevři` in a folder of 50,000 files, from the constructor to the first picture. Each
// of the two lists reads the folder once. Limit: 200 ms. Runs offscreen on the real platform.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "files/files.h"
#include "files/windows/otevri.h"
#include "platform/qt/qt_platform.h"

namespace pelmar {
namespace {

constexpr int kFiles = 50'000;

void FirstOpening(benchmark::State& state) {
  const QTemporaryDir folder;
  std::filesystem::current_path(folder.path().toStdString());
  for (int i = 0; i < kFiles; ++i) std::ofstream("stránka " + std::to_string(i * 7919 % kFiles) + ".html");
  QtPlatform platform;
  Editor editor(platform);
  Files files(editor);
  for (auto _ : state) {
    Otevri dialog(files.opener, platform, nullptr);
    dialog.Present();
    QCoreApplication::processEvents();
  }
  std::filesystem::current_path("/");
}
BENCHMARK(FirstOpening)->Name("first_opening_of_50000_files (limit 200 ms)")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelmar
