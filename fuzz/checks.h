// Checks shared by the fuzzers.
#pragma once

#include <cstdlib>
#include <optional>
#include <string_view>

#include "shell/rescue_file.h"

namespace pelmar {

inline void Require(bool holds) {
  if (!holds) std::abort();
}

// Reads a rescue file. The texts are never larger than the file, and are the same after writing and reading them again.
inline std::optional<RescueRecord> ReadCheckedRescue(const RescueKind& kind, std::string_view bytes) {
  auto record = ReadRescue(kind, bytes);
  if (!record) return record;
  std::size_t size = 0;
  for (const RescuedText& text : record->texts) size += text.origin.size() + text.text.size();
  Require(size <= bytes.size());
  Require(record->texts.empty() || RescueBytes(kind, *record) == bytes);
  return record;
}

}  // namespace pelmar
