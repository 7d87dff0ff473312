// The shell's own windows: profile, lock, start, help, about and the toolbar's customising.
#pragma once

namespace pelmar {

struct ProgramParts;

void AddShellWindows(const ProgramParts& parts);

}  // namespace pelmar
