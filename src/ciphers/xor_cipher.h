// Two ciphers that restore the text when applied twice: the stream cipher with a numeric key, and the primitive cipher.
// required: the stream cipher drops each character that would become code 0. A second run then gives wrong characters
// from that character on.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "ciphers/reproducible_generator.h"
#include "platform/platform.h"
#include "text/text_buffer.h"

namespace pelmar {

struct Editor;

// The text that the key field shows after a typed text: the number at the start is read and written until the text
// stays the same. required: the number is written with a decimal comma, but reading stops at a comma, so the part from
// the comma on is lost. "1.5E20" gives "1" (through "1,5E+20"), but "1.5E3" gives "1500".
std::string KeyText(std::string_view typed);

class StreamCipher {
 public:
  explicit StreamCipher(double key) { generator_.Reseed(key); }
  // Enciphers the next characters of the stream and appends them to `output`.
  void Append(std::string_view text, std::string& output);

 private:
  ReproducibleGenerator generator_;
};

// Enciphers the document into `output`, then replaces the document by `output`. At each code 8 a question lets the
// person stop. `on_progress` gets the number of read characters and returns false to stop. A stopped run keeps the
// document. If the document changes during the run, the run goes on in the new text, at most up to the old length.
void RewriteStream(TextBuffer& buffer, double key, std::string& output, Platform& platform,
                   const std::function<bool(std::size_t done)>& on_progress);

// Each code becomes 256 minus the code. 0 stays.
std::string PrimitiveRewrite(std::string_view text);

void AddPrimitiveCipherCommand(Editor& editor);

}  // namespace pelmar
