// What an errno means, in Czech: the system's own words come in its language, or in English.
#pragma once

#include <string>

namespace pelmar {

// UTF-8, in lower case and without a full stop, for the end of a message. Another number than those that files give
// reads "chyba číslo 123".
std::string ErrorText(int number);

}  // namespace pelmar
