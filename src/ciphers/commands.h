// The commands of ciphers and checksums that need no window of their own: the primitive rewrite and the sums.
#pragma once

namespace pelmar {

struct Editor;

void AddCipherCommands(Editor& editor);

}  // namespace pelmar
