// What stands in for the three fonts that the program names, on a system that has none of them.
#pragma once

namespace pelmar {

void SubstituteFonts();

}  // namespace pelmar
