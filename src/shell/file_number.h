// File number 1 is a lock that the whole program shares. Whoever opens or saves a document, or uses one of the
// program's own files, holds the number or checks that nobody holds it. required: the opening of a document whose name
// has no extension ends in an error that leaves the number in use. Then documents and the program's own files can't be
// opened or saved until the program is restarted. The rescue, the help and the conversions of files don't use the
// number.
#pragma once

#include <cerrno>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "platform/runtime_error.h"

namespace pelmar {

class FileNumber {
 public:
  [[nodiscard]] bool IsOpen() const { return open_; }

  // Throws RuntimeError (EBUSY) if the number is in use.
  void Open() {
    if (open_) throw RuntimeError(EBUSY, "Soubor číslo 1 je již otevřen");
    open_ = true;
  }
  void Close() { open_ = false; }

 private:
  bool open_ = false;
};

// The constructor opens the file number, the destructor closes the number.
class FileNumberGuard {
 public:
  explicit FileNumberGuard(FileNumber& number) : number_(number) { number_.Open(); }
  FileNumberGuard(const FileNumberGuard&) = delete;
  FileNumberGuard& operator=(const FileNumberGuard&) = delete;
  ~FileNumberGuard() { number_.Close(); }

 private:
  FileNumber& number_;
};

// True if the path leads to a regular file that can be opened for reading. Ignores one separator at the end of the
// path. required: always false while the number is in use.
bool FileExists(const FileNumber& number, Platform& platform, const std::string& path);

// Reads at most `limit` bytes of a file, nothing if FileExists is false. Throws RuntimeError if an existing file can't
// be read.
std::optional<std::string> ReadIfExists(const FileNumber& number, Platform& platform, const std::string& path,
                                        std::optional<std::uint64_t> limit);

// An extra line for the message about a failed write: the file is damaged, and its old content lies in the file
// outcome.kept. Empty if outcome.kept is empty.
std::string KeptNotice(const WriteOutcome& outcome);

// If the file is longer than `bytes`, appends the rest of the file to `bytes`. Returns 0, or an errno if an existing
// file can't be read.
int AppendOldTail(Platform& platform, const std::string& path, std::string& bytes);

// The functions below read and write files of the program (settings, notes, autosaves, cipher tables) and hold the file
// number meanwhile. All throw RuntimeError if a step fails.
void WriteFileOn(FileNumber& number, Platform& platform, const std::string& path, std::string_view bytes);
// Overwrites the start of the file and keeps the tail of a longer old file. Never overwrites an unreadable file.
void WriteRecordOn(FileNumber& number, Platform& platform, const std::string& path, std::string record);
// Reads at most `limit` bytes. A missing file is created empty.
std::string ReadOrMakeOn(FileNumber& number, Platform& platform, const std::string& path, std::uint64_t limit);

}  // namespace pelmar
