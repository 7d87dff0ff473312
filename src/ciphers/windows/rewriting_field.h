// A single-line field that rewrites its text after each change, for the keys of the ciphers.
#pragma once

#include <functional>
#include <string>
#include <string_view>

class QLineEdit;

namespace pelmar {

// `rewrite` returns the new text and must leave its own result unchanged. If the new text is "0", the caret moves to
// the end. Otherwise, if the new text is only the end of the old text, the caret moves left by the number of removed
// characters.
void RewriteOnChange(QLineEdit* field, std::function<std::string(std::string_view)> rewrite);

}  // namespace pelmar
