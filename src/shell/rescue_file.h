// The bytes of a rescue file: what one running copy hasn't saved yet, its documents or its notes, kept while it runs so
// that a crash or a power loss takes nothing. Binary with a signature and a checksum; what doesn't check out is no
// rescue file.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

// What is kept. The prefix begins the name of the file, and none begins with another one.
struct RescueKind {
  std::string_view prefix;
  std::string_view signature;
};
inline constexpr RescueKind kDocumentsRescue{"rescue-", "PELMAR-RESCUE-1\n"};

inline constexpr int kRescuePlaces = 5;

struct RescuedText {
  int place = 1;       // the tab or the page, from 1
  std::string origin;  // a document's path (UTF-8, empty where it was never saved), or a page as it was last stored
  std::string text;
  bool operator==(const RescuedText&) const = default;
};

struct RescueRecord {
  int shown = 1;  // the place on show
  std::vector<RescuedText> texts;
  bool operator==(const RescueRecord&) const = default;
};

// "" where there is no text to keep.
std::string RescueBytes(const RescueKind& kind, const RescueRecord& record);

// Nothing for bytes that RescueBytes didn't write whole. Never allocates more than the bytes' own size.
std::optional<RescueRecord> ReadRescue(const RescueKind& kind, std::string_view bytes);

}  // namespace pelmar
