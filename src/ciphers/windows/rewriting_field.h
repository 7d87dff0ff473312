// A single-line field whose text is rewritten after each change, as the key fields of the ciphers are.
#pragma once

#include <functional>
#include <string>
#include <string_view>

class QLineEdit;

namespace pelmar {

// From now on the field shows what `rewrite` makes of what is put into it. A rewritten text is left alone by `rewrite`.
// The caret stays where typing goes on: at its place in what is left, behind a 0 that stands for nothing.
void RewriteOnChange(QLineEdit* field, std::function<std::string(std::string_view)> rewrite);

}  // namespace pelmar
