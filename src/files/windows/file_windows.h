// The windows that open and save documents.
#pragma once

namespace pelmar {

struct ProgramParts;

void AddFileWindows(const ProgramParts& parts);

}  // namespace pelmar
