// What a rescue keeps of the documents, and how it brings them back.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/documents.h"
#include "shell/rescue_content.h"
#include "shell/rescue_file.h"

namespace pelmar {

// The documents of the running program that have unsaved changes.
RescueRecord UnsavedDocuments(const Documents& documents);

// Brings documents back: each into its own tab, or into the next empty one where its own holds a document with a path
// or one brought back before. Those that found no place are returned.
std::vector<RescuedText> BringBackDocuments(Documents& documents, const std::vector<RescueRecord>& records);

// A document as it stands in a text file that a person reads: a head line with the path, then the text. A path that
// Windows-1250 can't hold stands there in UTF-8.
std::string ReadableDocument(std::string_view path, std::string_view text);
std::string ReadableDocuments(const std::vector<RescuedText>& documents);

class DocumentsRescue : public RescueContent {
 public:
  explicit DocumentsRescue(Documents& documents);

  [[nodiscard]] RescueRecord Unsaved() const override { return UnsavedDocuments(documents_); }
  [[nodiscard]] std::string Readable(const std::vector<RescuedText>& texts) const override {
    return ReadableDocuments(texts);
  }
  std::vector<RescuedText> BringBack(const std::vector<RescueRecord>& records) override {
    return BringBackDocuments(documents_, records);
  }

 private:
  Documents& documents_;
};

}  // namespace pelmar
