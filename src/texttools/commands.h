// The text tools without a dialog: commands on the selected text, on lines, on the clipboard, and the primitive search.
#pragma once

namespace pelmar {

struct Editor;

void AddTextToolCommands(Editor& editor);

}  // namespace pelmar
