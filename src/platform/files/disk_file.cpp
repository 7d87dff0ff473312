#include "platform/files/disk_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <exception>

#include "platform/files/descriptor.h"
#include "platform/files/file_target.h"

namespace pelmar {
namespace {

struct Source {
  int error = 0;
  Descriptor file = Descriptor();
  std::uint64_t size = 0;
};

int NotRegular(const struct stat& state) {
  if (S_ISDIR(state.st_mode)) return EISDIR;
  return S_ISREG(state.st_mode) ? 0 : EINVAL;
}

Source OpenRegular(const std::string& path) {
  struct stat state {};
  if (stat(path.c_str(), &state) != 0) return {.error = errno};
  // Check before opening: opening a pipe wakes the process at its other end, and opening a device can start an action.
  if (const int error = NotRegular(state)) return {.error = error};
  Source source{.file = Descriptor(open(path.c_str(), O_RDONLY | kOpenSafely))};
  if (!source.file.IsOpen() || fstat(source.file.Number(), &state) != 0) return {.error = errno};
  if (const int error = NotRegular(state)) return {.error = error};
  source.size = static_cast<std::uint64_t>(state.st_size);
  return source;
}

int ReadAll(int file, std::uint64_t limit, std::string& bytes) {
  constexpr std::size_t kStep = 1 << 16;
  bytes.reserve(static_cast<std::size_t>(limit));
  while (bytes.size() < limit) {
    const std::size_t had = bytes.size();
    bytes.resize(had + static_cast<std::size_t>(std::min<std::uint64_t>(kStep, limit - had)));
    const ssize_t got = read(file, bytes.data() + had, bytes.size() - had);
    const int error = errno;
    bytes.resize(had + (got > 0 ? static_cast<std::size_t>(got) : 0));
    if (got == 0) return 0;
    if (got < 0 && error != EINTR) return error;
  }
  return 0;
}

}  // namespace

bool CanReadFile(const std::string& path) { return OpenRegular(path).error == 0; }

FileBytes ReadWholeFile(const std::string& path, std::optional<std::uint64_t> limit) {
  const Source source = OpenRegular(path);
  if (source.error != 0) return {.error = source.error, .bytes = {}};
  if (!limit && source.size > kLongestWhole) return {.error = EFBIG, .bytes = {}};
  FileBytes result;
  try {
    result.error = ReadAll(source.file.Number(), std::min(limit.value_or(source.size), source.size), result.bytes);
  } catch (const std::exception&) {  // the size is beyond the memory (bad_alloc) or beyond every string (length_error)
    result.error = ENOMEM;
  }
  if (result.error != 0) result.bytes.clear();
  return result;
}

WriteOutcome ReplaceFile(const std::string& path, std::string_view bytes, const std::string& keep_folder,
                         mode_t new_mode) {
  const Target target = FindTarget(path);
  if (target.error != 0) return {.error = target.error};
  const Beside beside = WriteBeside(target, bytes, new_mode);
  return beside.try_in_place ? WriteInPlace(target, bytes, keep_folder) : WriteOutcome{.error = beside.error};
}

std::optional<FileStamp> StampOf(const std::string& path) {
  struct stat found {};
  if (stat(path.c_str(), &found) != 0) return std::nullopt;
  return FileStamp{.size = static_cast<std::uint64_t>(found.st_size),
                   .changed = found.st_mtim.tv_sec * std::int64_t{1'000'000'000} + found.st_mtim.tv_nsec};
}

int CreateFile(const std::string& path, std::string_view bytes) {
  Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
  if (!file.IsOpen()) return errno;
  int error = WriteAll(file.Number(), bytes);
  if (error == 0) error = Sync(file.Number());
  if (error == 0) error = SyncFolderOf(path, file.Number());
  if (const int close_error = file.Close(); error == 0) error = close_error;
  if (error != 0) unlink(path.c_str());
  return error;
}

}  // namespace pelmar
