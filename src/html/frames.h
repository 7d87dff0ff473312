// Writes a FRAME tag, or a frameset page with the document in its NOFRAMES part. Texts are Windows-1250 and are not
// escaped. Numbers are texts, as the dialogs show them.
#pragma once

#include <optional>
#include <string>

#include "text/text_buffer.h"

namespace pelmar {

// An optional field has no value if its check box in the dialog is off.
struct FramesetSpec {
  std::optional<std::string> rows = std::nullopt;
  std::optional<std::string> cols = std::nullopt;
  std::string title;
};

// Replaces the whole text by the page. The old text, or a sample if there was no text, is then selected in the page.
void WrapInFrameset(TextBuffer& buffer, const FramesetSpec& spec);

struct FrameSpec {
  struct Margins {
    std::string height;
    std::string width;
  };

  std::string path;
  bool relative = false;  // true if the path is a bare name
  std::optional<std::string> name = std::nullopt;
  std::optional<std::string> align = std::nullopt;
  std::optional<std::string> border = std::nullopt;
  std::optional<std::string> border_color = std::nullopt;
  std::optional<std::string> spacing = std::nullopt;
  std::optional<std::string> scrolling = std::nullopt;
  std::optional<Margins> margins = std::nullopt;
  bool noresize = false;
};

std::string FrameTag(const FrameSpec& spec);

}  // namespace pelmar
