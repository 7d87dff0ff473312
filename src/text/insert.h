// How commands and dialogs put text into a document. Texts are Windows-1250 and are not escaped.
#pragma once

#include <string>
#include <string_view>

#include "text/text_buffer.h"

namespace pelmar {

// Inserts at the start of the selection. The selected text stays, after the new text, and is no longer selected.
void InsertAtCaret(TextBuffer& buffer, std::string_view text);

// Puts `open` before the selection and `close` after it. An empty selection is replaced by `sample` first.
void WrapSelection(TextBuffer& buffer, std::string_view open, std::string_view close, std::string_view sample);

struct Wrapping {
  std::string open;
  std::string close;
  std::string sample;
};
void WrapSelection(TextBuffer& buffer, const Wrapping& wrapping);

}  // namespace pelmar
