// The commands that need no window, neither one of their own nor the main one, put into the editor's list.
#pragma once

namespace pelmar {

struct Editor;
struct Files;

void AddCommands(Editor& editor, Files& files);

}  // namespace pelmar
