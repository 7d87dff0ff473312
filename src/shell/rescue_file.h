// The bytes of a rescue file: the modified documents of one running copy, kept while it runs so that a crash or a power
// loss takes nothing. Binary with a signature and a checksum; what doesn't check out is no rescue file.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/documents.h"

namespace pelmar {

struct RescuedDocument {
  int tab = 1;
  std::string path;  // UTF-8, empty for a document never saved
  std::string text;
  bool operator==(const RescuedDocument&) const = default;
};

struct RescueRecord {
  int selected_tab = 1;
  std::vector<RescuedDocument> documents;
  bool operator==(const RescueRecord&) const = default;
};

// The documents of the running program that have unsaved changes.
RescueRecord UnsavedDocuments(const Documents& documents);

std::string RescueBytes(const RescueRecord& record);

// Nothing for bytes that RescueBytes didn't write whole. Never allocates more than the bytes' own size.
std::optional<RescueRecord> ReadRescue(std::string_view bytes);

// Brings documents back: each into its own tab, or into the next empty one where its own holds a document with a path
// or one brought back before. Those that found no place are returned.
std::vector<RescuedDocument> BringBack(Documents& documents, const std::vector<RescueRecord>& records);

// The documents as a text file that a person reads: a head line with the path, then the text, for each.
std::string ReadableRescue(const std::vector<RescuedDocument>& documents);

}  // namespace pelmar
