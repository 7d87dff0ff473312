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

// Writes from the current position of `to`.
int RewriteInto(int to, int from, FileRewriter& rewriter) {
  const int error = ForEachPiece(from, [&](std::string_view piece) { return WriteAll(to, rewriter.Rewrite(piece)); });
  return error != 0 ? error : WriteAll(to, rewriter.Finish());
}

// Cuts `to` after its first `kept` bytes. Then appends the bytes of `old` from position `kept` on, or nothing if `old`
// is -1.
int CopyTail(int old, int to, std::uint64_t kept) {
  const auto at = static_cast<off_t>(kept);
  if (ftruncate(to, at) != 0) return errno;
  if (old < 0) return 0;
  if (lseek(to, at, SEEK_SET) < 0 || lseek(old, at, SEEK_SET) < 0) return errno;
  return ForEachPiece(old, [to](std::string_view piece) { return WriteAll(to, piece); });
}

// Replaces the target by a new file. If the folder or the old file doesn't allow this, overwrites the target.
WriteOutcome WriteOver(const Target& target, NewContent content, const std::string& keep_folder, mode_t new_mode) {
  const Beside beside = WriteBeside(target, content, new_mode);
  if (!beside.try_in_place) return {.error = beside.error};
  if (beside.content.IsOpen()) {
    content.fill = [&beside](int to, int) { return CopyWhole(beside.content.Number(), to); };
    content.reads_old = false;
    struct stat written {};
    if (fstat(beside.content.Number(), &written) == 0) content.size = static_cast<std::uint64_t>(written.st_size);
  }
  return WriteInPlace(target, content, keep_folder);
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

int ReadFileByPieces(const std::string& path, const std::function<bool(std::string_view)>& take) {
  constexpr int kEnough = -1;
  const Source source = OpenRegular(path);
  if (source.error != 0) return source.error;
  const int error =
      ForEachPiece(source.file.Number(), [&](std::string_view piece) { return take(piece) ? 0 : kEnough; });
  return error == kEnough ? 0 : error;
}

WriteOutcome ReplaceFile(const std::string& path, std::string_view bytes, const std::string& keep_folder,
                         mode_t new_mode) {
  const Target target = FindTarget(path);
  if (target.error != 0) return {.error = target.error};
  const auto fill = [bytes](int to, int) {
    if (const int error = WriteAll(to, bytes)) return error;
    return ftruncate(to, static_cast<off_t>(bytes.size())) == 0 ? 0 : errno;
  };
  return WriteOver(target, {.fill = fill, .size = bytes.size()}, keep_folder, new_mode);
}

WriteOutcome RewriteFileByPieces(const std::string& source_path, const std::string& target_path, OldTail tail,
                                 FileRewriter& rewriter, const std::string& keep_folder) {
  const Source source = OpenRegular(source_path);
  if (source.error != 0) return {.error = source.error};
  const Target target = FindTarget(target_path);
  if (target.error != 0) return {.error = target.error};
  const auto fill = [&](int to, int old) {
    const int error = RewriteInto(to, source.file.Number(), rewriter);
    return error != 0 ? error : CopyTail(old, to, rewriter.ResultLength());
  };
  const NewContent content{.fill = fill, .reads_old = tail == OldTail::kKeep};
  return WriteOver(target, content, keep_folder, 0666);
}

std::optional<FileStamp> StampOf(const std::string& path) {
  struct stat found {};
  if (stat(path.c_str(), &found) != 0) return std::nullopt;
  return FileStamp{.device = found.st_dev,
                   .node = found.st_ino,
                   .size = static_cast<std::uint64_t>(found.st_size),
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
