#include "text/insert.h"

#include <string>

namespace pelmar {

void InsertAtCaret(TextBuffer& box, std::string_view text) {
  box.SetSelLength(0);
  box.ReplaceSelection(text);
}

void ReplaceDocument(TextBuffer& box, std::string_view text) {
  // The text that the box has already is no change, whoever sets it.
  if (text != box.Text()) box.Replace(0, box.Size(), text);
  box.SetSelStart(0);
}

void WrapSelection(TextBuffer& box, std::string_view open, std::string_view close, std::string_view sample) {
  if (!box.HasSelection()) {
    box.ReplaceSelection(sample);
    return;
  }
  std::string text(open);
  text += box.SelText();
  text += close;
  box.ReplaceSelection(text);
}

}  // namespace pelmar
