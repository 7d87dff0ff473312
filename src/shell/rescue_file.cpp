#include "shell/rescue_file.h"

#include <cstdint>

#include "shell/record_bytes.h"

namespace pelmar {
namespace {

constexpr std::size_t kNumber = 8;

// Reads the number of a tab or page, from 1. 0 if the number is invalid.
int TakePlace(RecordReader& reader) {
  const std::uint64_t place = reader.Number(kNumber);
  return place <= kRescuePlaces ? static_cast<int>(place) : 0;
}

}  // namespace

std::string RescueBytes(const RescueKind& kind, const RescueRecord& record) {
  if (record.texts.empty()) return {};
  RecordWriter writer;
  writer.Number(static_cast<std::uint64_t>(record.shown), kNumber);
  for (const RescuedText& one : record.texts) {
    writer.Number(static_cast<std::uint64_t>(one.place), kNumber);
    writer.String(one.origin, kNumber);
    writer.String(one.text, kNumber);
  }
  return Sealed(kind.signature, std::move(writer).Take());
}

std::optional<RescueRecord> ReadRescue(const RescueKind& kind, std::string_view bytes) {
  const std::optional<std::string_view> body = SealedBody(kind.signature, bytes);
  if (!body) return std::nullopt;
  RecordReader reader(*body);
  RescueRecord record;
  record.shown = TakePlace(reader);
  if (record.shown == 0) return std::nullopt;
  while (!reader.AtEnd()) {
    RescuedText one;
    one.place = TakePlace(reader);
    one.origin = reader.String(kNumber);
    one.text = reader.String(kNumber);
    if (reader.Failed() || one.place == 0) return std::nullopt;
    record.texts.push_back(std::move(one));
  }
  return record;
}

}  // namespace pelmar
