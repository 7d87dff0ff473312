// The windows of ciphers and checksums.
#pragma once

namespace pelmar {

struct ProgramParts;

void AddCipherWindows(const ProgramParts& parts);

}  // namespace pelmar
