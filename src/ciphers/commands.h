// The commands without a dialog: the primitive cipher and the check sums.
#pragma once

namespace pelmar {

struct Editor;

void AddCipherCommands(Editor& editor);

}  // namespace pelmar
