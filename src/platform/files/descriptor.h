// An open file and the loops around its calls. Errors are errno values, 0 is none.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace pelmar {

// Closing it in the destructor leaves errno alone.
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

// Without O_NONBLOCK the open of a pipe waits for its other end.
inline constexpr int kOpenSafely = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

int WriteAll(int file, std::string_view bytes);

// Hands each piece of a file, from where it stands to its end, to `take`, which returns 0 or an errno.
int ForEachPiece(int file, const std::function<int(std::string_view)>& take);

// All of one file becomes the content of another, whatever that was.
int CopyWhole(int from, int to);

// The folder that a path names its file in, with the separator; "" for the current one.
std::string FolderOf(const std::string& path);

// Waits until a file or a folder is on the disk. A file system without such a call is no error.
int Sync(int file);

// Waits until the folder of the path is on the disk, and with it the name that the open `file` has got there.
int SyncFolderOf(const std::string& path, int file);

// False where the name has gone, or has become another file's, since `file` was opened by it: then a lock on the file
// keeps nobody out.
bool IsStillNamed(int file, const std::string& path);

}  // namespace pelmar
