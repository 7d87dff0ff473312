// Marked text, one of the two notations of the tests (steps.h has the other): a document with its selection, in UTF-8.
// "|" is the caret, "[" the other end of the selection, "¶" a line end (CR LF). In "a[bc|d" the text "bc" is selected.
// In "ab¶|" nothing is selected, and the caret is in the second line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/codepage.h"
#include "text/text_buffer.h"

namespace pelmar {

// Replaces each line end of a UTF-8 text by "¶".
inline std::string FoldLineEnds(std::string text) {
  for (std::size_t at = 0; (at = text.find("\r\n", at)) != std::string::npos;) text.replace(at, 2, "¶");
  return text;
}

// A Windows-1250 text in UTF-8, with "¶" for each line end.
inline std::string ShownText(std::string_view text) { return FoldLineEnds(ToUtf8(text)); }

inline void PutMarked(TextBuffer& buffer, std::string_view marked) {
  std::string text;
  std::optional<std::size_t> anchor;
  std::size_t caret = 0;
  for (const char ch : FromUtf8(marked)) {
    if (ch == '|') caret = text.size();
    if (ch == '[') anchor = text.size();
    if (ch == "¶"_w[0]) text += "\r\n";
    if (ch != '|' && ch != '[' && ch != "¶"_w[0]) text += ch;
  }
  buffer.SetText(text);
  buffer.Select(anchor.value_or(caret), caret);
}

inline std::string Marked(const TextBuffer& buffer) {
  std::string text = buffer.Text();
  text.insert(buffer.Caret(), "|");
  if (buffer.HasSelection()) text.insert(buffer.Anchor() + (buffer.Caret() < buffer.Anchor() ? 1 : 0), "[");
  return ShownText(text);
}

}  // namespace pelmar
