// The notes, the checkpoints that live in them, and the character analysis.
#pragma once

namespace pelmar {

struct ProgramParts;

void AddNotesWindows(const ProgramParts& parts);

}  // namespace pelmar
