// A frameset page around the document, which becomes its NOFRAMES part, and the FRAME tag that a person puts into the
// frameset by hand. Texts are Windows-1250, written as they are; numbers come as their labels show them.
#pragma once

#include <optional>
#include <string>

#include "text/text_buffer.h"

namespace pelmar {

// What is switched off is absent.
struct FramesetSpec {
  std::optional<std::string> rows = std::nullopt;
  std::optional<std::string> cols = std::nullopt;
  std::string title;
};

// The page becomes the whole text. What was there before, or a sentence where nothing was, stands selected in it.
void WrapInFrameset(TextBuffer& document, const FramesetSpec& spec);

struct FrameSpec {
  struct Margins {
    std::string height;
    std::string width;
  };

  std::string path;
  bool relative = false;  // the path is a bare name
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
