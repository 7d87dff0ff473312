// The fields of the program's own binary files: little-endian numbers and byte strings, one after the other, and the
// seal (signature and checksum) of those files that must be whole to count. A file that ends too early reads as zero
// and empty from there on; no count makes a reader allocate more than the bytes that are there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

// Reads fields in file order. What it hands out points into the bytes it was given.
class RecordReader {
 public:
  explicit RecordReader(std::string_view bytes) : rest_(bytes) {}

  // `size` bytes, at most 8.
  std::uint64_t Number(std::size_t size);
  std::string_view Bytes(std::uint64_t count);
  // A count of `count_size` bytes, and as many bytes.
  std::string_view String(std::size_t count_size) { return Bytes(Number(count_size)); }

  // A field went beyond the end.
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
  // As the reader's; cut to what the count can tell.
  void String(std::string_view text, std::size_t count_size);
  std::string Take() && { return std::move(bytes_); }

 private:
  std::string bytes_;
};

// The body behind a signature and its checksum, which guards against torn and foreign files, not against malice.
std::string Sealed(std::string_view signature, std::string_view body);
// The body of what Sealed wrote whole with this signature, otherwise nothing.
std::optional<std::string_view> SealedBody(std::string_view signature, std::string_view bytes);

}  // namespace pelmar
