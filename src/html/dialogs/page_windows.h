// The dialogs that write whole pages, framesets and tables.
#pragma once

namespace pelmar {

struct ProgramParts;

void AddPageWindows(const ProgramParts& parts);

}  // namespace pelmar
