// Substitutes for the three fonts that the program names, for systems without these fonts.
#pragma once

namespace pelmar {

void SubstituteFonts();

}  // namespace pelmar
