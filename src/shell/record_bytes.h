// Reads and writes the program's own binary files: little-endian numbers and byte strings in sequence. A field that
// goes beyond the end of a file reads as zero or empty, and Failed() is true from then on. Files that must be complete
// have a seal: a signature and a checksum.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

// Reads fields in file order. The returned strings point into the given bytes.
class RecordReader {
 public:
  explicit RecordReader(std::string_view bytes) : rest_(bytes) {}

  // `size` is in bytes, at most 8.
  std::uint64_t Number(std::size_t size);
  std::string_view Bytes(std::uint64_t count);
  // Reads a count, stored in `count_size` bytes, and then that many bytes.
  std::string_view String(std::size_t count_size) { return Bytes(Number(count_size)); }

  // True if a field went beyond the end of the bytes.
  [[nodiscard]] bool Failed() const { return failed_; }
  [[nodiscard]] bool AtEnd() const { return rest_.empty(); }

 private:
  std::string_view rest_;
  bool failed_ = false;
};

class RecordWriter {
 public:
  void Number(std::uint64_t value, std::size_t size);
  void Bytes(std::string_view bytes) { bytes_ += bytes; }
  // Writes the text so that RecordReader::String can read it. A text longer than the largest possible count is cut.
  void String(std::string_view text, std::size_t count_size);
  std::string Take() && { return std::move(bytes_); }

 private:
  std::string bytes_;
};

// Puts a signature and a checksum before the body. So SealedBody detects incomplete, damaged and foreign files. The
// checksum is no protection against deliberate changes.
std::string Sealed(std::string_view signature, std::string_view body);
// The body of sealed bytes. Nothing if the signature or the checksum is missing or wrong.
std::optional<std::string_view> SealedBody(std::string_view signature, std::string_view bytes);

}  // namespace pelmar
