// The commands of the text tools that need no window of their own: selected text, lines, clipboard, primitive find.
#pragma once

namespace pelmar {

struct Editor;

void AddTextToolCommands(Editor& editor);

}  // namespace pelmar
