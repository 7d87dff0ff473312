// Adds the internal browser: its commands, its door for other dialogs, its life as the whole program.
#pragma once

namespace pelmar {

struct ProgramParts;

void AddBrowserWindows(const ProgramParts& parts);

}  // namespace pelmar
