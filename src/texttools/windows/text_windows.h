// The windows of the text tools, and the look of the editor.
#pragma once

namespace pelmar {

struct ProgramParts;

void AddTextWindows(const ProgramParts& parts);

}  // namespace pelmar
