// The commands of the text tools without a dialog of their own: for the selected text, for lines, for random texts, for
// the clipboard, and the primitive search.
#pragma once

namespace pelmar {

struct Editor;

void AddTextToolCommands(Editor& editor);

}  // namespace pelmar
