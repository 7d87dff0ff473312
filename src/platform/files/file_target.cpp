#include "platform/files/file_target.h"

#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstddef>
#include <cstdlib>

#include "platform/files/descriptor.h"
#include "platform/files/file_attributes.h"
#include "platform/files/kept_content.h"
#include "platform/files/new_file.h"

namespace pelmar {
namespace {

// Replaces the path by the path that its links lead to. The last link may lead to a missing file.
int FollowLinks(std::string& path) {
  constexpr int kMostLinks = 40;
  for (int links = 0; links < kMostLinks; ++links) {
    std::string target(PATH_MAX, '\0');
    const ssize_t length = readlink(path.c_str(), target.data(), target.size());
    if (length < 0) return errno == EINVAL || errno == ENOENT ? 0 : errno;
    target.resize(static_cast<std::size_t>(length));
    if (!target.starts_with('/')) target.insert(0, FolderOf(path));
    path = target;
  }
  return ELOOP;
}

// Whether the error means that the folder refuses a new file or a rename.
bool FolderRefuses(int error) { return error == EACCES || error == EPERM || error == EROFS || error == EBUSY; }

// Reserves space for the new content, so that a full disk is noticed before the first byte changes. Returns 0 also if
// the file system can't reserve space.
int Reserve(int file, std::size_t size) {
  if (size == 0 || fallocate(file, FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(size)) == 0) return 0;
  return errno == ENOSPC || errno == EDQUOT || errno == EFBIG ? errno : 0;
}

// Sets `exists` and `old` of the target. Returns 0, or an errno if the target can't be written.
int Examine(Target& target) {
  if (stat(target.path.c_str(), &target.old) != 0) return errno != ENOENT || target.path.ends_with('/') ? errno : 0;
  const mode_t mode = target.old.st_mode;
  if (S_ISDIR(mode)) return EISDIR;
  if (!S_ISREG(mode)) return EINVAL;
  target.exists = true;
  // A rename would succeed without write permission, but a file that its owner has protected stays protected.
  return faccessat(AT_FDCWD, target.path.c_str(), W_OK, AT_EACCESS) == 0 ? 0 : errno;
}

int Overwrite(int file, std::string_view bytes) {
  if (lseek(file, 0, SEEK_SET) < 0) return errno;
  if (const int error = WriteAll(file, bytes)) return error;
  return ftruncate(file, static_cast<off_t>(bytes.size())) == 0 ? Sync(file) : errno;
}

}  // namespace

Target FindTarget(const std::string& path) {
  Target target{.path = path};
  target.error = FollowLinks(target.path);
  if (target.error == 0) target.error = Examine(target);
  return target;
}

Beside WriteBeside(const Target& target, std::string_view bytes, mode_t new_mode) {
  const bool old = target.exists;
  // All names of the file must lead to the new content, but a rename would change only one name.
  if (old && target.old.st_nlink > 1) return {.error = EMLINK, .try_in_place = true};
  NewFile file(target.path, old ? 0600 : new_mode);
  if (file.Error() != 0) return {.error = file.Error(), .try_in_place = old && FolderRefuses(file.Error())};
  if (old) {
    const int error = GiveAttributes(file.Number(), target.path, target.old);
    if (error != 0) return {.error = error, .try_in_place = true};
  }
  if (const int error = WriteAll(file.Number(), bytes)) return {.error = error};
  if (const int error = Sync(file.Number())) return {.error = error};
  const int error = old ? file.TakeNameOf(target.path) : file.TakeNewName(target.path);
  if (error == 0) return {.error = SyncFolderOf(target.path, file.Number())};
  return {.error = error, .try_in_place = old && FolderRefuses(error)};
}

WriteOutcome WriteInPlace(const Target& target, std::string_view bytes, const std::string& keep_folder) {
  const Descriptor file(open(target.path.c_str(), O_RDWR | O_NOFOLLOW | kOpenSafely));
  if (!file.IsOpen()) return {.error = errno};
  if (const int error = Reserve(file.Number(), bytes.size())) return {.error = error};
  KeptContent kept;
  if (const int error = kept.Keep(file.Number(), target.path, keep_folder)) return {.error = error};
  const int error = Overwrite(file.Number(), bytes);
  if (error != 0 && kept.PutBack(file.Number()) != 0) {
    MarkAsReported(kept.Path());
    return {.error = error, .kept = kept.Path()};
  }
  kept.Remove();
  // Drops the set-id bits. The call fails if the writer is neither the owner nor root. In this case the kernel has
  // dropped the bits already.
  if (error == 0 && (target.old.st_mode & (S_ISUID | S_ISGID)) != 0)
    fchmod(file.Number(), target.old.st_mode & kKeptMode);
  return {.error = error};
}

}  // namespace pelmar
