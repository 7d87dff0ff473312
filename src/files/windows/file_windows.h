// The windows that pick, open, save and convert files, and the printing of a document.
#pragma once

namespace pelmar {

struct ProgramParts;

void AddFileWindows(const ProgramParts& parts);

}  // namespace pelmar
