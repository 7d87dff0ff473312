// A single-line field that rewrites its text after each change, for the keys of the ciphers.
#pragma once

#include <functional>
#include <string>
#include <string_view>

class QLineEdit;

namespace pelmar {

// `rewrite` returns the new text and must leave its own result unchanged. The caret keeps its place in the remaining
// text, or moves to the end if only "0" remains.
void RewriteOnChange(QLineEdit* field, std::function<std::string(std::string_view)> rewrite);

}  // namespace pelmar
