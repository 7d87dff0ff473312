#include "text/insert.h"

namespace pelmar {

void InsertAtCaret(TextBuffer& buffer, std::string_view text) {
  buffer.SetSelLength(0);
  buffer.ReplaceSelection(text);
}

void WrapSelection(TextBuffer& buffer, std::string_view open, std::string_view close, std::string_view sample) {
  std::string text(open);
  text += buffer.HasSelection() ? buffer.SelText() : sample;
  text += close;
  buffer.ReplaceSelection(text);
}

void WrapSelection(TextBuffer& buffer, const Wrapping& wrapping) {
  WrapSelection(buffer, wrapping.open, wrapping.close, wrapping.sample);
}

}  // namespace pelmar
