// A text and its selection in one line: in "a[bc|d" "bc" is selected and the caret behind it, in "abcd|" nothing is.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/text_buffer.h"

namespace pelmar {

inline void PutMarked(TextBuffer& buffer, std::string_view marked) {
  std::string text;
  std::optional<std::size_t> anchor;
  std::size_t caret = 0;
  for (const char ch : marked) {
    if (ch == '|') caret = text.size();
    if (ch == '[') anchor = text.size();
    if (ch != '|' && ch != '[') text += ch;
  }
  buffer.SetText(text);
  buffer.Select(anchor.value_or(caret), caret);
}

inline std::string Marked(const TextBuffer& buffer) {
  std::string text = buffer.Text();
  text.insert(buffer.Caret(), "|");
  if (buffer.HasSelection()) text.insert(buffer.Anchor() + (buffer.Caret() < buffer.Anchor() ? 1 : 0), "[");
  return text;
}

}  // namespace pelmar
