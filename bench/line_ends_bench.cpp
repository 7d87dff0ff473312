// Compares the line-end conversion of a large file with a plain copy. Prints the best of three runs in seconds (clock
// and processor time) and the most memory that the process has used so far. Limits: a fifth of the copy's speed if both
// files fit into the system's memory, and the size of both files for the process.
//
//   line_ends_bench FOLDER [MEBIBYTES]
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "files/line_ends.h"
#include "platform/files/disk_file.h"

namespace pelmar {
namespace {

void WriteAll(int file, const char* bytes, std::size_t size) {
  while (size > 0) {
    const ssize_t written = write(file, bytes, size);
    if (written < 0) std::abort();
    bytes += written;
    size -= static_cast<std::size_t>(written);
  }
}

void MakeFile(const std::string& path, std::size_t mebibytes, const std::string& line) {
  std::string block;
  while (block.size() < 1 << 20) block += line;
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (file < 0) std::abort();
  for (std::size_t i = 0; i < mebibytes; ++i) WriteAll(file, block.data(), block.size());
  close(file);
}

void Copy(const std::string& from_path, const std::string& to_path) {
  const int from = open(from_path.c_str(), O_RDONLY | O_CLOEXEC);
  const int to = open(to_path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  std::vector<char> piece(256 * 1024);
  ssize_t got = 0;
  while ((got = read(from, piece.data(), piece.size())) > 0) WriteAll(to, piece.data(), static_cast<std::size_t>(got));
  close(from);
  close(to);
}

// In seconds. The clock measures a person's wait; the processor time isn't changed by other programs.
struct Times {
  double clock = 1e9;
  double processor = 1e9;
};

double Seconds(clockid_t clock) {
  timespec time{};
  clock_gettime(clock, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

Times BestOfThree(const std::string& target, const std::function<void()>& act) {
  Times best;
  for (int round = 0; round < 3; ++round) {
    unlink(target.c_str());
    sync();
    const Times start{Seconds(CLOCK_MONOTONIC), Seconds(CLOCK_PROCESS_CPUTIME_ID)};
    act();
    best.clock = std::min(best.clock, Seconds(CLOCK_MONOTONIC) - start.clock);
    best.processor = std::min(best.processor, Seconds(CLOCK_PROCESS_CPUTIME_ID) - start.processor);
  }
  unlink(target.c_str());
  return best;
}

void Measure(const char* name, const std::function<std::string(std::string)>& convert, const std::string& folder,
             std::size_t mebibytes, const std::string& line) {
  const std::string source = folder + "/pelmar-bench.txt";
  const std::string target = folder + "/pelmar-bench.out";
  MakeFile(source, mebibytes, line);
  const Times copy = BestOfThree(target, [&] { Copy(source, target); });
  const Times conversion = BestOfThree(target, [&] {
    FileBytes file = ReadWholeFile(source, kAnySize);
    if (file.error != 0) std::abort();
    if (ReplaceFile(target, convert(std::move(file.bytes)), folder + "/").error != 0) std::abort();
  });
  unlink(source.c_str());
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  std::printf("%-24s copy %5.2f s (%5.2f)   conversion %5.2f s (%5.2f)   %.2f (%.2f) of its speed   %ld MiB\n", name,
              copy.clock, copy.processor, conversion.clock, conversion.processor, copy.clock / conversion.clock,
              copy.processor / conversion.processor, usage.ru_maxrss / 1024);
}

int Main(int argc, char** argv) {
  if (argc < 2) return std::fprintf(stderr, "usage: line_ends_bench FOLDER [MEBIBYTES]\n"), 1;
  const std::string folder = argv[1];
  const std::size_t mebibytes = argc > 2 ? static_cast<std::size_t>(std::atol(argv[2])) : 1024;
  const std::string words(40, 'x');
  Measure("to LF, lines of 40", ToLineFeeds, folder, mebibytes, words + "\r\n");
  Measure("to LF, empty lines", ToLineFeeds, folder, mebibytes, "\r\n");
  Measure("to CR LF, lines of 40", ToCrLf, folder, mebibytes, words + "\n");
  Measure("to CR LF, empty lines", ToCrLf, folder, mebibytes, "\n");
  Measure("to CR LF, one line", ToCrLf, folder, mebibytes, words);
  return 0;
}

}  // namespace
}  // namespace pelmar

int main(int argc, char** argv) { return pelmar::Main(argc, argv); }
