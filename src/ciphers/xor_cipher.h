// Two ciphers that restore the text when applied twice: the stream cipher with a numeric key, and the primitive cipher.
// required: the stream cipher drops each character that would become code 0; all characters after it are then lost on
// the way back.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "ciphers/reproducible_generator.h"
#include "platform/platform.h"
#include "text/text_buffer.h"

namespace pelmar {

// What the key field makes of a typed text: a number, read and written again until the text stays the same. required:
// reading needs a point and writing uses a comma, so a fraction loses its decimals.
std::string KeyText(std::string_view typed);

class StreamCipher {
 public:
  explicit StreamCipher(double key) { generator_.Reseed(key); }
  // Enciphers the next characters of the stream and appends them to `output`.
  void Append(std::string_view text, std::string& output);

 private:
  ReproducibleGenerator generator_;
};

// Enciphers the document into `output` and, at the end, replaces the document by `output`. At a character of code 8 a
// question lets the person stop. `on_progress` is called at least every 20 ms with the number of enciphered characters;
// it handles events and returns false to stop. A stopped run leaves the document unchanged and its part in `output`.
// Events may change the document: each character is read when its turn comes, the length is read only at the start.
void RewriteStream(TextBuffer& buffer, double key, std::string& output, Platform& platform,
                   const std::function<bool(std::size_t done)>& on_progress);

// Each code becomes 256 minus the code. 0 stays.
std::string PrimitiveRewrite(std::string_view text);

}  // namespace pelmar
