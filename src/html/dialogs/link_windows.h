// The dialogs for pictures, links and sample documents.
#pragma once

namespace pelmar {

struct ProgramParts;

void AddLinkWindows(const ProgramParts& parts);

}  // namespace pelmar
