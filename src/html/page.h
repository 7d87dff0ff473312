// A whole web page around the document: a head and a BODY tag before the document, the end tags after the document.
// Framesets use CodePageAndGenerator and PutAround too. Texts are Windows-1250 and are not escaped.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/text_buffer.h"

namespace pelmar {

// An optional field has no value if its check box in the dialog is off. Colours are "#RRGGBB".
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

// Replaces the whole text by the page. The old text, or a sample if there was no text, is then selected in the page.
void WrapInPage(TextBuffer& buffer, const PageSpec& spec);

// The META lines of the code page and of the program, each with its line end.
std::string CodePageAndGenerator();

// Puts `head` and `tail` around the document, or around `sample` if the document is empty. Then selects the text
// between `head` and `tail`.
void PutAround(TextBuffer& buffer, std::string_view head, std::string_view sample, std::string_view tail);

}  // namespace pelmar
