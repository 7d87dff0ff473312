// Collects the documents for the rescue and brings them back.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/documents.h"
#include "shell/rescue_content.h"
#include "shell/rescue_file.h"

namespace pelmar {

// A document for a person to read: a line with "Soubor:" and StoredPath(path), then the text and an empty line.
std::string ReadableDocument(std::string_view path, std::string_view text);

// The documents with unsaved changes.
class DocumentsRescue : public RescueContent {
 public:
  explicit DocumentsRescue(Documents& documents);

  [[nodiscard]] RescueRecord Unsaved() const override;
  [[nodiscard]] std::string Readable(const std::vector<RescuedText>& texts) const override;
  // Puts each document into the tab from which it came. If this tab has a path or got another rescued document, uses
  // the first tab that has no path, no text and no rescued document.
  std::vector<RescuedText> BringBack(const std::vector<RescueRecord>& records) override;

 private:
  Documents& documents_;
};

}  // namespace pelmar
