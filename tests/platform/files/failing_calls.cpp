// With this macro the C library would define inline functions of the same names.
#undef _FORTIFY_SOURCE

#include "platform/files/failing_calls.h"

#include <dlfcn.h>
#include <sys/types.h>

#include <cerrno>
#include <cstdarg>

namespace pelmar {
namespace {

// The bits of O_TMPFILE, and O_CREAT | O_EXCL.
constexpr int kUnnamed = 020000000, kNew = 0300;

// Counts a call. Returns true and sets errno if the call is to fail. Only a read or a write fails with EINTR.
bool Fails(bool transfers = false) {
  if (!failing.counts || ++failing.made < failing.number || failing.number == 0) return false;
  if (failing.made > failing.number && !failing.all_later) return false;
  if (failing.error == EINTR && !transfers) return false;
  errno = failing.error;
  return true;
}

template <typename Result, typename... Arguments>
Result Real(const char* name, Arguments... arguments) {
  return reinterpret_cast<Result (*)(Arguments...)>(dlsym(RTLD_NEXT, name))(arguments...);
}

void Note(const char* step) {
  if (failing.counts) failing.steps += std::string(failing.steps.empty() ? "" : " ") + step;
}

template <typename Result, bool transfers = false, typename... Arguments>
Result Pass(const char* name, Arguments... arguments) {
  return Fails(transfers) ? -1 : Real<Result>(name, arguments...);
}

}  // namespace
}  // namespace pelmar

using pelmar::Note;
using pelmar::Pass;

// These replace the C library's functions. The headers of these functions aren't included: some declare noexcept.
extern "C" {
int open(const char* path, int flags, ...) {
  if (pelmar::no_unnamed_files && (flags & pelmar::kUnnamed) == pelmar::kUnnamed) {
    errno = EOPNOTSUPP;
    return -1;
  }
  if ((flags & pelmar::kNew) == pelmar::kNew) Note("create");
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = va_arg(rest, mode_t);
  va_end(rest);
  return Pass<int>("open", path, flags, mode);
}
// A failing call writes half of the bytes, as on a disk that becomes full.
ssize_t write(int file, const void* bytes, size_t size) {
  const bool fails = pelmar::Fails(true);
  if (fails && errno == EINTR) return -1;
  const ssize_t written = pelmar::Real<ssize_t>("write", file, bytes, fails ? size / 2 : size);
  if (!fails) return written;
  errno = pelmar::failing.error;
  return -1;
}
// While calls are counted, nothing waits for the disk: a test makes hundreds of saves.
int fsync(int file) {
  if (!pelmar::failing.counts) return pelmar::Real<int>("fsync", file);
  const bool folder =
      pelmar::Real<ssize_t>("read", file, static_cast<void*>(nullptr), size_t{0}) < 0 && errno == EISDIR;
  Note(folder ? "folder" : "content");
  return pelmar::Fails() ? -1 : 0;
}
ssize_t read(int file, void* bytes, size_t size) { return Pass<ssize_t, true>("read", file, bytes, size); }
int syncfs(int /*file*/) { return pelmar::Fails() ? -1 : 0; }
off_t lseek(int file, off_t at, int from) { return Pass<off_t>("lseek", file, at, from); }
int ftruncate(int file, off_t size) { return Pass<int>("ftruncate", file, size); }
int fallocate(int file, int mode, off_t at, off_t size) { return Pass<int>("fallocate", file, mode, at, size); }
int fchmod(int file, mode_t mode) { return Pass<int>("fchmod", file, mode); }
int fchown(int file, uid_t user, gid_t group) { return Pass<int>("fchown", file, user, group); }
int fsetxattr(int file, const char* name, const void* bytes, size_t size, int flags) {
  return Pass<int>("fsetxattr", file, name, bytes, size, flags);
}
ssize_t llistxattr(const char* path, char* names, size_t size) {
  return Pass<ssize_t>("llistxattr", path, names, size);
}
ssize_t lgetxattr(const char* path, const char* name, void* bytes, size_t size) {
  return Pass<ssize_t>("lgetxattr", path, name, bytes, size);
}
int fremovexattr(int file, const char* name) { return Pass<int>("fremovexattr", file, name); }
int flock(int file, int what) { return Pass<int>("flock", file, what); }
int linkat(int folder, const char* path, int to_folder, const char* to, int flags) {
  Note("link");
  return Pass<int>("linkat", folder, path, to_folder, to, flags);
}
int rename(const char* from, const char* to) {
  Note("rename");
  return Pass<int>("rename", from, to);
}
int renameat2(int folder, const char* from, int to_folder, const char* to, unsigned flags) {
  Note("rename");
  return Pass<int>("renameat2", folder, from, to_folder, to, flags);
}
int unlink(const char* path) {
  Note("remove");
  return Pass<int>("unlink", path);
}
}
