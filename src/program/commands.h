// Adds the commands that need no window.
#pragma once

namespace pelmar {

struct Editor;
struct Files;

void AddCommands(Editor& editor, Files& files);

}  // namespace pelmar
