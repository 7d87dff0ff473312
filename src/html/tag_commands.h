// Commands that put tags around the selection or insert a fixed text, for the menu and the toolbar. Texts are
// Windows-1250 and are not escaped.
#pragma once

namespace pelmar {

struct Editor;

void AddTagCommands(Editor& editor);

}  // namespace pelmar
