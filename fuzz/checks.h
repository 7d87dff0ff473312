// What the fuzzers share.
#pragma once

#include <cstdlib>
#include <optional>
#include <string_view>

#include "shell/rescue_file.h"

namespace pelmar {

inline void Require(bool holds) {
  if (!holds) std::abort();
}

// What is read of a rescue file is never more than what was there, and is written so that it reads the same.
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
