// Adds the commands that need no window, except those that the constructor of Editor adds.
#pragma once

namespace pelmar {

struct Editor;
struct Files;

void AddCommands(Editor& editor, Files& files);

}  // namespace pelmar
