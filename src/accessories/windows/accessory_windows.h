// The small tools beside the editor.
#pragma once

namespace pelmar {

struct ProgramParts;

void AddAccessoryWindows(const ProgramParts& parts);

}  // namespace pelmar
