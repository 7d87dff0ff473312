// Sets substitutes for the program's three fonts, for systems where these fonts are missing.
#pragma once

namespace pelmar {

void SubstituteFonts();

}  // namespace pelmar
