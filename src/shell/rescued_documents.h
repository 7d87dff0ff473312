// What a rescue keeps of the documents, and how it brings them back.
#pragma once

#include <string>
#include <vector>

#include "shell/documents.h"
#include "shell/rescue_file.h"

namespace pelmar {

// The documents of the running program that have unsaved changes.
RescueRecord UnsavedDocuments(const Documents& documents);

// Brings documents back: each into its own tab, or into the next empty one where its own holds a document with a path
// or one brought back before. Those that found no place are returned.
std::vector<RescuedText> BringBackDocuments(Documents& documents, const std::vector<RescueRecord>& records);

// The documents as a text file that a person reads: a head line with the path, then the text, for each. A path that
// Windows-1250 can't hold stands there in UTF-8.
std::string ReadableDocuments(const std::vector<RescuedText>& documents);

}  // namespace pelmar
