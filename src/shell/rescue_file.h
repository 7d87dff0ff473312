// The format of a rescue file, which holds the unsaved documents or notes of one running copy of the program. A later
// start reads the file after a crash or a power loss. A file whose signature or checksum is wrong is refused.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

// The kind of the texts. The name of the rescue file begins with the prefix. No prefix is the start of another prefix.
struct RescueKind {
  std::string_view prefix;
  std::string_view signature;
};
inline constexpr RescueKind kDocumentsRescue{"rescue-", "PELMAR-RESCUE-1\n"};

inline constexpr int kRescuePlaces = 5;

struct RescuedText {
  int place = 1;       // the tab or the page, from 1
  std::string origin;  // a document's path ("" if it has none), or the last stored text of a notes page
  std::string text;
  bool operator==(const RescuedText&) const = default;
};

struct RescueRecord {
  int shown = 1;  // the place that was selected
  std::vector<RescuedText> texts;
  bool operator==(const RescueRecord&) const = default;
};

// The content of a rescue file, "" if there is no text to keep.
std::string RescueBytes(const RescueKind& kind, const RescueRecord& record);

// Nothing if the bytes are incomplete or damaged, or if RescueBytes didn't make them for this kind.
std::optional<RescueRecord> ReadRescue(const RescueKind& kind, std::string_view bytes);

}  // namespace pelmar
