// The tools that put characters and numbers into the document: Morse code, calculator, number converter, character
// table and keyboard.
#pragma once

namespace pelmar {

struct ProgramParts;

void AddToolWindows(const ProgramParts& parts);

}  // namespace pelmar
