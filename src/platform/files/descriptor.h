// An open file, and functions that write and sync open files. A function outside the class whose result is an int
// returns 0 or an errno.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <string_view>
#include <utility>

namespace pelmar {

// The number of an open file, or -1. The destructor closes the file and keeps errno unchanged.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    const int error = errno;
    if (IsOpen()) close(number_);
    errno = error;
  }
  [[nodiscard]] bool IsOpen() const { return number_ >= 0; }
  [[nodiscard]] int Number() const { return number_; }
  int Close() { return close(std::exchange(number_, -1)) == 0 ? 0 : errno; }

 private:
  int number_;
};

// Without O_NONBLOCK, opening a pipe would wait until another process opens the other end.
inline constexpr int kOpenSafely = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

int WriteAll(int file, std::string_view bytes);

// The part of a path up to its last separator, with the separator. "" if the path has no separator.
std::string FolderOf(const std::string& path);

// Waits until a file or a folder is on the disk. Returns 0 if the file system has no fsync.
int Sync(int file);

// Waits until the folder of the path is on the disk, with the names of its files. If the folder can't be opened for
// reading, waits for the whole file system of the open `file`.
int SyncFolderOf(const std::string& path, int file);

// Whether the path still leads to the open `file`. If not, a lock on `file` is useless.
bool IsStillNamed(int file, const std::string& path);

}  // namespace pelmar
