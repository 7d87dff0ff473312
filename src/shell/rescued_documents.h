// Collects the documents for the rescue and brings them back.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/documents.h"
#include "shell/rescue_content.h"
#include "shell/rescue_file.h"

namespace pelmar {

RescueRecord UnsavedDocuments(const Documents& documents);

// Puts each document into its old tab. If this tab holds a file or another restored document, the first empty tab is
// used. Returns the documents for which there was no tab.
std::vector<RescuedText> BringBackDocuments(Documents& documents, const std::vector<RescueRecord>& records);

// A document for a person to read: a line with the result of StoredPath, then the text.
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
