// The windows of the tag editor, of lists and of the small fragments, with the commands that show them.
#pragma once

namespace pelmar {

struct ProgramParts;

void AddTagWindows(const ProgramParts& parts);

}  // namespace pelmar
