#include "shell/record_bytes.h"

#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::size_t kChecksumSize = 8;

// FNV-1a
std::uint64_t Checksum(std::string_view bytes) {
  std::uint64_t sum = 14695981039346656037u;
  for (char ch : bytes) sum = (sum ^ static_cast<std::uint64_t>(CodeOf(ch))) * 1099511628211u;
  return sum;
}

}  // namespace

std::uint64_t RecordReader::Number(std::size_t size) {
  const std::string_view field = Bytes(size);
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < field.size(); ++i) value |= static_cast<std::uint64_t>(CodeOf(field[i])) << 8 * i;
  return value;
}

std::string_view RecordReader::Bytes(std::uint64_t count) {
  if (count > rest_.size()) {
    failed_ = true;
    rest_ = {};
    return {};
  }
  const std::string_view field = rest_.substr(0, static_cast<std::size_t>(count));
  rest_.remove_prefix(field.size());
  return field;
}

void RecordWriter::Number(std::uint64_t value, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) bytes_ += CharOf(static_cast<int>(value >> 8 * i & 0xFF));
}

void RecordWriter::String(std::string_view text, std::size_t count_size) {
  const std::uint64_t most = ~std::uint64_t{0} >> (64 - 8 * count_size);
  text = text.substr(0, most);
  Number(text.size(), count_size);
  Bytes(text);
}

std::string Sealed(std::string_view signature, std::string_view body) {
  RecordWriter writer;
  writer.Bytes(signature);
  writer.Number(Checksum(body), kChecksumSize);
  writer.Bytes(body);
  return std::move(writer).Take();
}

std::optional<std::string_view> SealedBody(std::string_view signature, std::string_view bytes) {
  if (!bytes.starts_with(signature)) return std::nullopt;
  bytes.remove_prefix(signature.size());
  RecordReader reader(bytes);
  const std::uint64_t sum = reader.Number(kChecksumSize);
  if (reader.Failed()) return std::nullopt;
  const std::string_view body = bytes.substr(kChecksumSize);
  return Checksum(body) == sum ? std::optional(body) : std::nullopt;
}

}  // namespace pelmar
