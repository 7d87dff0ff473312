// A whole page around the document: the head and BODY tag before it, the end behind it. What framesets share with pages
// lies here too. Texts are Windows-1250, written as they are.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/text_buffer.h"

namespace pelmar {

// What is switched off is absent. Colours are "#RRGGBB".
struct PageSpec {
  std::string author;
  std::string created;
  std::string title;
  std::optional<std::string> background = std::nullopt;  // a path
  std::optional<std::string> bgcolor = std::nullopt;
  std::optional<std::string> text = std::nullopt;
  std::optional<std::string> link = std::nullopt;
  std::optional<std::string> vlink = std::nullopt;
  std::optional<std::string> alink = std::nullopt;
  std::optional<int> base_font = std::nullopt;
};

// The page becomes the whole text. What was there before, or a marker where nothing was, stands selected in its body.
void WrapInPage(TextBuffer& document, const PageSpec& spec);

// The lines that tell a reader the code page and the program, each with its line end.
std::string CodePageAndGenerator();

// The document's text, or `sample` where it is empty, goes between head and tail and is selected there.
void PutAround(TextBuffer& document, std::string_view head, std::string_view sample, std::string_view tail);

}  // namespace pelmar
