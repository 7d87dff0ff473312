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

// Rewrites the document through `output`, which keeps what was done of an abandoned run. At a character of code 8 the
// person is warned and may abandon. `on_progress` hears how many characters are done, lets the windows live meanwhile,
// and says whether to go on; it is called at least every 20 ms. The document may change under it: each character is
// read at its turn, only the length is taken once. An abandoned run leaves the document as it was.
void RewriteStream(TextBuffer& buffer, double key, std::string& output, Platform& platform,
                   const std::function<bool(std::size_t done)>& on_progress);

// Each code becomes 256 minus the code. 0 stays.
std::string PrimitiveRewrite(std::string_view text);

}  // namespace pelmar
