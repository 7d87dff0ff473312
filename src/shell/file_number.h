// The program-wide file number 1. The operations on documents and on the program's own files run on it, one at a time;
// opening one that an error abandons half-way leaves it open, and then every later operation fails until the next
// start. The rescue and the conversions of files do without it.
#pragma once

#include <cerrno>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "platform/runtime_error.h"

namespace pelmar {

class FileNumber {
 public:
  [[nodiscard]] bool IsOpen() const { return open_; }

  // Throws RuntimeError (EBUSY) when it is open already.
  void Open() {
    if (open_) throw RuntimeError(EBUSY, "Soubor číslo 1 je již otevřen");
    open_ = true;
  }
  void Close() { open_ = false; }

 private:
  bool open_ = false;
};

// The file number open for as long as this lives, for operations that set it free however they end.
class OpenNumber {
 public:
  explicit OpenNumber(FileNumber& number) : number_(number) { number_.Open(); }
  OpenNumber(const OpenNumber&) = delete;
  OpenNumber& operator=(const OpenNumber&) = delete;
  ~OpenNumber() { number_.Close(); }

 private:
  FileNumber& number_;
};

// True when the path opens for reading. required: while the number is stuck nothing is found, so that every later
// operation fails until the next start; the test may not set it free.
bool FileExists(const FileNumber& number, Platform& platform, const std::string& path);

// Of a file that is there.
RuntimeError Unreadable(const std::string& path, int error);

// What a person has to know of a failed write beside its error: a line behind a message, "" as a rule.
std::string KeptNotice(const WriteOutcome& outcome);

// Files of the program's own, on the number. All throw RuntimeError where a step fails.
void WriteFileOn(FileNumber& number, Platform& platform, const std::string& path, std::string_view bytes);
// Over the start of a file that isn't cut: the tail of a longer old one stays behind the record. What can't be read
// isn't written over.
void WriteRecordOn(FileNumber& number, Platform& platform, const std::string& path, std::string record);
// The first bytes of a file, which is made, empty, where it is missing.
std::string ReadOrMakeOn(FileNumber& number, Platform& platform, const std::string& path, std::uint64_t limit);

}  // namespace pelmar
