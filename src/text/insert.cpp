#include "text/insert.h"

namespace pelmar {

void InsertAtCaret(TextBuffer& document, std::string_view text) {
  document.SetSelLength(0);
  document.ReplaceSelection(text);
}

void WrapSelection(TextBuffer& document, std::string_view open, std::string_view close, std::string_view sample) {
  std::string text(open);
  text += document.HasSelection() ? document.SelText() : sample;
  text += close;
  document.ReplaceSelection(text);
}

void WrapSelection(TextBuffer& document, const Wrapping& wrapping) {
  WrapSelection(document, wrapping.open, wrapping.close, wrapping.sample);
}

}  // namespace pelmar
