// Every command that needs no window of its own, put into the editor's list.
#pragma once

namespace pelmar {

struct Editor;
struct Files;

void AddCommands(Editor& editor, Files& files);

}  // namespace pelmar
