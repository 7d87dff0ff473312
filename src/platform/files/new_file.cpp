#include "platform/files/new_file.h"

#include <unistd.h>

#include <array>
#include <cstdio>
#include <string_view>

namespace pelmar {
namespace {

constexpr char kMark[] = ".pelmar-";
constexpr std::string_view kNameCharacters = "abcdefghijklmnopqrstuvwxyz012345";
constexpr std::size_t kDrawn = 6;
constexpr int kMostTries = 100;

// Draws six random characters. "" if the system has no random numbers; errno has the reason.
std::string DrawName() {
  std::array<unsigned char, kDrawn> draw{};
  if (getentropy(draw.data(), draw.size()) != 0) return "";
  std::string letters;
  for (const unsigned char one : draw) letters += kNameCharacters[one % kNameCharacters.size()];
  return letters;
}

// Calls `take` with random names until `take` returns another result than EEXIST, at most kMostTries times. Returns the
// last result of `take`, or the errno of a failed draw.
template <typename Take>
int TryNames(const std::string& start, const std::string& end, const Take& take) {
  for (int tries = 0; tries < kMostTries; ++tries) {
    std::string name = DrawName();
    if (name.empty()) return errno;
    name.insert(0, start).append(end);
    const int error = take(name);
    if (error != EEXIST) return error;
  }
  return EEXIST;
}

int Link(int file, const std::string& name) {
  const std::string unnamed = "/proc/self/fd/" + std::to_string(file);
  return linkat(AT_FDCWD, unnamed.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0 ? 0 : errno;
}

// Closes a duplicate of the descriptor, since a file server may report a failed write only on close. The file stays
// open because its content may still be needed.
int CloseDuplicate(int file) {
  const int again = fcntl(file, F_DUPFD_CLOEXEC, 0);
  return again >= 0 && close(again) == 0 ? 0 : errno;
}

}  // namespace

NewFile::NewFile(const std::string& beside, mode_t mode) : folder_(FolderOf(beside)) {
  const char* const folder = folder_.empty() ? "." : folder_.c_str();
  // A file without a name needs /proc, since Link gives the name through /proc.
  if (access("/proc/self/fd", X_OK) == 0) file_ = Descriptor(open(folder, O_TMPFILE | O_RDWR | O_CLOEXEC, mode));
  if (!file_.IsOpen()) error_ = CreateNamed(mode);
}

NewFile::~NewFile() {
  if (!name_.empty()) unlink(name_.c_str());
}

int NewFile::CreateNamed(mode_t mode) {
  return TryNames(folder_ + kMark, "", [&](const std::string& name) {
    file_ = Descriptor(open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (!file_.IsOpen()) return errno;
    name_ = name;
    return 0;
  });
}

int NewFile::TakeNewName(const std::string& path) {
  if (const int error = CloseDuplicate(file_.Number())) return error;
  if (name_.empty()) return Link(file_.Number(), path);
  const bool renamed = renameat2(AT_FDCWD, name_.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0;
  if (!renamed && errno != EINVAL && errno != ENOSYS) return errno;
  // If the rename failed, the system doesn't support RENAME_NOREPLACE here. A hard link doesn't replace a file either.
  if (!renamed && link(name_.c_str(), path.c_str()) != 0) return errno == EEXIST ? EEXIST : TakeNameOf(path);
  if (!renamed) unlink(name_.c_str());
  name_.clear();
  return 0;
}

int NewFile::TakeFreeName(const std::string& start, const std::string& end, std::string& taken) {
  return TryNames(start, end, [&](const std::string& name) {
    const int error = TakeNewName(name);
    if (error == 0) taken = name;
    return error;
  });
}

int NewFile::TakeNameOf(const std::string& path) {
  if (name_.empty()) {
    if (const int error = TakeFreeName(folder_ + kMark, "", name_)) return error;
  } else if (const int error = CloseDuplicate(file_.Number())) {
    return error;
  }
  if (rename(name_.c_str(), path.c_str()) != 0) return errno;
  name_.clear();
  return 0;
}

}  // namespace pelmar
